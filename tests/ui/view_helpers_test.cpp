// The small rules of the windows' start and keys that the window tests do not reach.
#include <gtest/gtest.h>

#include <QCoreApplication>
#include <csignal>

#include "app/Application.h"
#include "ui/TerminationSignals.h"
#include "ui/views/ListBoxView.h"

namespace sonarium {
namespace {

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
