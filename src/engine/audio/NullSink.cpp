#include "engine/audio/NullSink.h"

#include <thread>

namespace sonarium {

NullSink::Clock::time_point NullSink::playedUntil() const {
    const std::chrono::duration<double> played(static_cast<double>(framesSinceBase_) / format_.rate);
    return base_ + std::chrono::duration_cast<Clock::duration>(played);
}

bool NullSink::open(const AudioFormat& format) {
    if (format.rate <= 0 || format.channels <= 0) return false;
    format_ = format;
    open_ = true;
    reset();
    return true;
}

bool NullSink::write(const float*, int frames) {
    if (!open_ || frames <= 0) return true;
    // A writer that paused (or fell behind) underruns like a device: the new frames start now,
    // not at the end of a timeline that has already passed.
    const auto now = Clock::now();
    if (now > playedUntil()) {
        base_ = now;
        framesSinceBase_ = 0;
    }
    framesSinceBase_ += frames;
    std::this_thread::sleep_until(playedUntil() - buffer_);
    return true;
}

bool NullSink::drain() {
    if (open_) std::this_thread::sleep_until(playedUntil());
    return true;
}

void NullSink::reset() {
    base_ = Clock::now();
    framesSinceBase_ = 0;
}

void NullSink::close() { open_ = false; }

}  // namespace sonarium
