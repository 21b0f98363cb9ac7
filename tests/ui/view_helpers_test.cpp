// The small translations between Qt and the platform's terms that every view relies on.
#include <QCoreApplication>
#include <QImage>
#include <csignal>
#include <gtest/gtest.h>

#include "controls/Widgets.h"

#include "app/Application.h"
#include "ui/TerminationSignals.h"
#include "ui/views/ControlSync.h"
#include "ui/views/KeyCodes.h"
#include "ui/views/ListBoxView.h"
#include "ui/views/PictureConvert.h"

namespace sonarium {
namespace {

// The ranges and the cases that differ from Qt's own numbering; the rest is a plain table.
TEST(KeyCodes, QtKeysBecomeThePlatformsCodes) {
    EXPECT_EQ(platformKeyCode(Qt::Key_F4), 115);  // the key that starts and stops the song
    EXPECT_EQ(platformKeyCode(Qt::Key_Z, Qt::ShiftModifier), 90);
    EXPECT_EQ(platformKeyCode(Qt::Key_5, Qt::KeypadModifier), 101);
    EXPECT_EQ(platformKeyCode(Qt::Key_Enter), platformKeyCode(Qt::Key_Return));
    EXPECT_EQ(platformKeyCode(Qt::Key_Exclam), 0);
    EXPECT_EQ(shiftCode(Qt::ShiftModifier | Qt::AltModifier), 5);
}

TEST(ListKeys, NavigationStaysInsideTheList) {
    struct Case {
        int key, row, count, page, expected;
    };
    const Case cases[] = {{Qt::Key_Down, -1, 5, 3, 0},    {Qt::Key_Down, 4, 5, 3, 4},     {Qt::Key_Up, 0, 5, 3, 0},
                          {Qt::Key_PageDown, 1, 10, 4, 4}, {Qt::Key_PageUp, 2, 10, 4, 0},  {Qt::Key_End, 0, 10, 4, 9},
                          {Qt::Key_Home, 7, 10, 4, 0},     {Qt::Key_Down, -1, 0, 4, -1},   {Qt::Key_A, 1, 10, 4, -1}};
    for (const Case& c : cases)
        EXPECT_EQ(rowAfterKey(c.key, c.row, c.count, c.page), c.expected) << c.key << " from " << c.row;
}

TEST(Placement, TwipsBecomePixelsAndArraysGetTheirIndex) {
    Label title(QStringLiteral("Title"), 3);
    title.Move(2730, 90, 2550, 285);
    EXPECT_EQ(pixelRect(title), QRect(182, 6, 170, 19));
    EXPECT_EQ(viewName(title), "Title(3)");
    EXPECT_EQ(viewName(Label(QStringLiteral("lblTime"))), "lblTime");
    title.Move(-150, 0, -30, 8);  // odd sizes never make a negative widget
    EXPECT_EQ(pixelRect(title), QRect(-10, 0, 0, 1));
}

TEST(PictureConvert, PixelsSurviveBothWaysExactly) {
    const std::vector<std::uint32_t> pixels = {0xFFFF0000u, 0xFF00FF00u, 0x800000FFu, 0xFF123456u,
                                               0x00000000u, 0xFFFFFFFFu};
    const QImage image = toQImage(Picture(3, 2, pixels));  // kept alive past the picture
    ASSERT_EQ(image.format(), QImage::Format_ARGB32);
    ASSERT_EQ(image.size(), QSize(3, 2));
    EXPECT_EQ(image.pixel(0, 1), 0xFF123456u);
    const Picture back = fromQImage(image);
    for (int y = 0; y < 2; ++y)
        for (int x = 0; x < 3; ++x) EXPECT_EQ(back.pixel(x, y), pixels[std::size_t(y * 3 + x)]) << x << "," << y;

    // Palette images (as BMP files load) come out as plain colours.
    QImage indexed(2, 1, QImage::Format_Indexed8);
    indexed.setColorTable({qRgb(1, 2, 3), qRgb(200, 100, 50)});
    indexed.setPixel(0, 0, 1);
    indexed.setPixel(1, 0, 0);
    EXPECT_EQ(fromQImage(indexed).pixel(0, 0), 0xFFC86432u);
    EXPECT_EQ(fromQImage(indexed).pixel(1, 0), 0xFF010203u);
    EXPECT_TRUE(toQImage(Picture()).isNull());
    EXPECT_TRUE(fromQImage(QImage()).isNull());
}

TEST(Startup, CommandLineAndPlatform) {
    EXPECT_EQ(commandLineOf({"sonarium"}), "");
    EXPECT_EQ(commandLineOf({"sonarium", "/music/My", "Song.mp3"}), "/music/My Song.mp3");
    EXPECT_EQ(commandLineOf({"sonarium", "\"a b.mp3\""}), "\"a b.mp3\"");
    EXPECT_EQ(platformFor("wayland", "", ""), "xcb");
    EXPECT_EQ(platformFor("", "wayland-0", ""), "xcb");
    EXPECT_EQ(platformFor("wayland", "wayland-0", "wayland"), "");
    EXPECT_EQ(platformFor("x11", "", ""), "");
}

TEST(TerminationSignals, SigtermSigintAndSighupBecomeOneCallOnTheUiThreadEach) {
    int calls = 0;
    {
        TerminationSignals endOnSignal([&] { ++calls; }, std::chrono::milliseconds(0));
        for (int sig : {SIGTERM, SIGINT, SIGHUP}) {
            const int before = calls;
            std::raise(sig);
            for (int i = 0; i < 5 && calls == before; ++i) QCoreApplication::processEvents();
            EXPECT_EQ(calls, before + 1) << sig;
        }
    }
    // The old handlers are back: ignoring SIGINT now reaches no close path.
    auto old = std::signal(SIGINT, SIG_IGN);
    std::raise(SIGINT);
    std::signal(SIGINT, old);
    QCoreApplication::processEvents();
    EXPECT_EQ(calls, 3);
}

}  // namespace
}  // namespace sonarium
