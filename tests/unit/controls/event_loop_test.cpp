// The virtual event loop's waits fail loudly instead of hanging a test, and the Timer model
// keeps its schedule on top of it. (Order of same-time work, nested waits and the open timer
// that is not re-entered are the real loop's tests; every unit test leans on the virtual
// loop keeping them too.)
#include <gtest/gtest.h>

#include "VirtualEventLoop.h"
#include "controls/Timer.h"

namespace sonarium {
namespace {

class EventLoopTest : public ::testing::Test {
protected:
    // A task that records its name and the time it ran.
    EventLoop::Task note(const QString& name) {
        return [this, name] { log << QStringLiteral("%1@%2").arg(name).arg(loop.now()); };
    }
    // The wait inside `f` must fail as stuck, with its message.
    static void expectStuck(const std::function<void()>& f) {
        try {
            f();
            ADD_FAILURE() << "expected WaitStuck";
        } catch (const WaitStuck& e) {
            EXPECT_NE(std::string(e.what()).find("wait cannot make progress"), std::string::npos) << e.what();
        }
    }

    VirtualEventLoop loop;
    QStringList log;
};

TEST_F(EventLoopTest, WaitsThatCannotProgressThrowInsteadOfHanging) {
    // Nothing scheduled at all.
    expectStuck([&] { loop.waitUntil([] { return false; }); });

    // Work beyond the limit does not make the clock jump there; a timer that ticks for ever
    // keeps the wait busy, but only up to the limit.
    loop.setWaitLimit(1000);
    loop.startTimer(5000, note("late"), true);
    const auto busy = loop.startTimer(100, [] {});
    expectStuck([&] { loop.waitUntil([] { return false; }); });
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
    expectStuck([&] { loop.runUntilIdle(); });
    EXPECT_EQ(entered, 9) << "the top-level run plus eight nested passes";
    EXPECT_EQ(loop.depth(), 0);
}

TEST_F(EventLoopTest, TimerControlRestartsOnIntervalAndEnabled) {
    Timer timer("Timer1", loop, 100);
    timer.onTimer = note("tick");
    loop.advance(250);       // a new timer is not enabled
    timer.setEnabled(true);  // at 250
    loop.advance(230);
    timer.setInterval(100);  // at 480: the count starts again
    loop.advance(100);
    timer.setInterval(0);  // no interval: never ticks
    loop.advance(500);
    EXPECT_EQ(log, QStringList({"tick@350", "tick@450", "tick@580"}));

    // A timer that goes away takes its schedule with it.
    {
        Timer scoped("Timer2", loop, 10);
        scoped.setEnabled(true);
    }
    EXPECT_EQ(loop.activeTimerCount(), 0);
}

}  // namespace
}  // namespace sonarium
