// GetSong: the tag read straight from the file (with its "TAG"-anywhere search and the lost
// 30th comment character), the retry question, lengths and frame rate, and the photo's tries
// and sizing. Also the running time of the queue.
#include <QDir>

#include "PlaybackFixture.h"
#include "integration/fixtures/Id3v1Block.h"
#include "controls/SongNames.h"

using namespace sonarium;

namespace {

class SongLoading : public PlaybackFixture {
protected:
    // A song in the test directory: `audio` bytes then `tail`; registered with the fake player.
    QString song(const QString& title, const QByteArray& audio, const QByteArray& tail = {}) {
        write(title + ".mp3", audio + tail);  // lower case: found without regard to case
        const QString dirPath = dir.path() + "/";
        queue({title}, dirPath);
        return dirPath + title + ".MP3";
    }
    // A tag padded with blanks, as other tools write it.
    static QByteArray tag(const QByteArray& title, const QByteArray& comment, unsigned char genre) {
        return fixtures::id3v1Block(title, "Artist", "Album", "1999", comment, genre, ' ');
    }
    bool load(int row) {
        std::int16_t r = std::int16_t(row);
        return form1().GetSong(r);
    }
};

TEST_F(SongLoading, TheTagAtItsUsualPlaceLosesTheCommentsLastCharacter) {
    Form1& f = form1();
    f.cboGenre.Clear();
    for (const char* g : {"Blues", "Classic Rock", "Country"}) f.cboGenre.AddItem(g);
    song("A", QByteArray(400, 'x'), tag("Caf\xE9 \x80", "ABCDEFGHIJKLMNOPQRSTUVWXYZ0123", 2));
    EXPECT_TRUE(load(0));
    EXPECT_EQ(f.txtTitle.Text(), QString::fromUtf8("Café €").leftJustified(30, ' ')) << "padding stays";
    EXPECT_EQ(f.txtArtist.Text(), QString("Artist").leftJustified(30, ' '));
    EXPECT_EQ(f.txtAlbum.Text(), QString("Album").leftJustified(30, ' '));
    EXPECT_EQ(f.txtYear.Text(), "1999");
    EXPECT_EQ(f.txtComment.Text(), "ABCDEFGHIJKLMNOPQRSTUVWXYZ012");
    EXPECT_EQ(f.cboGenre.ListIndex(), 2);
    EXPECT_EQ(M().MiniTitleText,
              QString(f.txtTitle.Text() + " - " + f.txtAlbum.Text() + " - " + f.txtArtist.Text() + "   ")
                  .repeated(4));
    EXPECT_EQ(program().frmMiniPlayer.Picture1.printed(), M().MiniTitleText);

    // A genre number past the list leaves the selection; a tag-less song clears the fields.
    song("B", QByteArray(400, 'x'), tag("Second", "", 200));
    EXPECT_TRUE(load(1));
    EXPECT_EQ(f.txtTitle.Text(), QString("Second").leftJustified(30, ' '));
    EXPECT_EQ(f.cboGenre.ListIndex(), 2);
    song("C", QByteArray(400, 'x'));
    EXPECT_TRUE(load(2));
    EXPECT_EQ(f.txtTitle.Text(), "");
    EXPECT_EQ(f.txtComment.Text(), "");
    EXPECT_EQ(M().MiniTitleText, QString("C -  -    ").repeated(4)) << "the row text stands in for the title";
}

TEST_F(SongLoading, TagLettersAnywhereInTheLastBytesAndShortFilesAreReadAsTheyStand) {
    Form1& f = form1();
    // "TAG" 50 bytes into the block of 127: the fields are cut from there, and shorter.
    QByteArray audio(500, 'x');
    audio.replace(500 - 127 + 49, 12, "TAGSomewhere");
    song("A", audio, "!");
    EXPECT_TRUE(load(0));
    EXPECT_EQ(f.txtTitle.Text(), QString("Somewhere") + QString(21, 'x'));
    EXPECT_EQ(f.txtArtist.Text(), QString(30, 'x'));
    EXPECT_EQ(f.txtAlbum.Text(), QString(124 - 50 - 60, 'x')) << "127 - (p + 3) characters in all";
    EXPECT_EQ(f.txtComment.Text(), "");

    // Fewer than 128 bytes: what lies before the last byte is searched.
    song("B", "xxTAGShort one!");
    EXPECT_TRUE(load(1));
    EXPECT_EQ(f.txtTitle.Text(), "Short one");
    song("C", "no tag here");
    EXPECT_TRUE(load(2));
    EXPECT_EQ(f.txtTitle.Text(), "");
}

TEST_F(SongLoading, AMissingSongIsAskedAboutAndNeverCreated) {
    Form1& f = form1();
    f.txtTitle.setText("old");
    queue({"Gone"}, dir.path() + "/");
    tc.mp3.failOpen(path("Gone.MP3"));
    tc.dialogs.answer(MsgResult::No);
    f.Fading = true;
    EXPECT_FALSE(load(0));
    EXPECT_FALSE(QFile::exists(path("Gone.MP3")));
    EXPECT_EQ(QDir(dir.path()).entryList(QDir::Files).filter("gone", Qt::CaseInsensitive), QStringList());
    EXPECT_EQ(f.txtTitle.Text(), "");
    EXPECT_FALSE(f.Fading) << "No ends a fade's bookkeeping";
}

TEST_F(SongLoading, AFailedOpenAsksUntilYesOpensItAgainWithoutTheWavName) {
    Form1& f = form1();
    queue({"A"});
    f.mnuMP3ToWav.setChecked(true);
    tc.mp3.failOpen("/m/A.MP3", 2);
    tc.dialogs.answer(MsgResult::Yes).answer(MsgResult::Yes);
    EXPECT_TRUE(load(0));
    ASSERT_EQ(tc.dialogs.shown().size(), 2u);
    for (const auto& q : tc.dialogs.shown()) {
        EXPECT_EQ(q.text, "Open failed on /m/A.MP3 Retry?");
        EXPECT_EQ(q.title, "Open");
        EXPECT_EQ(q.buttons, MsgButtons::YesNo);
        EXPECT_EQ(q.icon, MsgIcon::None);
    }
    EXPECT_EQ(tc.mp3.calls().filter("Open"),
              QStringList({"Open(/m/A.MP3,/m/A.WAV)", "Open(/m/A.MP3,)", "Open(/m/A.MP3,)"}));
    EXPECT_EQ(tc.mp3.wavFile(), "") << "the song now plays instead of decoding";

    // Through Play, a refused song leaves the machine idle.
    f.mnuMP3ToWav.setChecked(false);
    tc.mp3.failOpen("/m/A.MP3", -1);
    tc.dialogs.clear();
    tc.dialogs.answer(MsgResult::No).answer(MsgResult::No);  // the row's click loads it, then Play
    f.BtnPlay.MouseUp(LeftButton, 0, 0, 0);
    EXPECT_EQ(tc.dialogs.shown().size(), 2u);
    EXPECT_FALSE(M().SongPlaying);
    EXPECT_TRUE(shows(f.BtnPlay, 1));
    EXPECT_FALSE(tc.mp3.calls().contains("Play"));
}

TEST_F(SongLoading, LengthAndFrameRateAndASongUnderASecondKeepsTheRateBefore) {
    Form1& f = form1();
    tc.mp3.addFile("/m/A.MP3", 9570, 250.4f, 192, 48000);
    tc.mp3.addFile("/m/B.MP3", 12, 0.3f);
    form1().lstSongs.AddItem("A");
    form1().lstSongs.AddItem("B");
    M().SongPath[0] = M().SongPath[1] = "/m/";
    EXPECT_TRUE(load(0));
    EXPECT_EQ(f.SongLength, 250);
    EXPECT_EQ(f.TotalFrames, 9570);
    EXPECT_EQ(f.FramesPerSecond, 38) << "9570 / 250 = 38.28";
    EXPECT_EQ(f.SongLengthText, "04:10");
    EXPECT_EQ(f.lblTime.Caption(), "04:10");
    EXPECT_EQ(f.lblSongDuration.Caption(), "04:10");
    EXPECT_EQ(f.lblBitrate.Caption(), "192");
    EXPECT_EQ(f.lblFrequency.Caption(), "48000");
    EXPECT_EQ(tc.mp3.notifyInterval(), 32);
    EXPECT_EQ(M().SongFile, "/m/A.MP3");

    EXPECT_TRUE(load(1));
    EXPECT_EQ(f.SongLength, 0);
    EXPECT_EQ(f.TotalFrames, 12);
    EXPECT_EQ(f.FramesPerSecond, 38);
    EXPECT_EQ(f.lblTime.Caption(), "00:00");
}

TEST_F(SongLoading, PhotosAreTriedFolderThenSongGifBmpJpgAndTheLastThatLoadsWins) {
    Form1& f = form1();
    queue({"Song"}, "/music/Blues/");
    tc.pictures.add("/music/Blues/Blues.JPG", 231, 40);
    tc.pictures.add("/music/Blues/Song.bmp", 128, 128);
    tc.pictures.addInvalid("/music/Blues/Song.JPG");
    EXPECT_TRUE(load(0));
    const QStringList tries = {"load(/music/Blues/Blues.GIF)", "load(/music/Blues/Blues.BMP)",
                               "load(/music/Blues/Blues.JPG)", "load(/music/Blues/Song.GIF)",
                               "load(/music/Blues/Song.BMP)",  "load(/music/Blues/Song.JPG)"};
    EXPECT_EQ(tc.pictures.calls(), tries + tries) << "the main window's photo, then the mini player's";
    EXPECT_EQ(f.Photo.picture().source(), "/music/Blues/Song.bmp");
    EXPECT_EQ(program().frmMiniPlayer.Photo.picture().source(), "/music/Blues/Song.bmp");
    EXPECT_TRUE(f.Photo.Visible());
}

struct SizeCase {
    int width, height;  // pixels
    int photoWidth;     // the chosen width, twips
    int expectWidth;
    int expectLeft;
    bool frames;
};

class PhotoSizing : public SongLoading, public testing::WithParamInterface<SizeCase> {};

TEST_P(PhotoSizing, TheTwoKnownWidthsStayOthersTakeTheChosenWidthAndAllAre1920High) {
    const SizeCase& c = GetParam();
    Form1& f = form1();
    f.PhotoWidth = std::int16_t(c.photoWidth);
    f.Image8.setVisible(!c.frames);
    queue({"Song"});
    tc.pictures.add("/m/Song.JPG", c.width, c.height);
    EXPECT_TRUE(load(0));
    EXPECT_EQ(f.Photo.Width(), c.expectWidth);
    EXPECT_EQ(f.Photo.Height(), 1920);
    EXPECT_TRUE(f.Photo.Stretch());
    EXPECT_EQ(f.Photo.Left(), c.expectLeft);
    EXPECT_EQ(f.Image8.Visible(), c.frames);
    EXPECT_EQ(f.Image9.Visible(), c.frames);
}

INSTANTIATE_TEST_SUITE_P(
    Sizes, PhotoSizing,
    testing::Values(SizeCase{231, 67, 1920, 3465, 0, false},  // 3465 twips wide: kept, stretched to 1920 high
                    SizeCase{128, 300, 3465, 1920, 772, true},  // square frame: 1545 / 2 rounds to even
                    SizeCase{300, 128, 3465, 3465, 0, false},   // any other width: the chosen one
                    SizeCase{300, 128, 1920, 1920, 772, true}, SizeCase{100, 100, 3645, 3645, -90, false}));

TEST(SongNames, FolderNamesComeFromTheLastDirectoryOfThePath) {
    EXPECT_EQ(folderName("/music/Blues/"), "Blues");
    EXPECT_EQ(folderName("Blues/"), "Blues");
    EXPECT_EQ(folderName("/"), "");
    EXPECT_EQ(folderName(""), "");
    EXPECT_EQ(folderBase("/a/b c/"), "/a/b c/b c");
}

TEST_F(SongLoading, TheRunningTimeCountsFromTheSelectedRowRoundingAfterEachSong) {
    Form1& f = form1();
    for (auto [t, len] : {std::pair{"A", 10.4f}, {"B", 20.5f}, {"C", 3630.6f}}) {
        f.lstSongs.AddItem(t);
        tc.mp3.addFile(QString("/m/") + t + ".MP3", 100, len);
    }
    for (int i = 0; i < 3; ++i) M().SongPath[std::size_t(i)] = "/m/";
    f.GetTotTime();
    EXPECT_EQ(f.lblTotTime.Caption(), "01:01:01") << "10, then 30.5 -> 30, then 3660.6 -> 3661";
    M().CurrentSong = 0;
    f.lstSongs.setListIndex(1);  // the click runs it too
    EXPECT_EQ(f.lblTotTime.Caption(), "01:00:51") << "20.5 -> 20, then 3650.6 -> 3651";
    EXPECT_EQ(tc.mp3.openFile(), "/m/B.MP3");

    M().CurrentSong = 0;
    f.GetTotTime();
    EXPECT_EQ(tc.mp3.openFile(), "/m/A.MP3") << "left on the current song";
    f.lstSongs.Clear();
    f.GetTotTime();
    EXPECT_EQ(f.lblTotTime.Caption(), "");
}

}  // namespace
