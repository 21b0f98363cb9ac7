// The rules of the program's start that the window tests do not reach.
#include <gtest/gtest.h>

#include "app/Application.h"

namespace sonarium {
namespace {

// The arguments are one name with its blanks; a Wayland session gets the X11 platform unless
// the user chose one.
TEST(Startup, CommandLineAndPlatform) {
    EXPECT_EQ(commandLineOf({"sonarium", "/music/My", "Song.mp3"}), "/music/My Song.mp3");
    EXPECT_EQ(platformFor("", "wayland-0", ""), "xcb");
    EXPECT_EQ(platformFor("wayland", "wayland-0", "wayland"), "");
}

}  // namespace
}  // namespace sonarium
