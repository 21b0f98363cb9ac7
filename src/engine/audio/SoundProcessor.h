#pragma once
// What happens to the samples of one player between the decoder and the sink: volume, the
// shared treble and bass shelves, and the shared peak level that the VU meter reads.
// Called on the player's worker thread; the settings it reads are atomics set elsewhere.
#include <atomic>
#include <cstdint>

#include "engine/audio/ShelfFilter.h"
#include "engine/audio/SoftLimiter.h"

namespace sonarium {

// Treble and bass, 0 to 100 (50 is flat), set by the mixer component and read by every player.
struct ToneSettings {
    std::atomic<int> treble{50};
    std::atomic<int> bass{50};
};

// The highest absolute sample sent to the output since the last reading, against a fixed
// maximum of 32768 (full scale).
class PeakLevel {
public:
    static constexpr std::int32_t Maximum = 32768;
    void offer(float absSample);  // worker threads
    std::int32_t takeReading();   // UI thread: the peak since the last call, then reset
private:
    std::atomic<std::int32_t> peak_{0};
};

// One per player. process() runs on that player's worker thread; setVolume() may be called
// from any thread. The tone and peak objects are shared by all players and outlive them.
class SoundProcessor {
public:
    SoundProcessor(ToneSettings& tone, PeakLevel& peak);

    // 0..100 per side, clamped; the gain is (v / 100)^2, so 100 leaves samples untouched.
    void setVolume(int left, int right);

    // In place: volume, then the bass and treble shelves, then the limiter (so the result
    // stays within -1..1), then the block's absolute peak goes to the peak level. Channel 0
    // takes the left volume, every other channel the right. Filter and limiter state carry
    // over between calls and start afresh when the rate or channel count changes.
    void process(float* interleaved, int frames, int channels, int rate);
    // Forgets filter and limiter state before the next block (a seek, another song). Same
    // thread as process().
    void reset() { rate_ = 0; }

    static constexpr double kBassCornerHz = 120.0;
    static constexpr double kTrebleCornerHz = 6000.0;

private:
    void applyVolume(float* interleaved, int frames, int channels) const;

    ToneSettings& tone_;
    PeakLevel& peak_;
    std::atomic<int> left_{100};
    std::atomic<int> right_{100};
    int rate_ = 0;
    int channels_ = 0;
    ShelfFilter bass_{ShelfKind::Low, kBassCornerHz};
    ShelfFilter treble_{ShelfKind::High, kTrebleCornerHz};
    SoftLimiter limiter_;
};

}  // namespace sonarium
