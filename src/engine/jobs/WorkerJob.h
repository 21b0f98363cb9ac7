#pragma once
// One job at a time on a thread of its own, for the components that convert files (encoder, CD
// reader): the work runs on the worker, its notifications are posted to the event loop's
// thread, and the finish is posted exactly once per started job, also after a stop. Posted
// calls still queued when the owner is destroyed do nothing, so a component can go while the
// loop still holds its notifications.
//
// Threading: start, requestStop and running are for the event loop's thread; post and
// stopRequested also for the worker.
#include <algorithm>
#include <atomic>
#include <cstdint>
#include <functional>
#include <memory>
#include <thread>

#include "controls/EventLoop.h"

namespace sonarium {

class WorkerJob {
public:
    explicit WorkerJob(EventLoop& loop) : loop_(loop) {}
    ~WorkerJob();
    WorkerJob(const WorkerJob&) = delete;
    WorkerJob& operator=(const WorkerJob&) = delete;

    // Waits for the job before (already told to stop, or done), then runs `work` on a new
    // thread and posts `finished` when it returns.
    void start(std::function<void()> work, std::function<void()> finished);
    void requestStop() { stop_ = true; }
    bool stopRequested() const { return stop_; }
    // From start until the work has returned.
    bool running() const { return running_; }
    // Runs `call` on the event loop's thread, unless this object is gone by then.
    void post(std::function<void()> call);

private:
    void join();

    EventLoop& loop_;
    std::thread worker_;
    std::atomic<bool> stop_{false};
    std::atomic<bool> running_{false};
    std::shared_ptr<int> alive_ = std::make_shared<int>(0);
};

// Progress posted at each whole thousandth or per cent of `total` and at the end: often enough
// for a bar, never more than `steps` times a job.
class ProgressSteps {
public:
    ProgressSteps(std::int64_t total, int steps) : total_(std::max<std::int64_t>(total, 1)), steps_(steps) {}
    // True when `done` reaches a step not yet reported.
    bool next(std::int64_t done) {
        const std::int64_t step = std::min<std::int64_t>(done, total_) * steps_ / total_;
        if (step <= last_) return false;
        last_ = step;
        return true;
    }

private:
    std::int64_t total_;
    int steps_;
    std::int64_t last_ = 0;
};

}  // namespace sonarium
