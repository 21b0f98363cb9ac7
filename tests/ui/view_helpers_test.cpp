// The rules of the program's start and end that the window tests do not reach.
#include <gtest/gtest.h>

#include <QCoreApplication>
#include <csignal>

#include "app/Application.h"
#include "ui/TerminationSignals.h"

namespace sonarium {
namespace {

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
    TerminationSignals endOnSignal([&] { ++calls; }, std::chrono::milliseconds(0));
    for (int sig : {SIGTERM, SIGINT, SIGHUP}) {
        const int before = calls;
        std::raise(sig);
        for (int i = 0; i < 5 && calls == before; ++i) QCoreApplication::processEvents();
        EXPECT_EQ(calls, before + 1) << sig;
    }
}

}  // namespace
}  // namespace sonarium
