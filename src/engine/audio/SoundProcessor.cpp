#include "engine/audio/SoundProcessor.h"

#include <algorithm>
#include <cmath>

namespace sonarium {

SoundProcessor::SoundProcessor(ToneSettings& tone, PeakLevel& peak) : tone_(tone), peak_(peak) {}

void SoundProcessor::setVolume(int left, int right) {
    left_.store(std::clamp(left, 0, 100), std::memory_order_relaxed);
    right_.store(std::clamp(right, 0, 100), std::memory_order_relaxed);
}

void SoundProcessor::applyVolume(float* interleaved, int frames, int channels) const {
    const auto gainOf = [](int v) { return static_cast<float>(v * v) / 10000.0f; };
    const float left = gainOf(left_.load(std::memory_order_relaxed));
    const float right = gainOf(right_.load(std::memory_order_relaxed));
    if (left == 1.0f && right == 1.0f) return;
    for (int i = 0; i < frames; ++i) {
        float* frame = interleaved + static_cast<long>(i) * channels;
        frame[0] *= left;
        for (int ch = 1; ch < channels; ++ch) frame[ch] *= right;
    }
}

void SoundProcessor::process(float* interleaved, int frames, int channels, int rate) {
    if (!interleaved || frames <= 0 || channels <= 0 || rate <= 0) return;
    if (rate != rate_ || channels != channels_) {
        rate_ = rate;
        channels_ = channels;
        bass_.reset(channels);
        treble_.reset(channels);
        limiter_.reset(rate);
    }
    applyVolume(interleaved, frames, channels);
    bass_.process(interleaved, frames, channels, rate, tone_.bass.load(std::memory_order_relaxed));
    treble_.process(interleaved, frames, channels, rate, tone_.treble.load(std::memory_order_relaxed));
    limiter_.process(interleaved, frames, channels);

    float peak = 0.0f;
    const long n = static_cast<long>(frames) * channels;
    for (long i = 0; i < n; ++i) peak = std::max(peak, std::fabs(interleaved[i]));
    peak_.offer(peak);
}

}  // namespace sonarium
