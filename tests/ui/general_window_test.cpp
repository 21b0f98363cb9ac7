// The dialog's scan and add faces in the real window: each face shows its own controls (the
// scan face its sub-folder box, the add face the folder's songs), a user's pick in its file
// list reaches the model, and its buttons answer and close it.
#include "WindowsFixture.h"

using namespace sonarium;

namespace {

using GeneralWindowTest = WindowsFixture;

TEST_F(GeneralWindowTest, TheScanAndAddFacesShowTheirControlsAndAnswer) {
    QDir().mkpath(path("Albums"));
    write("Song.MP3", {});
    tc.mp3.addFile(path("Song.MP3"), 100, 65);
    tc.dialogs.setAutoAnswerOk(true);
    program().Main();
    whileShown([&](GeneralWindow& w) {
        QWidget* subs = find(w, "chkSubs");
        ASSERT_TRUE(subs && subs->isVisible());
        saveScreenshot(w, "scan-dialog.png");
        find<QAbstractButton>(w, "cmdOK")->click();
    });
    form1().cmdSearch.Click();
    EXPECT_EQ(tc.dialogs.texts(), QStringList({"1 new titles found"}));

    whileShown([&](GeneralWindow& w) {
        auto* files = find<QListWidget>(w, "File1");
        ASSERT_TRUE(files && files->count() == 1);
        click(*files->viewport(), rowAt(*files, 0));
        EXPECT_EQ(program().frmGeneral.File1.FileName(), "Song.MP3");
        saveScreenshot(w, "add-dialog.png");
        find<QAbstractButton>(w, "cmdAdd")->click();
        find<QAbstractButton>(w, "CmdClose")->click();
    });
    form1().CmdDataAdd.Click();
    settle();
    EXPECT_FALSE(views->general().isVisible());
    EXPECT_EQ(tc.dialogs.texts().last(), "File Added");
}

}  // namespace
