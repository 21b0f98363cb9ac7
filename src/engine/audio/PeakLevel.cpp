#include <algorithm>
#include <cmath>

#include "engine/audio/SoundProcessor.h"

namespace sonarium {

void PeakLevel::offer(float absSample) {
    const float a = std::fabs(absSample);
    if (!(a > 0.0f)) return;  // silence, or a NaN that must not reach the meter
    const auto value =
        static_cast<std::int32_t>(std::lround(std::min(a, 1.0f) * static_cast<float>(Maximum)));
    // Lock-free max: retry only while another thread raced in a smaller value.
    std::int32_t seen = peak_.load(std::memory_order_relaxed);
    while (value > seen && !peak_.compare_exchange_weak(seen, value, std::memory_order_relaxed)) {
    }
}

std::int32_t PeakLevel::takeReading() { return peak_.exchange(0, std::memory_order_relaxed); }

}  // namespace sonarium
