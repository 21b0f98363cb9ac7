// The program's queue played through the real player on the paced null output: the order of
// songs with the whole-queue loop, the time text and knob as frames arrive, and a fade's ramp.
#include <gtest/gtest.h>

#include <QDir>
#include <QTemporaryDir>

#include "fixtures/Mp3Fixtures.h"
#include "fixtures/RealPlayerProgram.h"

using namespace sonarium;
using namespace sonarium::fixtures;

namespace {

class QueuePlay : public ::testing::Test, public RealPlayerProgram<> {
protected:
    QueuePlay() : RealPlayerProgram(std::chrono::seconds(30)) {}

    void SetUp() override {
        ASSERT_TRUE(dir.isValid());
        Mp3Recipe recipe;
        recipe.seconds = 3.0;  // enough frames for the knob's 176 steps to be a frame or more
        for (const char* name : {"One", "Two", "Three"})
            ASSERT_TRUE(makeMp3(dir.filePath(QString::fromLatin1(name) + ".MP3"), recipe));
        start(dir.path());
        // Remember each song as its stream ends, before the handler decides what follows.
        Form1& f = program->form1;
        f.C.mp3.onStreamEnd = [this, &f] {
            ended << f.lstSongs.List(program->M.CurrentSong);
            f.MP3_StreamEnd();
        };
    }
    void TearDown() override { program.reset(); }

    // The directory's titles, queued with Add All.
    void queueAll() {
        Form1& f = program->form1;
        f.CurrentDir = dir.path() + u'/';
        f.GetTitles();
        f.cmdAddAll.Click();
        f.mnuOrdered.Click();
    }

    QTemporaryDir dir;
    QStringList ended;
};

TEST_F(QueuePlay, TheWholeQueueLoopPlaysInOrderAndWraps) {
    Form1& f = program->form1;
    Module1& m = program->M;
    queueAll();
    ASSERT_EQ(f.lstSongs.rows(), QStringList({"One", "Three", "Two"}));
    f.mnuLoopSongSet.Click();
    ASSERT_EQ(m.LoopMode, 1);
    for (int i = 0; i < 10; ++i) f.cmdSpeedUp.Click();  // twice as fast: the test takes half the time
    f.lstSongs.setListIndex(0);
    f.BtnPlay.MouseUp(LeftButton, 0, 0, 0);

    // Watch the first song's display as its frames come.
    QString timeText;
    int knob = 0;
    loop.waitUntil([&] {
        if (f.LastFrame >= 64) timeText = f.lblTime.Caption(), knob = f.imgButtonSong.Left();
        return f.LastFrame >= 64;
    });
    EXPECT_EQ(timeText, f.SongLengthText + " / 00:02") << "frame 64 at 38 frames a second";
    EXPECT_EQ(f.SongLengthText, "00:03");
    EXPECT_GT(knob, 3705);

    loop.waitUntil([&] { return ended.size() >= 3 && m.SongPlaying; });
    EXPECT_EQ(ended, QStringList({"One", "Three", "Two"}));
    EXPECT_EQ(m.CurrentSong, 0) << "the queue wraps to its first row";
    EXPECT_EQ(f.Caption(), "One");
    f.BtnStop.MouseUp(LeftButton, 0, 0, 0);
    EXPECT_FALSE(m.SongPlaying);
    EXPECT_EQ(f.imgButtonSong.Left(), 3705);
    EXPECT_EQ(ended.size(), 4);
}

TEST_F(QueuePlay, AFadeRampsTheVolumeDownAndTheEndRestoresIt) {
    Form1& f = program->form1;
    Module1& m = program->M;
    queueAll();
    // The volume of each tick, and the sound's peak before the fade and late in it.
    std::vector<int> ramp;
    std::int32_t peakBefore = 0, peakLate = 0;
    f.Timer1.onTimer = [&] {
        f.Timer1_Timer();
        ramp.push_back(m.Volume);
        if (m.Volume == 11) level.takeReading();
        if (m.Volume == 3) peakLate = level.takeReading();
    };
    f.lstSongs.setListIndex(0);
    f.BtnPlay.MouseUp(LeftButton, 0, 0, 0);
    loop.waitUntil([&] { return f.LastFrame >= 32; });
    level.takeReading();
    loop.runFor(200);
    peakBefore = level.takeReading();
    f.BtnFade.MouseUp(LeftButton, 0, 0, 0);
    loop.waitUntil([&] { return !m.SongPlaying; });

    std::vector<int> expected;
    for (int v = 33; v >= 1; v -= 2) expected.push_back(v);
    expected.push_back(0);
    EXPECT_EQ(ramp, expected);
    EXPECT_EQ(ended, QStringList({"One"})) << "a fade ends the run";
    EXPECT_EQ(m.Volume, 35);
    EXPECT_EQ(f.SavedVolume, 35);
    EXPECT_FALSE(f.Timer1.Enabled());
    EXPECT_GT(peakBefore, 0);
    EXPECT_LT(peakLate, peakBefore / 4) << "the sound itself falls with the volume";
}

}  // namespace
