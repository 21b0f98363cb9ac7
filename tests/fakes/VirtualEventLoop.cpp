#include "VirtualEventLoop.h"

#include <algorithm>
#include <vector>

namespace sonarium {

// A timer lives here while it is started. Running code holds its own shared_ptr, so a timer
// stopped inside its own handler stays alive until that handler returns.
struct VirtualEventLoop::TimerState {
    std::int64_t interval;
    Task fn;
    bool singleShot;
    bool open = false;  // its handler is running (maybe waiting in a nested doEvents)
    Key pending{};      // its next tick in the queue
};

namespace {

// Work that keeps re-posting itself at the same instant would spin for ever; past this many
// passes without the clock moving, the loop gives up with WaitStuck.
constexpr int kMaxPassesWithoutTime = 100000;

[[noreturn]] void stuck(const QString& why) {
    throw WaitStuck(("wait cannot make progress: " + why).toStdString());
}

// One more open wait for the life of the result; past `max` nested waits the loop gives up.
auto enterWait(int& depth, int max) {
    if (depth >= max)
        stuck(QStringLiteral("more than %1 nested waits; a handler keeps waiting inside itself").arg(max));
    ++depth;
    return std::unique_ptr<int, decltype([](int* d) { --*d; })>(&depth);
}

}  // namespace

VirtualEventLoop::Key VirtualEventLoop::schedule(std::int64_t due, Item item) {
    Key key{due, nextSeq_++};
    queue_.emplace(key, std::move(item));
    return key;
}

EventLoop::TimerId VirtualEventLoop::startTimer(int intervalMs, Task fn, bool singleShot) {
    // A repeating timer of 0 ms would fall due again at the same instant for ever; like a busy
    // real loop, give it the smallest step the clock has.
    std::int64_t interval = singleShot ? std::max(intervalMs, 0) : std::max(intervalMs, 1);
    auto t = std::make_shared<TimerState>(TimerState{interval, std::move(fn), singleShot});
    TimerId id = ++lastTimer_;
    t->pending = schedule(now_ + interval, Item{id, {}});
    timers_.emplace(id, std::move(t));
    return id;
}

void VirtualEventLoop::stopTimer(TimerId id) {
    auto it = timers_.find(id);
    if (it == timers_.end()) return;
    queue_.erase(it->second->pending);
    timers_.erase(it);
}

void VirtualEventLoop::runItem(std::map<Key, Item>::iterator it) {
    Item item = std::move(it->second);
    queue_.erase(it);
    if (item.timer)
        runTimerTick(item.timer);
    else if (item.fn)
        item.fn();
}

void VirtualEventLoop::runTimerTick(TimerId id) {
    auto found = timers_.find(id);
    if (found == timers_.end()) return;
    std::shared_ptr<TimerState> t = found->second;
    // The next tick keeps the timer's own schedule, whatever this one does.
    if (t->singleShot)
        timers_.erase(found);
    else
        t->pending = schedule(t->pending.due + t->interval, Item{id, {}});
    if (t->open) {
        // Its handler is still waiting somewhere below us: drop the tick, never bunch it.
        ++dropped_;
        return;
    }
    t->open = true;
    const std::unique_ptr<TimerState, decltype([](TimerState* s) { s->open = false; })> closing(t.get());
    t->fn();
}

void VirtualEventLoop::runPass() {
    // Only what was ready when the pass began; work scheduled meanwhile waits for the next pass.
    std::vector<Key> ready;
    for (auto it = queue_.begin(); it != queue_.end() && it->first.due <= now_; ++it)
        ready.push_back(it->first);
    for (const Key& key : ready) {
        auto it = queue_.find(key);
        if (it != queue_.end()) runItem(it);  // gone: stopped, or run by a nested wait
    }
}

void VirtualEventLoop::doEvents() {
    const auto wait = enterWait(depth_, maxDepth_);
    runPass();
}

void VirtualEventLoop::waitUntil(const std::function<bool()>& done) {
    const auto wait = enterWait(depth_, maxDepth_);
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
        if (next > start + waitLimit_)
            stuck(QStringLiteral("nothing falls due within %1 ms of the wait's start at %2 ms "
                                 "(next at %3 ms)")
                      .arg(waitLimit_)
                      .arg(start)
                      .arg(next));
        now_ = next;
        passes = 0;
        runPass();
    }
}

void VirtualEventLoop::advance(std::int64_t ms) {
    const std::int64_t target = now_ + std::max<std::int64_t>(ms, 0);
    while (!queue_.empty() && queue_.begin()->first.due <= target) {
        now_ = std::max(now_, queue_.begin()->first.due);
        runItem(queue_.begin());
    }
    now_ = std::max(now_, target);
}

void VirtualEventLoop::runUntilIdle() {
    int runs = 0;
    while (hasReady()) {
        if (++runs > kMaxPassesWithoutTime)
            stuck(QStringLiteral("work keeps posting more work at %1 ms").arg(now_));
        runItem(queue_.begin());
    }
}

}  // namespace sonarium
