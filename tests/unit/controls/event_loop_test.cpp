// The virtual event loop's waits fail loudly instead of hanging a test. (Order of same-time
// work, nested waits and the open timer that is not re-entered are the real loop's tests; every
// unit test leans on the virtual loop keeping them too, and the Timer model's schedule is run
// tick by tick by the fade and alarm tests.)
#include <gtest/gtest.h>

#include "VirtualEventLoop.h"

using namespace sonarium;

TEST(VirtualEventLoop, WaitsThatCannotProgressThrowInsteadOfHanging) {
    VirtualEventLoop loop;
    // Nothing scheduled at all.
    EXPECT_THROW(loop.waitUntil([] { return false; }), WaitStuck);

    // Work beyond the limit does not make the clock jump there; a timer that ticks for ever
    // keeps the wait busy, but only up to the limit.
    loop.setWaitLimit(1000);
    loop.startTimer(
        5000, [] {}, true);
    const auto busy = loop.startTimer(100, [] {});
    EXPECT_THROW(loop.waitUntil([] { return false; }), WaitStuck);
    EXPECT_EQ(loop.now(), 1000);
    loop.stopTimer(busy);

    // A handler that waits inside itself again and again hits the depth limit.
    loop.setMaxDepth(8);
    int entered = 0;
    std::function<void()> recurse = [&] {
        if (++entered > 9) return;
        loop.post(recurse);
        loop.doEvents();
    };
    loop.post(recurse);
    EXPECT_THROW(loop.runUntilIdle(), WaitStuck);
    EXPECT_EQ(entered, 9) << "the top-level run plus eight nested passes";
    EXPECT_EQ(loop.depth(), 0);
}
