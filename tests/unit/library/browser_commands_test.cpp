// The main window's file browser: the retry on a drive that isn't ready in both windows' drive
// lists, and the new directory of a right click.
#include "LibraryFixture.h"

using namespace sonarium;

namespace {

class Browser : public ProgramFixture {
protected:
    void SetUp() override {
        ProgramFixture::SetUp();
        ASSERT_TRUE(QDir(dir.path()).mkpath("usb/Music"));
        usb = path("usb");
        tc.volumes.add(usb, "Stick");
        program().Main();
        tc.dialogs.clear();
    }
    QString usb;
};

// In the main window and in the scan dialog alike: asked until the user gives up, then the
// drive list goes back to the drive in use and the directory stays.
TEST_F(Browser, ADriveThatIsNotReadyIsAskedAboutUntilTheUserGivesUp) {
    tc.volumes.setReady(usb, false);
    const QString text = "Not ready reading Drive " + usb.toUpper() + " [STICK] Retry?";
    for (auto [drive, folders] :
         {std::pair{&form1().Drive1, &form1().Dir1}, {&general().Drive1, &general().Dir1}}) {
        const QString before = folders->Path();
        tc.dialogs.clear();
        tc.dialogs.answer(MsgResult::Yes).answer(MsgResult::No);
        drive->setDrive(usb);
        ASSERT_EQ(tc.dialogs.texts(), QStringList({text, text}));
        EXPECT_EQ(drive->Drive(), drive->List(0));
        EXPECT_EQ(folders->Path(), before);
    }
    EXPECT_EQ(general().File1.Path(), general().Dir1.Path());
}

TEST_F(Browser, ARightClickMakesANewDirectoryBelowTheOneShown) {
    Form1& f = form1();
    f.Dir1.setPath(usb + "/Music");
    tc.dialogs.answerInput("Blues").answer(MsgResult::OK);
    f.Dir1.MouseDown(RightButton, 0, 0, 0);
    EXPECT_EQ(tc.dialogs.shown()[1].text, "Create directory - " + usb + "/Music/Blues");
    EXPECT_TRUE(QDir(usb + "/Music/Blues").exists());
    EXPECT_EQ(f.CurrentDir, usb + "/Music/Blues/");

    tc.dialogs.answerInput("a/b").answer(MsgResult::OK).answer(MsgResult::OK);
    f.Dir1.MouseDown(RightButton, 0, 0, 0);
    EXPECT_EQ(tc.dialogs.texts().last(), "Cannot create directory - Path/File access error");
    EXPECT_EQ(f.Dir1.Path(), usb + "/Music/Blues");
}

}  // namespace
