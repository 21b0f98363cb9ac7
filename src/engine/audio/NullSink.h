#pragma once
// The sink for machines without sound: it plays nothing but takes samples at real-time pace
// from a steady clock, as a device with a short buffer would, so playback timing, position
// notifications and fades behave as with sound.
#include <chrono>

#include "engine/audio/AudioSink.h"

namespace sonarium {

class NullSink : public AudioSink {
public:
    using Clock = std::chrono::steady_clock;
    // How far ahead of the "speaker" a writer may run before write() waits.
    static constexpr std::chrono::milliseconds kDefaultBuffer{50};

    explicit NullSink(std::chrono::milliseconds buffer = kDefaultBuffer) : buffer_(buffer) {}

    bool open(const AudioFormat& format) override;
    // Waits until no more than the buffer's length of audio is still unplayed.
    bool write(const float* interleaved, int frames) override;
    // Waits until everything written has played.
    bool drain() override;
    // Forgets what is unplayed: the next write starts a new timeline at once.
    void reset() override;
    void close() override;

private:
    AudioFormat format_;
    bool open_ = false;
    std::chrono::milliseconds buffer_;
    // When the last written frame has finished playing; in the past when the sink is idle.
    // Counted in frames from a base so that rounding never accumulates.
    Clock::time_point playedUntil() const;

    Clock::time_point base_{};
    long long framesSinceBase_ = 0;
};

}  // namespace sonarium
