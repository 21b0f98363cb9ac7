// The contracts of the fakes that the logic's tests build on and that would let those tests
// pass wrongly if broken: when the fake player's notifications and its one StreamEnd per run
// come, and that scripted dialogs fail loudly on a question nobody expected.
#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>

#include "TestComponents.h"

namespace sonarium {
namespace {

TEST(FakePlayerTest, NotifiesEveryIntervalAtTheFrameDurationAndEndsEachRunOnceAfterStopReturns) {
    TestComponents tc;
    QStringList events;
    tc.mp3.addFile("/m/a.mp3", 100, 2.6f);
    tc.mp3.onFrameNotify = [&](std::int32_t f) {
        events << QStringLiteral("frame %1@%2").arg(f).arg(tc.loop.now());
    };
    tc.mp3.onStreamEnd = [&] { events << QStringLiteral("end@%1").arg(tc.loop.now()); };
    ASSERT_EQ(tc.mp3.Open("/M/A.MP3", ""), 0);  // found without regard to case
    tc.mp3.Play();
    tc.loop.advance(10000);
    EXPECT_EQ(events, QStringList({"frame 32@832", "frame 64@1664", "frame 96@2496", "end@2600"}));

    // Speed 50 halves the frame time; a pause holds the position.
    events.clear();
    tc.mp3.SetSpeed(50);
    tc.mp3.Play();
    tc.loop.advance(13 * 20);
    tc.mp3.Pause();
    tc.loop.advance(1000);
    EXPECT_EQ(tc.mp3.position(), 20);
    tc.mp3.Play();
    tc.loop.advance(13 * 5);
    tc.mp3.Stop();
    EXPECT_TRUE(events.isEmpty()) << "not inside Stop";
    tc.mp3.Stop();  // a second Stop of the same run adds nothing
    tc.loop.advance(10000);
    EXPECT_EQ(events, QStringList({QStringLiteral("end@%1").arg(10000 + 260 + 1000 + 65)}));
}

TEST(ScriptedDialogsTest, AnUnexpectedDialogOrAnAnswerThatIsNoButtonFailsTheTest) {
    ScriptedDialogs d;
    MsgResult r{};
    EXPECT_NONFATAL_FAILURE(r = d.msgBox("Overwrite?", MsgButtons::YesNoCancel, MsgIcon::Question, "T"),
                            "Overwrite?");
    EXPECT_EQ(r, MsgResult::Cancel);
    d.answerFile("/x.mdb");
    EXPECT_NONFATAL_FAILURE(d.inputBox("Title?", "", ""), "Title?");
    d.clear();
    d.answer(MsgResult::Yes);
    EXPECT_NONFATAL_FAILURE(
        EXPECT_EQ(d.msgBox("Done", MsgButtons::OK, MsgIcon::Information, ""), MsgResult::OK), "not a button");
    d.setAutoAnswerOk(true);
    EXPECT_EQ(d.msgBox("Encoding complete....", MsgButtons::OK, MsgIcon::Information, "Ecoding"),
              MsgResult::OK);
    EXPECT_EQ(d.texts(), QStringList({"Done", "Encoding complete...."}));
}

}  // namespace
}  // namespace sonarium
