#pragma once
// An event loop on a virtual clock, for unit tests: no threads, no sleeps, fully deterministic.
//
// Work is one queue ordered by (due time, order of scheduling). Time moves only when a test
// calls advance(), or when a wait inside a handler has nothing ready and moves the clock on to
// the next due item (at most a minute on). A wait that can never end, or handlers that
// nest too deep, throw WaitStuck instead of hanging.
//
// Single-threaded: unlike the real loop, post() here is not meant to be called from threads.
#include <QDateTime>
#include <QString>
#include <algorithm>
#include <map>
#include <memory>
#include <vector>

#include "controls/EventLoop.h"

namespace sonarium {

class VirtualEventLoop : public EventLoop {
public:
    std::int64_t now() const override { return now_; }
    // The base set by setWallClock, moved on by the virtual clock.
    QDateTime wallClock() const override { return wallBase_.addMSecs(now_); }
    void post(Task fn) override { schedule(now_, Item{0, std::move(fn)}); }

    TimerId startTimer(int intervalMs, Task fn, bool singleShot = false) override {
        // A repeating timer of 0 ms would fall due again at the same instant for ever; like a
        // busy real loop, give it the smallest step the clock has.
        std::int64_t interval = singleShot ? std::max(intervalMs, 0) : std::max(intervalMs, 1);
        auto t = std::make_shared<TimerState>(TimerState{interval, std::move(fn), singleShot});
        TimerId id = ++lastTimer_;
        t->pending = schedule(now_ + interval, Item{id, {}});
        timers_.emplace(id, std::move(t));
        return id;
    }

    void stopTimer(TimerId id) override {
        auto it = timers_.find(id);
        if (it == timers_.end()) return;
        queue_.erase(it->second->pending);
        timers_.erase(it);
    }

    void doEvents() override {
        const auto wait = enterWait();
        runPass();
    }

    void waitUntil(const std::function<bool()>& done) override {
        const auto wait = enterWait();
        const std::int64_t start = now_;
        int passes = 0;
        while (!done()) {
            if (hasReady()) {
                if (++passes > kMaxPassesWithoutTime)
                    stuck(QStringLiteral("work keeps posting more work at %1 ms").arg(now_));
                runPass();
                continue;
            }
            if (queue_.empty()) stuck(QStringLiteral("nothing is scheduled (at %1 ms)").arg(now_));
            const std::int64_t next = queue_.begin()->first.due;
            if (next > start + kWaitLimitMs)
                stuck(QStringLiteral(
                          "nothing falls due within %1 ms of the wait's start at %2 ms (next at %3 ms)")
                          .arg(QString::number(kWaitLimitMs), QString::number(start), QString::number(next)));
            now_ = next;
            passes = 0;
            runPass();
        }
    }

    // --- Driving the clock (tests) ---
    // Runs everything that falls due within `ms`, each at its own time, then stops the clock
    // at now + ms.
    void advance(std::int64_t ms) {
        const std::int64_t target = now_ + std::max<std::int64_t>(ms, 0);
        while (!queue_.empty() && queue_.begin()->first.due <= target) {
            now_ = std::max(now_, queue_.begin()->first.due);
            runItem(queue_.begin());
        }
        now_ = std::max(now_, target);
    }
    // The wall clock reads `dt` at this moment, and moves on with the virtual clock.
    void setWallClock(const QDateTime& dt) { wallBase_ = dt.addMSecs(-now_); }

private:
    // Work that keeps re-posting itself at the same instant would spin for ever; past this many
    // passes without the clock moving, the loop gives up with WaitStuck.
    static constexpr int kMaxPassesWithoutTime = 100000;
    // How far a wait may move the clock on, counted from the moment the wait began.
    static constexpr std::int64_t kWaitLimitMs = 60000;
    // How many doEvents/waitUntil may nest before the loop gives up.
    static constexpr int kMaxDepth = 64;

    struct Key {
        std::int64_t due;
        std::uint64_t seq;
        auto operator<=>(const Key&) const = default;
    };
    struct Item {
        TimerId timer = 0;  // 0 for a posted call
        Task fn;            // posted calls only
    };
    // A timer lives here while it is started. Running code holds its own shared_ptr, so a timer
    // stopped inside its own handler stays alive until that handler returns.
    struct TimerState {
        std::int64_t interval;
        Task fn;
        bool singleShot;
        bool open = false;  // its handler is running (maybe waiting in a nested doEvents)
        Key pending{};      // its next tick in the queue
    };

    [[noreturn]] static void stuck(const QString& why) {
        throw WaitStuck(("wait cannot make progress: " + why).toStdString());
    }
    using OpenWait = std::unique_ptr<int, decltype([](int* d) { --*d; })>;
    // One more open wait for the life of the result; past kMaxDepth nested waits the loop gives up.
    OpenWait enterWait() {
        if (depth_ >= kMaxDepth)
            stuck(QStringLiteral("more than %1 nested waits; a handler keeps waiting inside itself")
                      .arg(kMaxDepth));
        ++depth_;
        return OpenWait(&depth_);
    }
    Key schedule(std::int64_t due, Item item) {
        Key key{due, nextSeq_++};
        queue_.emplace(key, std::move(item));
        return key;
    }
    bool hasReady() const { return !queue_.empty() && queue_.begin()->first.due <= now_; }

    // One pass over the items ready when it began, in order; work scheduled meanwhile waits for
    // the next pass, and items removed meanwhile (stopped, or run by a nested wait) are skipped.
    void runPass() {
        std::vector<Key> ready;
        for (auto it = queue_.begin(); it != queue_.end() && it->first.due <= now_; ++it)
            ready.push_back(it->first);
        for (const Key& key : ready)
            if (auto it = queue_.find(key); it != queue_.end()) runItem(it);
    }
    // Takes the item out of the queue and runs it.
    void runItem(std::map<Key, Item>::iterator it) {
        Item item = std::move(it->second);
        queue_.erase(it);
        if (item.timer)
            runTimerTick(item.timer);
        else if (item.fn)
            item.fn();
    }
    void runTimerTick(TimerId id) {
        auto found = timers_.find(id);
        if (found == timers_.end()) return;
        std::shared_ptr<TimerState> t = found->second;
        // The next tick keeps the timer's own schedule, whatever this one does.
        if (t->singleShot)
            timers_.erase(found);
        else
            t->pending = schedule(t->pending.due + t->interval, Item{id, {}});
        // Its handler is still waiting somewhere below us: drop the tick, never bunch it.
        if (t->open) return;
        t->open = true;
        const std::unique_ptr<TimerState, decltype([](TimerState* s) { s->open = false; })> closing(t.get());
        t->fn();
    }

    std::map<Key, Item> queue_;
    std::map<TimerId, std::shared_ptr<TimerState>> timers_;
    std::int64_t now_ = 0;
    std::uint64_t nextSeq_ = 0;
    TimerId lastTimer_ = 0;
    QDateTime wallBase_{QDate(2024, 1, 1), QTime(12, 0)};
    int depth_ = 0;
};

}  // namespace sonarium
