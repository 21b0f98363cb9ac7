// The main window in its skins on Qt's offscreen platform: the built-in look, the other skins
// shipped with the program, and the playing state with the lamps lit; no control spills out
// of the panel that holds it. Which piece dresses which control is the skin unit tests' to check.
#include <QDirIterator>

#include "WindowsFixture.h"

using namespace sonarium;

namespace {

class SkinWindowTest : public WindowsFixture {
protected:
    void SetUp() override {
        WindowsFixture::SetUp();
        program().Main();
        settle();
        tc.dialogs.clear();
    }
    // Every visible control lies inside the widget that holds it.
    QStringList spilled() {
        QStringList out;
        for (QWidget* w : main().findChildren<QWidget*>()) {
            if (w->objectName().isEmpty() || !w->isVisibleTo(&main()) || !w->parentWidget() || w->isWindow()) continue;
            if (w->parentWidget() == &main() || w->parentWidget()->objectName().isEmpty()) continue;
            if (!w->parentWidget()->rect().contains(w->geometry())) out << w->objectName();
        }
        return out;
    }
};

TEST_F(SkinWindowTest, TheBuiltInLookTheSecondSkinAndPlaying) {
    Form1& f = form1();
    EXPECT_TRUE(spilled().isEmpty()) << spilled().join(u' ').toStdString();
    saveScreenshot(main(), "skin-default.png");
    press("imgDataBase");
    saveScreenshot(main(), "skin-default-library.png");
    press("imgDataBase");

    // Every other skin shipped beside the default one loads whole.
    QStringList others;
    for (QDirIterator it(QStringLiteral(SONARIUM_SKINS_DIR), QDir::Dirs | QDir::NoDotAndDotDot); it.hasNext();) {
        const QString dir = it.next();
        if (QFileInfo(dir).fileName() != QLatin1String("Default")) others << dir;
    }
    ASSERT_FALSE(others.isEmpty());
    for (const QString& dir : others) {
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
    EXPECT_TRUE(spilled().isEmpty()) << spilled().join(u' ').toStdString();
    saveScreenshot(main(), "skin-playing.png");
}

}  // namespace
