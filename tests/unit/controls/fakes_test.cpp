// The contract of a fake that would let the logic's tests pass wrongly if broken: scripted
// dialogs fail loudly on a question nobody expected. (The fake player's timing and its one
// StreamEnd per run are held by the transport's tests, which fail at once without them.)
#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>

#include "ScriptedDialogs.h"

namespace sonarium {
namespace {

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
