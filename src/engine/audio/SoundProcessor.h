#pragma once
// What happens to the samples of one player between the decoder and the sink: volume, the
// shared treble and bass shelves, and the shared peak level that the VU meter reads.
// Called on the player's worker thread; the settings it reads are atomics set elsewhere.
#include <atomic>
#include <cstdint>

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
    void offer(float absSample);         // worker threads
    std::int32_t takeReading();          // UI thread: the peak since the last call, then reset
private:
    std::atomic<std::int32_t> peak_{0};
};

}  // namespace sonarium
