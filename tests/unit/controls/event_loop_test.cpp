// The virtual event loop keeps the rules the logic relies on: order of same-time work, timers
// at their own schedule, no re-entry of an open timer, nested waits, and waits that fail
// loudly instead of hanging. The Timer model is checked on top of it. (Stopping a timer from
// inside a handler is the real loop's test; a modal form's wait is every dialog's.)
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

TEST_F(EventLoopTest, SameTimeWorkRunsInSchedulingOrderAndTimersKeepTheirOwnSchedule) {
    loop.post(note("a"));
    loop.startTimer(0, note("shot0"), true);
    loop.post([this] {
        log << "b";
        loop.post(note("posted-by-b"));  // after everything already queued for this instant
    });
    loop.post(note("c"));
    // doEvents: one pass over what was ready when it began; the new post waits.
    loop.doEvents();
    EXPECT_EQ(log, QStringList({"a@0", "shot0@0", "b", "c@0"}));
    loop.runUntilIdle();
    EXPECT_EQ(log.last(), "posted-by-b@0");
    EXPECT_EQ(loop.now(), 0) << "runUntilIdle never moves the clock";

    log.clear();
    loop.setWallClock(QDateTime(QDate(2023, 5, 1), QTime(6, 59, 30)));
    const auto rep = loop.startTimer(100, note("rep"));
    loop.startTimer(150, note("once"), true);
    loop.startTimer(150, note("twice"), true);
    loop.advance(350);
    loop.advance(50);  // the tick at 400 keeps the 100 ms grid, not 350 + 100
    EXPECT_EQ(log, QStringList({"rep@100", "once@150", "twice@150", "rep@200", "rep@300", "rep@400"}));
    EXPECT_EQ(loop.wallClock(), QDateTime(QDate(2023, 5, 1), QTime(6, 59, 30, 400)));
    EXPECT_EQ(loop.activeTimerCount(), 1) << "the single shots are gone";
    loop.stopTimer(rep);
}

TEST_F(EventLoopTest, OpenTimerIsNotReenteredWhileOthersRunInsideItsWait) {
    bool released = false;
    bool insideA = false;
    loop.startTimer(40, [&] { log << QStringLiteral("B@%1%2").arg(loop.now()).arg(insideA ? " in A" : ""); });
    loop.startTimer(100, [&] {
        log << QStringLiteral("A@%1").arg(loop.now());
        if (loop.now() != 100) return;
        insideA = true;
        loop.post(note("posted-in-A"));
        loop.waitUntil([&] { return released; });
        insideA = false;
        log << QStringLiteral("A-done@%1").arg(loop.now());
    });
    loop.startTimer(
        350, [&] { released = true; }, true);

    loop.advance(450);
    EXPECT_EQ(log, QStringList({"B@40", "B@80", "A@100", "posted-in-A@100", "B@120 in A", "B@160 in A",
                                "B@200 in A", "B@240 in A", "B@280 in A", "B@320 in A", "A-done@350", "B@360",
                                "A@400", "B@400", "B@440"}));
    // A's ticks at 200 and 300 fell while it was open: dropped, not bunched at 350.
    EXPECT_EQ(loop.droppedTicks(), 2);
}

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
    loop.runUntilIdle();  // drain the last call it posted

    // An open timer whose wait failed is closed again and ticks on as before.
    loop.setWaitLimit(60000);
    int runs = 0;
    loop.startTimer(10, [&] {
        if (++runs == 1) loop.waitUntil([] { return false; });
    });
    expectStuck([&] { loop.advance(10); });  // at 1010 it waits, moving the clock to 61010
    EXPECT_EQ(loop.now(), 61010);
    loop.advance(10);
    EXPECT_EQ(runs, 2);
}

TEST_F(EventLoopTest, TimerControlRestartsOnIntervalAndEnabled) {
    Timer timer("Timer1", loop, 100);
    timer.onTimer = note("tick");
    loop.advance(250);
    EXPECT_TRUE(log.isEmpty()) << "a new timer is not enabled";

    timer.setEnabled(true);  // at 250
    loop.advance(230);
    timer.setInterval(100);  // at 480: the count starts again
    loop.advance(100);
    timer.setInterval(0);  // no interval: never ticks
    loop.advance(500);
    EXPECT_EQ(log, QStringList({"tick@350", "tick@450", "tick@580"}));

    // A handler that disables its own timer makes it a single shot.
    timer.onTimer = [&] {
        log << QStringLiteral("once@%1").arg(loop.now());
        timer.setEnabled(false);
    };
    timer.setInterval(40);
    loop.advance(200);
    EXPECT_EQ(log.last(), "once@1120");

    // A timer that goes away takes its schedule with it.
    {
        Timer scoped("Timer2", loop, 10);
        scoped.setEnabled(true);
    }
    EXPECT_EQ(loop.activeTimerCount(), 0);
}

}  // namespace
}  // namespace sonarium
