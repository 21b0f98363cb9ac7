#include "engine/player/PlayerRun.h"

#include <algorithm>

namespace sonarium {

PlayerRun::PlayerRun(RunPlan plan) : plan_(std::move(plan)), thread_([this] { work(); }) {}

PlayerRun::~PlayerRun() {
    requestStop();
    if (thread_.joinable()) thread_.join();
}

void PlayerRun::setPaused(bool paused) {
    {
        std::lock_guard lock(mutex_);
        paused_ = paused;
    }
    wake_.notify_all();
}

void PlayerRun::requestStop() {
    {
        std::lock_guard lock(mutex_);
        stop_ = true;
    }
    wake_.notify_all();
}

void PlayerRun::requestSeek(std::int32_t frame, std::uint64_t epoch) {
    {
        std::lock_guard lock(mutex_);
        seek_ = Seek{frame, epoch};
    }
    wake_.notify_all();
}

bool PlayerRun::paused() const {
    std::lock_guard lock(mutex_);
    return paused_;
}

bool PlayerRun::stopRequested() const {
    std::lock_guard lock(mutex_);
    return stop_;
}

PlayerRun::Commands PlayerRun::takeCommands() {
    std::unique_lock lock(mutex_);
    // A seek while paused is taken at once, so the position moves though nothing plays.
    wake_.wait(lock, [this] { return !paused_ || stop_ || seek_; });
    Commands c;
    c.stop = stop_;
    c.seek = seek_;
    seek_.reset();
    return c;
}

bool PlayerRun::playFrames() {
    Mp3Decoder& decoder = *plan_.decoder;
    RunOutput& output = *plan_.output;
    std::uint64_t epoch = plan_.epoch;
    decoder.seekFrame(plan_.first);
    // Bounded: each pass either decodes a frame, which moves the decoder on through a finite
    // file, or applies a command that the UI thread gave.
    for (;;) {
        const Commands c = takeCommands();
        if (c.stop) return false;
        if (c.seek) {
            decoder.seekFrame(c.seek->frame);
            output.seeked();
            epoch = c.seek->epoch;
            continue;  // paused: wait on; playing: the next pass decodes
        }
        if (decoder.position() > plan_.last) return true;
        DecodedFrame frame;
        if (!decoder.next(frame) || frame.index > plan_.last) return true;
        output.write(frame);
        const int interval = std::max(1, plan_.notifyInterval->load(std::memory_order_relaxed));
        if (frame.index % interval == 0) plan_.reports.frame(frame.index, epoch);
    }
}

void PlayerRun::work() {
    const Mp3Info& info = plan_.decoder->info();
    if (plan_.output->open(info.rate, info.channels)) {
        if (playFrames())
            plan_.output->finish();
        else
            plan_.output->abort();
    }
    plan_.output.reset();  // the sink is closed on this thread, which alone may use it
    finished_.store(true, std::memory_order_release);
    plan_.reports.end();
}

}  // namespace sonarium
