// The small translations between Qt and the platform's terms that every view relies on.
#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QImage>
#include <csignal>

#include "app/Application.h"
#include "controls/Widgets.h"
#include "ui/TerminationSignals.h"
#include "ui/views/ControlSync.h"
#include "ui/views/KeyCodes.h"
#include "ui/views/ListBoxView.h"
#include "ui/views/PictureConvert.h"

namespace sonarium {
namespace {

// The cases the windows' own tests do not press: the keypad's digits, keys that share a code,
// keys without one, and the shift state with Alt held.
TEST(KeyCodes, QtKeysBecomeThePlatformsCodes) {
    EXPECT_EQ(platformKeyCode(Qt::Key_5, Qt::KeypadModifier), 101);
    EXPECT_EQ(platformKeyCode(Qt::Key_Enter), platformKeyCode(Qt::Key_Return));
    EXPECT_EQ(platformKeyCode(Qt::Key_Exclam), 0);
    EXPECT_EQ(shiftCode(Qt::ShiftModifier | Qt::AltModifier), 5);
}

// One row per key the list handles, at the edge where it stops, and the keys it leaves alone.
TEST(ListKeys, NavigationStaysInsideTheList) {
    struct Case {
        int key, row, count, page, expected;
    };
    const Case cases[] = {{Qt::Key_Down, 4, 5, 3, 4},      {Qt::Key_Up, 0, 5, 3, 0},
                          {Qt::Key_PageDown, 1, 10, 4, 4}, {Qt::Key_PageUp, 2, 10, 4, 0},
                          {Qt::Key_End, 0, 10, 4, 9},      {Qt::Key_Home, 7, 10, 4, 0},
                          {Qt::Key_Down, -1, 0, 4, -1},    {Qt::Key_A, 1, 10, 4, -1}};
    for (const Case& c : cases)
        EXPECT_EQ(rowAfterKey(c.key, c.row, c.count, c.page), c.expected) << c.key << " from " << c.row;
}

TEST(Placement, TwipsBecomePixelsAndOddSizesNeverANegativeWidget) {
    Label title(QStringLiteral("Title"), 3);
    title.Move(2730, 90, 2550, 285);
    EXPECT_EQ(pixelRect(title), QRect(182, 6, 170, 19));
    title.Move(-150, 0, -30, 8);
    EXPECT_EQ(pixelRect(title), QRect(-10, 0, 0, 1));
}

// The painter's image reads the picture's own pixels, and stays valid after the picture goes.
TEST(PictureConvert, APictureBecomesAnImageWithTheSamePixels) {
    const std::vector<std::uint32_t> pixels = {0xFFFF0000u, 0xFF00FF00u, 0x800000FFu,
                                               0xFF123456u, 0x00000000u, 0xFFFFFFFFu};
    const QImage image = toQImage(Picture(3, 2, pixels));
    ASSERT_EQ(image.format(), QImage::Format_ARGB32);
    ASSERT_EQ(image.size(), QSize(3, 2));
    for (int y = 0; y < 2; ++y)
        for (int x = 0; x < 3; ++x)
            EXPECT_EQ(image.pixel(x, y), pixels[std::size_t(y * 3 + x)]) << x << "," << y;
    EXPECT_TRUE(toQImage(Picture()).isNull());
}

// The arguments are one name with its blanks; a Wayland session gets the X11 platform unless
// the user chose one.
TEST(Startup, CommandLineAndPlatform) {
    EXPECT_EQ(commandLineOf({"sonarium", "/music/My", "Song.mp3"}), "/music/My Song.mp3");
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
