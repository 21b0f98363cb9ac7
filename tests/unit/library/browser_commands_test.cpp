// The main window's file browser: the names a directory change makes (the picture's name one
// letter short just below a volume's root), the retry on a drive that isn't ready, and the new
// directory of a right click.
#include <QDir>

#include "ProgramFixture.h"

using namespace sonarium;

namespace {

class Browser : public ProgramFixture {
protected:
    void SetUp() override {
        ProgramFixture::SetUp();
        ASSERT_TRUE(QDir(dir.path()).mkpath("usb/Music/Jazz"));
        usb = path("usb");
        tc.volumes.add(usb, "Stick");
        program().Main();
        tc.dialogs.clear();
    }
    QString usb;
};

TEST_F(Browser, ADirectoryChangeNamesTheFolderAndItsPicture) {
    Form1& f = form1();
    f.Dir1.setPath(usb + "/Music");
    EXPECT_EQ(f.CurrentDir, usb + "/Music/");
    EXPECT_EQ(f.LastDir, "Musi") << "just below a root the name loses its last letter";
    EXPECT_EQ(f.Fillist.Path(), usb + "/Music");
    const QStringList tries = tc.pictures.calls().filter(usb);
    EXPECT_EQ(tries.mid(0, 3), QStringList({"load(" + usb + "/Music/Musi.GIF)", "load(" + usb + "/Music/Musi.BMP)",
                                            "load(" + usb + "/Music/Musi.JPG)"}));

    f.Dir1.setPath(usb + "/Music/Jazz");
    EXPECT_EQ(f.LastDir, "Jazz");
    f.Dir1.setPath(usb);
    EXPECT_EQ(f.LastDir, "");
    EXPECT_EQ(f.CurrentDir, usb + "/");

    // During a scan only the hidden file list follows.
    f.SearchRunning = true;
    f.Dir1.setPath(usb + "/Music");
    EXPECT_EQ(f.CurrentDir, usb + "/");
    EXPECT_EQ(f.Fillist.Path(), usb + "/Music");
}

TEST_F(Browser, ADriveThatIsNotReadyIsAskedAboutUntilTheUserGivesUp) {
    Form1& f = form1();
    const QString before = f.Dir1.Path();
    tc.volumes.setReady(usb, false);
    tc.dialogs.answer(MsgResult::Yes).answer(MsgResult::No);
    f.Drive1.setDrive(usb);
    const QString text = "Not ready reading Drive " + usb.toUpper() + " [STICK] Retry?";
    ASSERT_EQ(tc.dialogs.texts(), QStringList({text, text}));
    EXPECT_EQ(tc.dialogs.shown()[0].title, "Change Drive");
    EXPECT_EQ(tc.dialogs.shown()[0].buttons, MsgButtons::YesNo);
    EXPECT_EQ(f.Drive1.Drive(), f.Drive1.List(0)) << "No sends the drive list back to the drive in use";
    EXPECT_EQ(f.Dir1.Path(), before);
    EXPECT_EQ(f.MousePointer(), DefaultPointer);
}

TEST_F(Browser, ARightClickMakesANewDirectoryBelowTheOneShown) {
    Form1& f = form1();
    f.Dir1.setPath(usb + "/Music");
    f.Dir1.MouseDown(LeftButton, 0, 0, 0);
    EXPECT_TRUE(tc.dialogs.shown().empty());

    tc.dialogs.answerInput("Blues").answer(MsgResult::OK);
    f.Dir1.MouseDown(RightButton, 0, 0, 0);
    EXPECT_EQ(tc.dialogs.shown()[0].title, "Add Directory to " + usb + "/Music");
    EXPECT_EQ(tc.dialogs.shown()[1].text, "Create directory - " + usb + "/Music/Blues");
    EXPECT_TRUE(QDir(usb + "/Music/Blues").exists());
    EXPECT_EQ(f.CurrentDir, usb + "/Music/Blues/");

    tc.dialogs.clear();
    tc.dialogs.answerInput("a/b").answer(MsgResult::OK).answer(MsgResult::OK);
    f.Dir1.MouseDown(RightButton, 0, 0, 0);
    EXPECT_EQ(tc.dialogs.texts().last(), "Cannot create directory - Path/File access error");
    EXPECT_EQ(f.Dir1.Path(), usb + "/Music/Blues");
}

}  // namespace
