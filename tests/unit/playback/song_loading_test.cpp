// GetSong: the tag read straight from the file (with its "TAG"-anywhere search and the lost
// 30th comment character), the retry question, and the photo's tries and sizing. Also the
// running time of the queue.
#include <QDir>

#include "PlaybackFixture.h"
#include "integration/fixtures/Id3v1Block.h"

using namespace sonarium;

namespace {

class SongLoading : public PlaybackFixture {
protected:
    bool load(int row) {
        std::int16_t r = std::int16_t(row);
        return form1().GetSong(r);
    }
};

TEST_F(SongLoading, TheTagIsCutFromWhereverTagStandsInTheLastBytes) {
    Form1& f = form1();
    f.cboGenre.Clear();
    for (const char* g : {"Blues", "Classic Rock", "Country"}) f.cboGenre.AddItem(g);
    const auto pad = [](const QString& s) { return s.leftJustified(30, u' '); };
    QByteArray moved(500, 'x');
    moved.replace(500 - 127 + 49, 12, "TAGSomewhere");
    const struct {
        QByteArray bytes;
        QStringList fields;  // title, artist, album, year, comment
    } cases[] = {
        // Padded with blanks, as other tools write it: the padding stays, and the comment loses
        // its 30th character.
        {QByteArray(400, 'x') + fixtures::id3v1Block("Caf\xE9 \x80", "Artist", "Album", "1999",
                                                     "ABCDEFGHIJKLMNOPQRSTUVWXYZ0123", 2, ' '),
         {pad(QString::fromUtf8("Café €")), pad("Artist"), pad("Album"), "1999",
          "ABCDEFGHIJKLMNOPQRSTUVWXYZ012"}},
        // "TAG" 50 bytes into the block of 127: the fields are cut from there, 127 - 53 in all.
        // This row's last byte and the next rows' lie past the list of genres.
        {moved + "!", {"Somewhere" + QString(21, 'x'), QString(30, 'x'), QString(14, 'x'), "", ""}},
        // Fewer than 128 bytes: what lies before the last byte is searched.
        {"xxTAGShort one!", {"Short one", "", "", "", ""}},
        {QByteArray(400, 'x'), {"", "", "", "", ""}},
    };
    int row = 0;
    for (const auto& c : cases) {
        const QString title = QStringLiteral("S%1").arg(row);
        write(title + ".mp3", c.bytes);  // lower case: found without regard to case
        queue({title}, dir.path() + "/");
        EXPECT_TRUE(load(row));
        EXPECT_EQ(QStringList({f.txtTitle.Text(), f.txtArtist.Text(), f.txtAlbum.Text(), f.txtYear.Text(),
                               f.txtComment.Text()}),
                  c.fields)
            << row;
        ++row;
    }
    EXPECT_EQ(f.cboGenre.ListIndex(), 2) << "a genre number past the list leaves the selection";
    EXPECT_EQ(M().MiniTitleText, QString("S3 -  -    ").repeated(4))
        << "the row text stands in for the title";
}

TEST_F(SongLoading, AFailedOpenAsksUntilYesOpensItAgainWithoutTheWavNameAndNoGivesUp) {
    Form1& f = form1();
    queue({"A"});
    f.mnuMP3ToWav.setChecked(true);
    tc.mp3.failOpen("/m/A.MP3", 2);
    tc.dialogs.answer(MsgResult::Yes).answer(MsgResult::Yes);
    EXPECT_TRUE(load(0));
    EXPECT_EQ(tc.dialogs.texts(), QStringList(2, "Open failed on /m/A.MP3 Retry?"));
    EXPECT_EQ(tc.mp3.calls().filter("Open"),
              QStringList({"Open(/m/A.MP3,/m/A.WAV)", "Open(/m/A.MP3,)", "Open(/m/A.MP3,)"}))
        << "a retry plays the song instead of decoding it";

    // Through Play, a refused song leaves the machine idle.
    f.mnuMP3ToWav.setChecked(false);
    tc.mp3.failOpen("/m/A.MP3", -1);
    tc.dialogs.clear();
    tc.dialogs.answer(MsgResult::No).answer(MsgResult::No);  // the row's click loads it, then Play
    play();
    EXPECT_EQ(tc.dialogs.shown().size(), 2u);
    EXPECT_EQ(transport(), "idle");

    // A missing file: No ends a fade's bookkeeping, and the file is never created.
    f.txtTitle.setText("old");
    queue({"Gone"}, dir.path() + "/");
    tc.mp3.failOpen(path("Gone.MP3"));
    tc.dialogs.clear();
    tc.dialogs.answer(MsgResult::No);
    f.Fading = true;
    EXPECT_FALSE(load(1));
    EXPECT_EQ(QDir(dir.path()).entryList(QDir::Files).filter("gone", Qt::CaseInsensitive), QStringList());
    EXPECT_EQ(f.txtTitle.Text(), "");
    EXPECT_FALSE(f.Fading);
}

// The main window's photo and the mini player's each try the folder's name, then the song's,
// as GIF, BMP and JPG; the last that loads wins. The two known widths (the square one shows its
// frames) stay, any other takes the chosen width.
TEST_F(SongLoading, PhotosAreTriedInTurnAndTheLastThatLoadsIsSizedToItsFrame) {
    Form1& f = form1();
    queue({"Song"}, "/music/Blues/");
    tc.pictures.add("/music/Blues/Blues.JPG", 231, 40);
    tc.pictures.add("/music/Blues/Song.bmp", 128, 128);
    tc.pictures.addInvalid("/music/Blues/Song.JPG");
    f.PhotoWidth = 3465;
    EXPECT_TRUE(load(0));
    const QStringList tries = {"load(/music/Blues/Blues.GIF)", "load(/music/Blues/Blues.BMP)",
                               "load(/music/Blues/Blues.JPG)", "load(/music/Blues/Song.GIF)",
                               "load(/music/Blues/Song.BMP)",  "load(/music/Blues/Song.JPG)"};
    EXPECT_EQ(tc.pictures.calls(), tries + tries);
    EXPECT_EQ(f.Photo.picture().source(), "/music/Blues/Song.bmp");
    EXPECT_EQ(program().frmMiniPlayer.Photo.picture().source(), "/music/Blues/Song.bmp");
    const auto placed = [&] { return QList<int>({f.Photo.Width(), f.Photo.Height(), f.Photo.Left()}); };
    EXPECT_EQ(placed(), QList<int>({1920, 1920, 772})) << "the square frame: 1545 / 2 rounds to even";
    EXPECT_TRUE(f.Image8.Visible() && f.Image9.Visible());

    f.PhotoWidth = 3645;
    queue({"Other"});
    tc.pictures.add("/m/Other.JPG", 300, 128);
    EXPECT_TRUE(load(1));
    EXPECT_EQ(placed(), QList<int>({3645, 1920, -90})) << "any other width: the chosen one";
    EXPECT_FALSE(f.Image8.Visible() || f.Image9.Visible());
}

TEST_F(SongLoading, TheRunningTimeCountsFromTheSelectedRowRoundingAfterEachSong) {
    Form1& f = form1();
    queue({"A", "B", "C"});
    for (auto [t, len] : {std::pair{"B", 20.5f}, {"C", 3630.6f}})
        tc.mp3.addFile(QString("/m/") + t + ".MP3", 100, len);
    f.lstSongs.setListIndex(1);  // the click counts from its row
    EXPECT_EQ(f.lblTotTime.Caption(), "01:00:51") << "20.5 -> 20, then 3650.6 -> 3651";
    M().CurrentSong = 0;
    f.GetTotTime();
    EXPECT_EQ(tc.mp3.openFile(), "/m/A.MP3") << "left on the current song";
    f.lstSongs.Clear();
    f.GetTotTime();
    EXPECT_EQ(f.lblTotTime.Caption(), "");
}

}  // namespace
