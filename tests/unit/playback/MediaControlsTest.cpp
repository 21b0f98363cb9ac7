// The desktop's media controls: each command lands in the transport's handler the button would
// run, only where that handler would act; what the desktop reads of the loaded song; the
// volume as the slider sets it; commands that arrive while another one or the close waits.
#include <QUrl>
#include <cmath>

#include "PlaybackFixture.h"
#include "playback/MediaControls.h"

using namespace sonarium;

namespace {

class MediaControlsTest : public PlaybackFixture {
protected:
    MediaControls& controls() {
        if (!mc) mc = std::make_unique<MediaControls>(form1());
        return *mc;
    }
    std::unique_ptr<MediaControls> mc;
};

TEST_F(MediaControlsTest, CommandsWalkTheTransportOnlyWhereItsButtonsWouldAct) {
    queue({"A", "B", "C"});
    Form1& f = form1();
    MediaControls& mc = controls();
    EXPECT_EQ(mc.status(), "Stopped");
    EXPECT_TRUE(mc.canPlay() && mc.canGoNext());
    EXPECT_FALSE(mc.canPause() || mc.canGoPrevious());

    tc.mp3.clearCalls();
    mc.pause();
    mc.stop();
    EXPECT_TRUE(tc.mp3.calls().isEmpty()) << "nothing plays: Pause and Stop leave the player alone";

    mc.playPause();  // starts the first row
    EXPECT_EQ(mc.status(), "Playing");
    EXPECT_EQ(tc.mp3.openFile(), "/m/A.MP3");
    EXPECT_EQ(f.lstSongs.ListIndex(), 0);
    tc.mp3.clearCalls();
    mc.play();
    EXPECT_TRUE(shows(f.BtnPlay, 24)) << "a playing song is left alone, picture and all";
    EXPECT_TRUE(tc.mp3.calls().isEmpty());

    mc.playPause();
    EXPECT_EQ(mc.status(), "Paused");
    EXPECT_TRUE(shows(f.BtnPause, 9));
    mc.stop();  // a paused song is only resumed, as with the button
    EXPECT_EQ(mc.status(), "Paused");
    mc.play();  // resumes rather than restarting
    EXPECT_EQ(mc.status(), "Playing");
    EXPECT_EQ(tc.mp3.calls(), QStringList({"Pause", "Play"}));

    mc.next();  // switches at once during play
    mc.next();
    EXPECT_EQ(tc.mp3.openFile(), "/m/C.MP3");
    EXPECT_EQ(tc.mp3.state(), FakePlayer::State::Playing);
    EXPECT_FALSE(mc.canGoNext());
    mc.next();  // no wrap
    EXPECT_EQ(M().CurrentSong, 2);
    mc.previous();
    EXPECT_EQ(tc.mp3.openFile(), "/m/B.MP3");
    EXPECT_TRUE(M().SongPlaying);

    mc.stop();
    EXPECT_EQ(mc.status(), "Stopped");
    EXPECT_EQ(M().CurrentSong, 1) << "a stop is followed by no song";
    mc.previous();  // stopped: the row is loaded, not started
    EXPECT_EQ(tc.mp3.openFile(), "/m/A.MP3");
    EXPECT_EQ(tc.mp3.state(), FakePlayer::State::Ready);
    mc.previous();
    EXPECT_EQ(f.lstSongs.ListIndex(), 0);
    EXPECT_TRUE(tc.dialogs.shown().empty());
}

TEST_F(MediaControlsTest, TheSongIsTheLoadedRowsWithItsTagTrimmedAndItsFileAsFound) {
    MediaControls& mc = controls();
    EXPECT_EQ(mc.song().row, -1) << "nothing loaded yet";

    // A file on disk in another case than the row names, with a NUL-padded tag.
    QByteArray tag = "TAG" + QByteArray("Caf\xE9").leftJustified(30, '\0') +
                     QByteArray("The Artist").leftJustified(30, ' ') + QByteArray(30, ' ') + "1999" +
                     QByteArray(30, ' ') + char(1);
    write("Blue Monday.mp3", QByteArray(400, 'x') + tag);
    queue({"Blue Monday"}, dir.path() + "/");
    tc.mp3.addFile(dir.path() + "/Blue Monday.MP3", 7180, 187.4f);
    queue({"Untagged"});
    form1().lstSongs.setListIndex(0);

    SongInfo song = mc.song();
    EXPECT_EQ(song.row, 0);
    EXPECT_EQ(song.title, QString::fromUtf8("Café"));
    EXPECT_EQ(song.artist, "The Artist");
    EXPECT_EQ(song.album, "") << "a blank field is no album";
    EXPECT_EQ(song.url, "file://" + QString::fromLatin1(QUrl::toPercentEncoding(dir.path(), "/")) +
                            "/Blue%20Monday.mp3");
    EXPECT_EQ(song.lengthUs, 187'000'000);
    EXPECT_EQ(mc.positionUs(), 0) << "nothing plays";
    play();
    form1().LastFrame = 380;  // 38 frames a second
    EXPECT_EQ(mc.positionUs(), 10'000'000);

    form1().lstSongs.setListIndex(1);
    song = mc.song();
    EXPECT_EQ(song.title, "Untagged") << "the row's text stands in for a missing title";
    EXPECT_TRUE(song.artist.isEmpty());
    EXPECT_EQ(song.url, "file:///m/Untagged.MP3");

    form1().lstSongs.Clear();  // the loaded file belongs to no row now
    EXPECT_EQ(mc.song().row, -1);
}

TEST_F(MediaControlsTest, VolumeActsAsTheSliderAndKeepsAFadesSavedLevel) {
    queue({"A"});
    MediaControls& mc = controls();
    EXPECT_DOUBLE_EQ(mc.volume(), 0.35);
    mc.setVolume(0.504);
    EXPECT_EQ(M().Volume, 50);
    EXPECT_EQ(tc.mp3.calls().last(), "SetVolume(50,50)");
    EXPECT_EQ(form1().SLiderVolume.Top(), 680) << "(100 - 50) * 8.1 + 275";
    EXPECT_EQ(form1().SavedVolume, 50);
    mc.setVolume(7.0);
    EXPECT_EQ(M().Volume, 100);
    mc.setVolume(-0.5);
    EXPECT_EQ(M().Volume, 0);
    mc.setVolume(std::nan(""));
    EXPECT_EQ(M().Volume, 0) << "no number, no change";

    mc.setVolume(0.8);
    play();
    form1().BtnFade.MouseUp(LeftButton, 0, 0, 0);
    mc.setVolume(0.2);
    EXPECT_EQ(M().Volume, 20);
    tc.loop.advance(SongMs + 10);
    EXPECT_EQ(M().Volume, 80) << "the fade's end brings back the level from before it";
}

TEST_F(MediaControlsTest, ACommandDuringAnotherCommandsWaitOrTheClosesWaitStartsNothing) {
    queue({"A", "B", "C"});
    MediaControls& mc = controls();
    mc.play();
    tc.loop.post([&] { mc.next(); });  // runs inside Stop's wait for the end of the stream
    mc.stop();
    EXPECT_FALSE(M().SongPlaying);
    EXPECT_EQ(form1().lstSongs.ListIndex(), 0);

    // Closing waits for a paused song to end: resuming it is what lets the close go on.
    mc.play();
    mc.pause();
    int rowInClose = -2;
    tc.loop.startTimer(
        5000,
        [&] {
            mc.next();
            rowInClose = form1().lstSongs.ListIndex();
            mc.play();
        },
        true);
    form1().QueryUnload();
    EXPECT_EQ(rowInClose, 0);
    EXPECT_GE(tc.loop.now(), 5000 + SongMs);
    EXPECT_TRUE(QFile::exists(path("Config.dat")));
}

}  // namespace
