// The mini player's real window in the shipped skins, for people to look at: every cut of both
// palettes inside its sheet, the face playing with its list and without, the buttons named by
// their hints, and the main window rolled up to its bar. On a real X server the window's shape
// lets the pointer through outside it and shows the panel's own pixels inside it.
#include <QScreen>
#include <QThread>

#include "WindowsFixture.h"
#include "shell/FrmMiniPlayer.h"
#include "shell/TextFields.h"
#include "ui/MiniPlayerWindow.h"

namespace sonarium {
namespace {

const QString ZipdeckDir = QStringLiteral(SONARIUM_ZIPDECK_DIR);

// The offscreen platform draws no shape: the picture for people leaves the key colour clear.
void saveShaped(QWidget& w, const QString& name) {
    QImage shot = w.grab().toImage().convertToFormat(QImage::Format_ARGB32);
    for (int y = 0; y < shot.height(); ++y)
        for (int x = 0; x < shot.width(); ++x)
            if (shot.pixel(x, y) == MiniPlayerWindow::KeyColour) shot.setPixel(x, y, 0);
    ASSERT_TRUE(shot.save(QDir(QStringLiteral(SONARIUM_SCREENSHOT_DIR)).filePath(name), "PNG"));
}

class MiniPlayerWindowTest : public WindowsFixture {
protected:
    FrmMiniPlayer& mini() { return program().frmMiniPlayer; }
    MiniPlayerWindow& window() { return views->miniPlayer(); }
    void wear(const QString& palette) {
        const QString dir = ZipdeckDir + u'/' + palette;
        registerSheets(dir, {"Panel.bmp", "Buttons.bmp"});
        M().MiniSkinPath = dir;
        form1().LoadSkinMini();
        settle();
    }
    // Plays a queued song from the mini player, a few seconds in.
    void playFromMini() {
        form1().AddToQueue("Salt", path("") + "/");
        tc.mp3.addFile(path("Salt.MP3"), 10000, 261.2f);
        form1().lstSongs.setListIndex(0);
        mini().Show(tc.loop);
        mini().Activate();
        mini().ButtonPlay.MouseDown(LeftButton, 0, 0, 0);
        tc.loop.advance(3000);
        settle();
    }
};

TEST_F(MiniPlayerWindowTest, ShippedSkinsFitTheirSheets) {
    QtPictureLoader real;
    for (const QString palette : {"Default", "Daylight"}) {
        const QString dir = ZipdeckDir + u'/' + palette;
        const Picture sheet = real.load(dir + "/Buttons.bmp");
        TextFieldReader in = TextFieldReader::open(dir + "/CoOrds.txt");
        in.readString();
        for (int block = 1; block <= 38; ++block) {
            ASSERT_FALSE(in.atEnd()) << block;
            in.readString();
            std::int32_t v[7];
            for (auto& n : v) n = in.readInt32();
            const auto [x, y, w, h] = std::tuple(v[0], v[1], v[2], v[3]);
            if (block == 36) EXPECT_EQ(real.load(dir + "/Panel.bmp").width(), w);
            if (block == 31 || block >= 34 && block <= 36) continue;  // no cut
            const int cells = block == 19 ? 12 : 1;
            for (int c = 0; c < cells; ++c)
                EXPECT_NO_THROW(sheet.cut(x + c * (w + 1), y, w, h))
                    << palette.toStdString() << " block " << block;
        }
    }
}

TEST_F(MiniPlayerWindowTest, ThePlayerInBothPalettesAndTheStickBar) {
    start();
    wear("Default");
    playFromMini();
    EXPECT_EQ(window().size(), QSize(390, 88));
    EXPECT_FALSE(window().mask().contains(QPoint(0, 0))) << "the rounded corner is see-through";
    EXPECT_TRUE(window().mask().contains(QPoint(100, 40)));
    auto* play = find<QAbstractButton>(window(), "ButtonPlay");
    ASSERT_NE(play, nullptr);
    EXPECT_EQ(play->accessibleName(), "Start Play");
    EXPECT_EQ(play->focusPolicy(), Qt::StrongFocus);
    saveShaped(window(), "mini-player-playing.png");
    mini().cmdHideList.Click();
    settle();
    EXPECT_EQ(window().width(), 218);
    saveShaped(window(), "mini-player-list-hidden.png");
    mini().cmdShowList.Click();
    mini().cmdListType.Click();
    wear("Daylight");
    saveShaped(window(), "mini-player-daylight-sets.png");
    mini().ButtonPlay.MouseDown(LeftButton, 0, 0, 0);  // stops
    EXPECT_FALSE(M().SongPlaying);
    mini().cmdFullScreen.Click();

    form1().StickOnly();
    settle();
    EXPECT_EQ(main().height(), 37) << "the bar alone, without the menus";
    saveScreenshot(main(), "stick-bar.png");
}

// Runs only on a real X server (its own ctest starts one); elsewhere there is no shape to see.
class MiniPlayerOnX : public MiniPlayerWindowTest {};

TEST_F(MiniPlayerOnX, TheShapeLetsThePointerThroughAndShowsThePanel) {
    if (QGuiApplication::platformName() != QLatin1String("xcb")) GTEST_SKIP() << "needs an X server";
    start();
    wear("Default");
    mini().Move(100 * 15, 100 * 15, mini().Width(), mini().Height());
    mini().Show(tc.loop);
    const QImage panel = QImage(ZipdeckDir + "/Default/Panel.bmp").convertToFormat(QImage::Format_RGB32);
    // The server maps, places and paints the window in its own time, on a busy machine too:
    // wait (boundedly) until a point of bare metal shows the panel's pixel where it belongs.
    const QPoint metal(2, 40);
    QImage screen;
    QPoint at;
    for (int i = 0; i < 250; ++i) {
        QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
        at = window().geometry().topLeft();
        screen = window().screen()->grabWindow(0).toImage().convertToFormat(QImage::Format_RGB32);
        if (window().isVisible() && screen.pixel(at + metal) == panel.pixel(metal)) break;
        QThread::msleep(20);
    }
    int inside = 0, matching = 0, outside = 0, through = 0;
    for (int y = 0; y < panel.height(); y += 3)
        for (int x = 0; x < panel.width(); x += 3) {
            const bool keyed = panel.pixel(x, y) == MiniPlayerWindow::KeyColour;
            const QPoint p = at + QPoint(x, y);
            if (keyed) {
                ++outside;
                through += QGuiApplication::topLevelAt(p) != window().windowHandle() &&
                           screen.pixel(p) != MiniPlayerWindow::KeyColour;
            } else if (!window().childAt(x, y)) {
                ++inside;
                matching += screen.pixel(p) == panel.pixel(x, y);
            }
        }
    EXPECT_GT(outside, 20);
    EXPECT_EQ(through, outside) << "outside the shape the pointer and the eye reach what is behind";
    EXPECT_GT(inside, 100);
    EXPECT_EQ(matching, inside) << "inside it the panel's own pixels";
}

}  // namespace
}  // namespace sonarium
