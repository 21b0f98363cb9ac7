// The main window in its skins on Qt's offscreen platform, for people to look at: the
// built-in look, the other skins shipped with the program, and the playing state with the
// lamps lit. Which piece dresses which control is the skin unit tests' to check.
#include <QDirIterator>

#include "WindowsFixture.h"

using namespace sonarium;

namespace {

using SkinWindowTest = WindowsFixture;

TEST_F(SkinWindowTest, TheBuiltInLookTheOtherSkinsAndPlaying) {
    program().Main();
    settle();
    tc.dialogs.clear();
    Form1& f = form1();
    saveScreenshot(main(), "skin-default.png");
    press("imgDataBase");
    saveScreenshot(main(), "skin-default-library.png");
    press("imgDataBase");

    // Every other skin shipped beside the default one loads whole.
    for (QDirIterator it(QStringLiteral(SONARIUM_SKINS_DIR), QDir::Dirs | QDir::NoDotAndDotDot);
         it.hasNext();) {
        const QString dir = it.next();
        if (QFileInfo(dir).fileName() == QLatin1String("Default")) continue;
        registerSkin(dir);
        M().SkinPath = dir;
        f.LoadSkin();
        settle();
        EXPECT_EQ(f.PicDatabase.picture().source(), dir + "/PanelDatabase.bmp");
        saveScreenshot(main(), "skin-" + QFileInfo(dir).fileName().toLower() + ".png");
    }

    // Back in the built-in look: a song playing with the meter in the slider's place.
    registerSkin(Form1::BuiltInSkin);
    f.ApplySkinFiles(Form1::BuiltInSkin);
    f.lstSongs.AddItem("Harbour Lights");
    M().SongPath[0] = path("") + u'/';
    tc.mp3.addFile(path("Harbour Lights.MP3"), 11000, 287.0f);
    f.mnuVU.Click();
    tc.peak.setReadings({1300 * tc.peak.Maximum() / 1800});
    f.BtnPlay.MouseUp(LeftButton, 0, 0, 0);
    tc.loop.advance(1000);
    settle();
    saveScreenshot(main(), "skin-playing.png");
}

}  // namespace
