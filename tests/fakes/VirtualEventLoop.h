#pragma once
// An event loop on a virtual clock, for unit tests: no threads, no sleeps, fully deterministic.
//
// Work is one queue ordered by (due time, order of scheduling). Time moves only when a test
// calls advance(), or when a wait inside a handler has nothing ready and moves the clock on to
// the next due item (up to a limit the test sets). A wait that can never end, or handlers that
// nest too deep, throw WaitStuck instead of hanging.
//
// Single-threaded: unlike the real loop, post() here is not meant to be called from threads.
#include <QDateTime>
#include <QString>
#include <map>
#include <memory>

#include "controls/EventLoop.h"

namespace sonarium {

class VirtualEventLoop : public EventLoop {
public:
    std::int64_t now() const override { return now_; }
    // The base set by setWallClock, moved on by the virtual clock.
    QDateTime wallClock() const override { return wallBase_.addMSecs(now_); }
    void post(Task fn) override { schedule(now_, Item{0, std::move(fn)}); }
    TimerId startTimer(int intervalMs, Task fn, bool singleShot = false) override;
    void stopTimer(TimerId id) override;
    void doEvents() override;
    void waitUntil(const std::function<bool()>& done) override;

    // --- Driving the clock (tests) ---
    // Runs everything that falls due within `ms`, each at its own time, then stops the clock
    // at now + ms.
    void advance(std::int64_t ms);
    // Runs all that is due now, including work posted meanwhile; the clock does not move.
    void runUntilIdle();
    // The wall clock reads `dt` at this moment, and moves on with the virtual clock.
    void setWallClock(const QDateTime& dt) { wallBase_ = dt.addMSecs(-now_); }
    // How far a wait may move the clock on, counted from the moment the wait began.
    void setWaitLimit(std::int64_t ms) { waitLimit_ = ms; }
    // How many doEvents/waitUntil may nest before the loop gives up.
    void setMaxDepth(int depth) { maxDepth_ = depth; }

    // --- Looking in (tests) ---
    int pendingCount() const { return int(queue_.size()); }
    bool isTimerActive(TimerId id) const { return timers_.count(id) != 0; }
    int activeTimerCount() const { return int(timers_.size()); }
    // Ticks of open timers that were dropped rather than run.
    int droppedTicks() const { return dropped_; }
    // Number of doEvents/waitUntil currently open.
    int depth() const { return depth_; }

private:
    struct Key {
        std::int64_t due;
        std::uint64_t seq;
        auto operator<=>(const Key&) const = default;
    };
    struct TimerState;
    struct Item {
        TimerId timer = 0;  // 0 for a posted call
        Task fn;            // posted calls only
    };

    Key schedule(std::int64_t due, Item item);
    bool hasReady() const { return !queue_.empty() && queue_.begin()->first.due <= now_; }
    // One pass over the items ready now, in order; items removed meanwhile are skipped.
    void runPass();
    // Takes the item out of the queue and runs it.
    void runItem(std::map<Key, Item>::iterator it);
    void runTimerTick(TimerId id);

    std::map<Key, Item> queue_;
    std::map<TimerId, std::shared_ptr<TimerState>> timers_;
    std::int64_t now_ = 0;
    std::uint64_t nextSeq_ = 0;
    TimerId lastTimer_ = 0;
    QDateTime wallBase_{QDate(2024, 1, 1), QTime(12, 0)};
    std::int64_t waitLimit_ = 60000;
    int maxDepth_ = 64;
    int depth_ = 0;
    int dropped_ = 0;
};

}  // namespace sonarium
