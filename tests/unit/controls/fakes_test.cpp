// The contracts of the fakes that the logic's tests build on: when a fake player's
// notifications come, that StreamEnd comes exactly once per run (also for a run that Close or
// another Open ended) and never without a run, and that scripted
// dialogs answer in order, record what was shown and fail loudly on a question nobody
// expected.
#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>

#include "TestComponents.h"
#include "controls/Menu.h"

namespace sonarium {
namespace {

class FakePlayerTest : public ::testing::Test {
protected:
    void SetUp() override {
        tc.mp3.addFile("/m/a.mp3", 100, 2.6f);
        tc.mp3.addFile("/m/b.mp3", 50, 1.3f);
        tc.mp3.onFrameNotify = [this](std::int32_t f) { events << QStringLiteral("frame %1@%2").arg(f).arg(tc.loop.now()); };
        tc.mp3.onStreamEnd = [this] { events << QStringLiteral("end@%1").arg(tc.loop.now()); };
    }
    TestComponents tc;
    QStringList events;
};

TEST_F(FakePlayerTest, NotifiesEveryIntervalAtTheFrameDurationThenEndsOnce) {
    ASSERT_EQ(tc.mp3.Open("/M/A.MP3", ""), 0);  // found without regard to case
    tc.mp3.setNotifyInterval(32);
    tc.mp3.Play();
    tc.loop.advance(10000);
    EXPECT_EQ(events, QStringList({"frame 32@832", "frame 64@1664", "frame 96@2496", "end@2600"}));

    // Pause freezes the position; a resume goes on from there. Speed 50 halves the frame time.
    events.clear();
    tc.mp3.Open("/m/a.mp3", "");
    tc.mp3.setNotifyInterval(1);
    tc.mp3.SetSpeed(50);
    tc.mp3.Play();
    tc.loop.advance(26);
    tc.mp3.Pause();
    tc.loop.advance(1000);
    EXPECT_EQ(tc.mp3.position(), 2);
    tc.mp3.Play();
    tc.loop.advance(13);
    EXPECT_EQ(events.last(), QStringLiteral("frame 3@%1").arg(tc.loop.now()));
    EXPECT_EQ(tc.mp3.calls().mid(tc.mp3.calls().indexOf("Open(/m/a.mp3,)")),
              QStringList({"Open(/m/a.mp3,)", "NotifyInterval(1)", "SetSpeed(50)", "Play", "Pause", "Play"}));
}

TEST_F(FakePlayerTest, StopBringsExactlyOneStreamEndAfterItReturns) {
    tc.mp3.Open("/m/a.mp3", "");
    tc.mp3.Play();
    tc.loop.advance(100);
    tc.mp3.Stop();
    EXPECT_TRUE(events.isEmpty());  // not inside Stop
    tc.mp3.Stop();                  // a second Stop of the same run adds nothing
    tc.loop.advance(10000);
    EXPECT_EQ(events, QStringList({"end@100"}));

    // The fake keeps the player's StreamEnd rule (tested on its own): a song loaded and never
    // started ends with Stop; Close raises nothing; a queued end is dropped by the next Open.
    events.clear();
    tc.mp3.Open("/m/b.mp3", "");
    tc.mp3.Stop();
    tc.loop.runUntilIdle();
    EXPECT_EQ(events, QStringList({QStringLiteral("end@%1").arg(tc.loop.now())}));
    events.clear();
    tc.mp3.Play();
    tc.mp3.Close();
    tc.mp3.Open("/m/a.mp3", "");
    tc.mp3.Play();
    tc.mp3.Stop();
    tc.mp3.Open("/m/b.mp3", "");
    tc.loop.runUntilIdle();
    EXPECT_TRUE(events.isEmpty());
    tc.mp3.Open("/m/a.mp3", "");

    // A PlayRange over a running run ends that one first.
    events.clear();
    tc.mp3.Play();
    tc.loop.advance(26);
    tc.mp3.PlayRange(98, 100);
    tc.loop.advance(1000);
    EXPECT_EQ(events, QStringList({QStringLiteral("end@%1").arg(tc.loop.now() - 1000),
                                   QStringLiteral("end@%1").arg(tc.loop.now() - 1000 + 52)}));
}

TEST_F(FakePlayerTest, OpenFailuresAndTagWrites) {
    EXPECT_NE(tc.mp3.Open("/m/missing.mp3", ""), 0);
    tc.mp3.failOpen("/m/a.mp3", 1, 5);
    EXPECT_EQ(tc.mp3.Open("/m/a.mp3", ""), 5);
    EXPECT_EQ(tc.mp3.Open("/m/a.mp3", "/m/a.WAV"), 0);  // only the first open failed
    EXPECT_EQ(tc.mp3.wavFile(), "/m/a.WAV");

    tc.mp3.SetTagGenre(17);
    tc.mp3.Close();
    tc.mp3.WriteTag();  // after Close, into the file of the last Open
    EXPECT_EQ(tc.mp3.tagOf("/m/a.mp3").genre, 17);
    EXPECT_EQ(tc.mp3.calls().mid(3), QStringList({"SetTagGenre(17)", "Close", "WriteTag"}));
}

TEST(ScriptedDialogsTest, AnswersInOrderRecordsWhatWasShownAndFailsOnTheUnexpected) {
    ScriptedDialogs d;
    MenuItem loop("mnuLoop", "Loop");
    MenuItem set("mnuLoopSongSet", "Loop Song &Set", &loop);
    MenuItem hidden("mnuHidden", "Hidden", &loop);
    hidden.setVisible(false);
    d.answer(MsgResult::No).answerInput("Blues").answerPopup("mnuLoopSongSet");

    EXPECT_EQ(d.msgBox("Open failed on /m/a.MP3 Retry?", MsgButtons::YesNo, MsgIcon::None, "Open"), MsgResult::No);
    EXPECT_EQ(d.inputBox("Name?", "Set", "x"), "Blues");
    EXPECT_EQ(d.popupMenu(loop), &set);
    ASSERT_EQ(d.shown().size(), 3u);
    EXPECT_EQ(d.shown()[0].title, "Open");
    EXPECT_EQ(d.shown()[0].buttons, MsgButtons::YesNo);
    EXPECT_EQ(d.shown()[2].entries, QStringList({"mnuLoopSongSet"}));

    // Nothing scripted: the test fails with the dialog's text, and the box is cancelled.
    MsgResult r{};
    EXPECT_NONFATAL_FAILURE(r = d.msgBox("Overwrite?", MsgButtons::YesNoCancel, MsgIcon::Question, "T"),
                            "Overwrite?");
    EXPECT_EQ(r, MsgResult::Cancel);
    // An answer of the wrong kind, or one that is not a button of the box, fails too.
    d.answerFile("/x.mdb");
    EXPECT_NONFATAL_FAILURE(d.inputBox("Title?", "", ""), "Title?");
    d.clear();
    d.answer(MsgResult::Yes);
    EXPECT_NONFATAL_FAILURE(EXPECT_EQ(d.msgBox("Done", MsgButtons::OK, MsgIcon::Information, ""), MsgResult::OK),
                            "not a button");
    d.setAutoAnswerOk(true);
    EXPECT_EQ(d.msgBox("Encoding complete....", MsgButtons::OK, MsgIcon::Information, "Ecoding"), MsgResult::OK);
    EXPECT_EQ(d.texts(), QStringList({"Done", "Encoding complete...."}));
}

}  // namespace
}  // namespace sonarium
