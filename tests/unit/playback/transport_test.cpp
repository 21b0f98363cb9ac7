// The transport's states and their pictures, the nesting of StreamEnd inside the waits, the
// dead ends of a paused song, and what follows a song by the loop mode and "Stop After Song".
#include "PlaybackFixture.h"

using namespace sonarium;

namespace {

using Transport = PlaybackFixture;

TEST_F(Transport, ThePlayPauseStopCycleWalksTheStateTable) {
    queue({"A", "B"});
    Form1& f = form1();

    f.BtnPlay.MouseDown(LeftButton, 0, 0, 0);
    EXPECT_TRUE(shows(f.BtnPlay, 2));
    play();  // Idle -> Playing
    EXPECT_TRUE(M().SongPlaying);
    EXPECT_EQ(tc.mp3.state(), FakePlayer::State::Playing);
    EXPECT_EQ(tc.mp3.openFile(), "/m/A.MP3");
    EXPECT_TRUE(shows(f.BtnPlay, 24));
    EXPECT_TRUE(shows(f.imgMS, 18)) << "a stereo file";
    EXPECT_TRUE(f.Ball.picture().sameAs(f.imgGreenBall.picture()));
    EXPECT_FALSE(f.cmdShuffle.Visible());
    EXPECT_TRUE(f.TimerMix.Enabled());
    EXPECT_EQ(f.Caption(), "A");
    EXPECT_EQ(f.SavedVolume, 35);
    EXPECT_TRUE(tc.mp3.calls().contains("SetVolume(35,35)"));

    tc.mp3.clearCalls();
    play();  // Playing: the picture only
    EXPECT_TRUE(shows(f.BtnPlay, 1));
    EXPECT_TRUE(tc.mp3.calls().isEmpty());

    f.BtnPause.MouseDown(LeftButton, 0, 0, 0);
    EXPECT_TRUE(shows(f.BtnPause, 8));
    pause();  // Playing -> Paused
    EXPECT_TRUE(M().SongPaused);
    EXPECT_TRUE(shows(f.BtnPause, 9));
    EXPECT_EQ(tc.mp3.calls(), QStringList({"Pause"}));
    f.BtnPause.MouseDown(LeftButton, 0, 0, 0);
    EXPECT_TRUE(shows(f.BtnPause, 10));

    // Paused: Play, Stop and Fade do nothing, not even their pressed pictures.
    tc.mp3.clearCalls();
    f.BtnStop.setPicture(Picture());
    f.BtnStop.MouseDown(LeftButton, 0, 0, 0);
    stop();
    f.BtnFade.MouseUp(LeftButton, 0, 0, 0);
    play();
    EXPECT_TRUE(f.BtnStop.picture().isNull());
    EXPECT_TRUE(tc.mp3.calls().isEmpty());
    EXPECT_FALSE(f.Fading);
    EXPECT_FALSE(f.StopRequested);
    EXPECT_TRUE(M().SongPlaying && M().SongPaused);

    pause();  // Paused -> Playing
    EXPECT_FALSE(M().SongPaused);
    EXPECT_TRUE(shows(f.BtnPause, 7));
    EXPECT_EQ(tc.mp3.calls(), QStringList({"Play"}));

    tc.loop.advance(1000);
    stop();  // Playing -> Stopping -> Idle, within the handler
    EXPECT_FALSE(M().SongPlaying);
    EXPECT_FALSE(f.StopRequested) << "cleared by the end of the stream";
    EXPECT_TRUE(shows(f.BtnStop, 3));
    EXPECT_TRUE(shows(f.BtnPlay, 1));
    EXPECT_TRUE(f.Ball.picture().sameAs(f.imgRedBall.picture()));
    EXPECT_TRUE(f.cmdShuffle.Visible());
    EXPECT_TRUE(f.imgMS.picture().isNull());
    EXPECT_FALSE(f.TimerMix.Enabled());
    EXPECT_EQ(f.imgButtonSong.Left(), 3705);
    EXPECT_EQ(M().CurrentSong, 0) << "a stopped song is followed by none";
    EXPECT_EQ(tc.mp3.state(), FakePlayer::State::Closed);
    tc.loop.advance(10 * SongMs);
    EXPECT_FALSE(M().SongPlaying);
}

TEST_F(Transport, FadeMarksTheSongAsEndingAndItsEndRestoresTheVolume) {
    queue({"A", "B"});
    Form1& f = form1();
    f.BtnFade.MouseDown(LeftButton, 0, 0, 0);
    EXPECT_TRUE(f.BtnFade.picture().isNull()) << "nothing plays";
    f.BtnFade.MouseUp(LeftButton, 0, 0, 0);
    EXPECT_FALSE(f.Fading);

    play();
    f.BtnFade.MouseDown(LeftButton, 0, 0, 0);
    EXPECT_TRUE(shows(f.BtnFade, 6));
    f.BtnFade.MouseUp(LeftButton, 0, 0, 0);
    EXPECT_TRUE(shows(f.BtnFade, 5));
    EXPECT_TRUE(f.Fading && f.StopRequested);
    M().Volume = 12;  // as the fade leaves it
    tc.loop.advance(SongMs + 10);
    EXPECT_FALSE(M().SongPlaying);
    EXPECT_FALSE(f.Fading);
    EXPECT_EQ(M().Volume, 35);
    EXPECT_EQ(tc.mp3.calls().last(), "SetVolume(35,35)");
    EXPECT_EQ(f.SLiderVolume.Top(), 802) << "(100 - 35) * 8.1 + 275";
    EXPECT_EQ(M().CurrentSong, 0) << "a fade ends the chain";
}

TEST_F(Transport, StreamEndRunsInsideTheStopWaitAndTheNextPlayInsideStreamEnd) {
    queue({"A", "B", "C"});
    Form1& f = form1();
    tc.loop.enableTrace(true);
    auto streamEnd = tc.mp3.onStreamEnd;
    tc.mp3.onStreamEnd = [&] {
        TraceScope scope(tc.loop, "StreamEnd");
        const int plays = count("Play");
        streamEnd();
        tc.loop.traceNote(
            QStringLiteral("started %1, playing %2").arg(count("Play") - plays).arg(M().SongPlaying));
    };
    auto stopUp = f.BtnStop.onMouseUp;
    f.BtnStop.onMouseUp = [&](int b, int s, double x, double y) {
        TraceScope scope(tc.loop, "Stop");
        stopUp(b, s, x, y);
    };
    auto click = f.lstSongs.onClick;
    f.lstSongs.onClick = [&] {
        TraceScope scope(tc.loop, QStringLiteral("click %1").arg(f.lstSongs.ListIndex()));
        click();
    };

    play();  // selects row 0 itself
    tc.loop.advance(SongMs + 10);
    EXPECT_EQ(tc.mp3.openFile(), "/m/B.MP3");
    stop();
    EXPECT_EQ(tc.loop.trace(), QStringList({"enter click 0", "exit click 0", "enter StreamEnd",
                                            "  enter click 1", "  exit click 1", "  started 1, playing 1",
                                            "exit StreamEnd", "enter Stop", "  enter StreamEnd",
                                            "    started 0, playing 0", "  exit StreamEnd", "exit Stop"}));
    EXPECT_EQ(M().CurrentSong, 1);
}

struct FollowCase {
    int row;
    int loopMode;
    bool stopAfter;
    int nextSong;
    bool playing;
    const char* open;  // the file the player holds afterwards
};

class WhatFollows : public PlaybackFixture, public testing::WithParamInterface<FollowCase> {};

TEST_P(WhatFollows, TheRowTheLoopModeAndStopAfterSongDecide) {
    const FollowCase& c = GetParam();
    queue({"A", "B", "C"});
    M().LoopMode = std::int16_t(c.loopMode);
    form1().mnuStopAfterSong.setChecked(c.stopAfter);
    form1().lstSongs.setListIndex(c.row);
    play();
    tc.loop.advance(SongMs + 10);
    EXPECT_EQ(M().CurrentSong, c.nextSong);
    EXPECT_EQ(form1().lstSongs.ListIndex(), c.nextSong);
    EXPECT_EQ(M().SongPlaying, c.playing);
    EXPECT_EQ(tc.mp3.openFile(), QString::fromLatin1(c.open));
    EXPECT_FALSE(form1().StopRequested);
    EXPECT_TRUE(tc.dialogs.shown().empty());
}

INSTANTIATE_TEST_SUITE_P(
    Rows, WhatFollows,
    testing::Values(FollowCase{0, 0, false, 1, true, "/m/B.MP3"},
                    FollowCase{0, 0, true, 1, false, "/m/B.MP3"},  // loaded and selected, not started
                    FollowCase{0, 1, false, 1, true, "/m/B.MP3"},
                    FollowCase{0, 2, false, 0, true, "/m/A.MP3"},
                    FollowCase{0, 2, true, 0, false, ""},   // the same row again: no click, nothing loaded
                    FollowCase{2, 0, false, 2, false, ""},  // the last row ends the queue
                    FollowCase{2, 1, false, 0, true, "/m/A.MP3"},  // wraps
                    FollowCase{2, 1, true, 0, true,
                               "/m/A.MP3"},  // Stop After Song is not looked at in the last row
                    FollowCase{2, 2, true, 2, true, "/m/C.MP3"}));

TEST_F(Transport, AQueueEmptiedDuringPlayEndsQuietlyOrAsksForSongsWhenLooping) {
    queue({"A", "B"});
    play();
    form1().lstSongs.Clear();
    tc.loop.advance(SongMs + 10);
    EXPECT_FALSE(M().SongPlaying);
    EXPECT_TRUE(tc.dialogs.shown().empty());

    queue({"A"});
    play();
    M().LoopMode = 1;
    form1().lstSongs.Clear();
    tc.dialogs.setAutoAnswerOk(true);
    form1().PanelDatabase.setVisible(false);
    tc.loop.advance(SongMs + 10);
    ASSERT_EQ(tc.dialogs.shown().size(), 1u);
    const auto& msg = tc.dialogs.shown()[0];
    EXPECT_EQ(msg.text, "Nothing in song queue - Click on a song title to add it to the song queue");
    EXPECT_EQ(msg.title, "Play");
    EXPECT_EQ(msg.icon, MsgIcon::Information);
    EXPECT_FALSE(M().SongPlaying);

    form1().PanelDatabase.setVisible(true);
    play();
    EXPECT_EQ(tc.dialogs.shown().back().text,
              "Nothing in song queue - Select a title in the database, and click the 'Add to queue' button");
}

TEST_F(Transport, AClickOnARowSwitchesAtOnceWhilePlayingAndOnlyReloadsWhilePaused) {
    queue({"A", "B", "C"});
    play();
    tc.loop.advance(500);
    form1().lstSongs.setListIndex(2);
    EXPECT_EQ(M().CurrentSong, 2);
    EXPECT_TRUE(M().SongPlaying);
    EXPECT_EQ(tc.mp3.openFile(), "/m/C.MP3");
    EXPECT_EQ(tc.mp3.state(), FakePlayer::State::Playing);
    EXPECT_EQ(form1().Caption(), "C");

    pause();
    tc.mp3.clearCalls();
    form1().lstSongs.setListIndex(0);  // Stop and Play do nothing; the file is replaced
    EXPECT_FALSE(tc.mp3.calls().contains("Stop"));
    EXPECT_FALSE(tc.mp3.calls().contains("Play"));
    EXPECT_EQ(tc.mp3.openFile(), "/m/A.MP3");
    EXPECT_TRUE(M().SongPlaying && M().SongPaused);
    pause();  // the new song plays from its start
    EXPECT_EQ(tc.mp3.state(), FakePlayer::State::Playing);
    EXPECT_EQ(tc.mp3.position(), 0);
}

TEST_F(Transport, ClosingWhilePausedWaitsUntilTheSongIsResumedAndEnds) {
    queue({"A"});
    play();
    pause();
    bool savedWhilePaused = true;
    tc.loop.startTimer(
        5000,
        [&] {
            savedWhilePaused = QFile::exists(path("Config.dat"));
            pause();  // the user resumes
        },
        true);
    form1().QueryUnload();
    EXPECT_FALSE(savedWhilePaused);
    EXPECT_TRUE(QFile::exists(path("Config.dat")));
    EXPECT_GE(tc.loop.now(), 5000 + SongMs);
    EXPECT_EQ(tc.desktop.quitCode(), 0);
}

TEST_F(Transport, TheLoopPopupSetsTheModeAndStopAfterSongToggles) {
    Form1& f = form1();
    tc.dialogs.answerPopup("mnuLoopSong")
        .answerPopup("mnuLoopSongSet")
        .answerPopup("mnuLoopOff")
        .answerPopup("");
    f.chkLoop.Click();
    EXPECT_EQ(M().LoopMode, 2);
    EXPECT_TRUE(f.mnuLoopSong.Checked());
    EXPECT_FALSE(f.mnuLoopSongSet.Checked());
    EXPECT_TRUE(f.chkLoop.picture().sameAs(f.imgGreenBall.picture()));
    f.chkLoop.Click();
    EXPECT_EQ(M().LoopMode, 1);
    EXPECT_TRUE(f.mnuLoopSongSet.Checked());
    EXPECT_FALSE(f.mnuLoopSong.Checked());
    f.chkLoop.Click();
    EXPECT_EQ(M().LoopMode, 0);
    EXPECT_FALSE(f.mnuLoopSongSet.Checked() || f.mnuLoopSong.Checked());
    EXPECT_TRUE(f.chkLoop.picture().sameAs(f.imgRedBall.picture()));
    f.chkLoop.Click();  // dismissed
    EXPECT_EQ(M().LoopMode, 0);
    EXPECT_EQ(tc.dialogs.shown()[0].entries, QStringList({"mnuLoopSongSet", "mnuLoopSong", "mnuLoopOff",
                                                          "mnuLoopSep1", "mnuStopAfterSong"}));

    f.mnuStopAfterSong.Click();
    EXPECT_TRUE(f.mnuStopAfterSong.Checked());
    f.mnuStopAfterSong.Click();
    EXPECT_FALSE(f.mnuStopAfterSong.Checked());
}

}  // namespace
