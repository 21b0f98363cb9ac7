// The fade's ramp and its end, the time text and knob from frame notifications, the knob's
// seek, the speed buttons, and the alarm's firing rule.
#include "PlaybackFixture.h"

using namespace sonarium;

namespace {

using Fade = PlaybackFixture;

TEST_F(Fade, RampsTwoPointsATickStopsBeforeTheLastVolumeComesBackAndOutlivesAStop) {
    queue({"A", "B"});
    play();
    tc.loop.advance(200);
    tc.mp3.clearCalls();
    fade();
    tc.loop.advance(1700);
    EXPECT_EQ(transport(), "playing A fading") << "17 ticks from 35";
    tc.loop.advance(100);  // 1.8 s: the 18th tick stops the song
    QStringList ramp;
    for (int v = 33; v >= 1; v -= 2) ramp << QStringLiteral("SetVolume(%1,%1)").arg(v);
    EXPECT_EQ(tc.mp3.calls(),
              ramp + QStringList({"Stop", "SetVolume(0,0)", "event StreamEnd", "Close", "SetVolume(35,35)"}));
    EXPECT_EQ(transport(), "idle");
    EXPECT_EQ(M().CurrentSong, 0) << "a fade ends the queue's run";

    // A stop during the fade brings the volume back and leaves the timer to run it down.
    play();
    fade();
    tc.loop.advance(500);
    stop();
    EXPECT_EQ(M().Volume, 35);
    tc.mp3.clearCalls();
    tc.loop.advance(1800);
    EXPECT_EQ(M().Volume, 0);
    EXPECT_FALSE(form1().Timer1.Enabled());
    EXPECT_EQ(tc.mp3.calls().filter("Stop"), QStringList({"Stop"})) << "a Stop on the idle player";
}

TEST_F(PlaybackFixture, TimeTextAndKnobFollowTheFramesTheKnobSeeksAndTheSpeedHasNoLimits) {
    queue({"Long"});
    tc.mp3.addFile("/m/Long.MP3", 17600, 460.0f);  // 38 frames a second, 100 frames a knob step
    Form1& f = form1();
    play();
    f.FrameNotify(2508);  // 66 s
    EXPECT_EQ(f.lblTime.Caption(), f.SongLengthText + " / 01:06");
    EXPECT_EQ(f.imgButtonSong.Left(), 25 * 15 + 3705);
    f.FrameNotify(1000);  // a jump backward: the knob follows
    EXPECT_EQ(f.imgButtonSong.Left(), 10 * 15 + 3705);

    // The drop seeks to its step; far past the end clamps to the last step.
    f.imgButtonSong.MouseDown(LeftButton, 0, 0, 0);
    f.imgButtonSong.MouseMove(LeftButton, 0, 99999, 0);
    tc.mp3.clearCalls();
    f.imgButtonSong.MouseUp(LeftButton, 0, 0, 0);
    EXPECT_EQ(tc.mp3.calls(), QStringList({"SeekFrame(17600)"}));

    // Too few frames for a step: the knob stays, the time still shows.
    f.TotalFrames = 88;
    f.FrameNotify(76);
    EXPECT_EQ(f.imgButtonSong.Left(), 17600 / 100 * 15 + 3705);
    EXPECT_EQ(f.lblTime.Caption(), f.SongLengthText + " / 00:02");

    // A song under a second keeps the frame rate of the song before.
    queue({"Short"});
    tc.mp3.addFile("/m/Short.MP3", 12, 0.3f);
    f.lstSongs.setListIndex(1);
    EXPECT_EQ(f.SongLength, 0);
    EXPECT_EQ(f.FramesPerSecond, 38);

    for (int i = 0; i < 10; ++i) f.cmdSpeedDown.Click();
    for (int i = 0; i < 31; ++i) f.cmdSpeedUp.Click();
    EXPECT_EQ(f.lblSpeed.Caption(), "205");
    EXPECT_EQ(tc.mp3.calls().last(), "SetSpeed(-5)");
}

TEST_F(PlaybackFixture, TheAlarmFiresOncePerMatchingMinuteWhenNothingPlays) {
    queue({"A"});
    Form1& f = form1();
    tc.loop.setWallClock(QDateTime(QDate(2026, 11, 23), QTime(6, 59, 58)));
    M().AlarmTime = "07:00";
    f.mnuAlarmOnOff.Click();
    tc.loop.advance(5000);  // 07:00:03
    EXPECT_EQ(transport(), "playing A");
    stop();
    tc.loop.advance(5000);
    EXPECT_EQ(transport(), "idle") << "no second firing in the same minute";
    tc.loop.advance(55000);  // 07:01
    EXPECT_FALSE(f.AlarmDone);

    // OK without a selection gives "00:00"; one list unset gives a time never matched.
    f.cmdSetTimeOK.Click();
    EXPECT_EQ(M().AlarmTime, "00:00");
    f.lstHour.setListIndex(24);
    f.cmdSetTimeOK.Click();
    EXPECT_EQ(M().AlarmTime, "24:");
}

}  // namespace
