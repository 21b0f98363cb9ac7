#include "engine/jobs/WorkerJob.h"

namespace sonarium {

WorkerJob::~WorkerJob() {
    requestStop();
    join();
    alive_.reset();
}

void WorkerJob::start(std::function<void()> work, std::function<void()> finished) {
    join();
    stop_ = false;
    running_ = true;
    worker_ = std::thread([this, work = std::move(work), finished = std::move(finished)] {
        work();
        running_ = false;
        post(finished);
    });
}

void WorkerJob::post(std::function<void()> call) {
    loop_.post([alive = std::weak_ptr<int>(alive_), call = std::move(call)] {
        if (alive.lock() && call) call();
    });
}

void WorkerJob::join() {
    if (worker_.joinable()) worker_.join();
}

}  // namespace sonarium
