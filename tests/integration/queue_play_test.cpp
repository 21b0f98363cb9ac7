// The program's queue played through the real player on the paced null output: each StreamEnd
// from the player's thread starts the next song, the whole-queue loop wraps, and Stop waits
// for the real end. Which song follows, the time text, the knob and the fade's ramp are the
// playback unit tests' matter.
#include <gtest/gtest.h>

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
        for (const char* name : {"One", "Two", "Three"})
            ASSERT_TRUE(makeMp3(dir.filePath(QString::fromLatin1(name) + ".MP3"), Mp3Recipe{}));
        start(dir.path());
        // Remember each song as its stream ends, before the handler decides what follows.
        Form1& f = program->form1;
        f.C.mp3.onStreamEnd = [this, &f] {
            ended << f.lstSongs.List(program->M.CurrentSong);
            f.MP3_StreamEnd();
        };
    }
    void TearDown() override { program.reset(); }

    QTemporaryDir dir;
    QStringList ended;
};

TEST_F(QueuePlay, TheWholeQueueLoopPlaysInOrderAndWraps) {
    Form1& f = program->form1;
    Module1& m = program->M;
    // The directory's titles, queued with Add All in order.
    f.CurrentDir = dir.path() + u'/';
    f.GetTitles();
    f.cmdAddAll.Click();
    f.mnuOrdered.Click();
    ASSERT_EQ(f.lstSongs.rows(), QStringList({"One", "Three", "Two"}));
    f.mnuLoopSongSet.Click();
    for (int i = 0; i < 10; ++i) f.cmdSpeedUp.Click();  // twice as fast: the test takes half the time
    f.lstSongs.setListIndex(0);
    f.BtnPlay.MouseUp(LeftButton, 0, 0, 0);

    loop.waitUntil([&] { return ended.size() >= 3 && m.SongPlaying; });
    EXPECT_EQ(ended, QStringList({"One", "Three", "Two"}));
    EXPECT_EQ(m.CurrentSong, 0) << "the queue wraps to its first row";
    EXPECT_EQ(f.Caption(), "One");
    f.BtnStop.MouseUp(LeftButton, 0, 0, 0);
    EXPECT_FALSE(m.SongPlaying);
    EXPECT_EQ(ended.size(), 4);
}

}  // namespace
