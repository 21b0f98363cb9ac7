#include "engine/audio/SoftLimiter.h"

#include <algorithm>
#include <cmath>

namespace sonarium {

void SoftLimiter::reset(int rate) {
    rate = std::max(rate, 1);
    gain_ = 1.0;
    holdLeft_ = 0;
    holdFrames_ = static_cast<int>(kHoldSeconds * rate);
    releaseKeep_ = std::exp(-1.0 / (kReleaseSeconds * rate));
}

void SoftLimiter::process(float* interleaved, int frames, int channels) {
    for (int i = 0; i < frames; ++i) {
        float* frame = interleaved + static_cast<long>(i) * channels;
        double peak = 0.0;
        for (int ch = 0; ch < channels; ++ch)
            peak = std::max(peak, static_cast<double>(std::fabs(frame[ch])));
        if (gain_ == 1.0 && peak <= 1.0) continue;

        if (holdLeft_ > 0) {
            --holdLeft_;
        } else if (gain_ < 1.0) {
            gain_ = 1.0 - (1.0 - gain_) * releaseKeep_;
            if (1.0 - gain_ < 1e-4) gain_ = 1.0;  // -80 dB away: snap back to transparency
        }
        const double level = peak * gain_;
        if (level > 1.0) {
            gain_ = 1.0 / peak;
            holdLeft_ = holdFrames_;
        } else if (level > kHoldLevel && gain_ < 1.0) {
            holdLeft_ = holdFrames_;
        }
        if (gain_ == 1.0) continue;
        const auto g = static_cast<float>(gain_);
        // The clamp only catches float rounding of peak * (1 / peak).
        for (int ch = 0; ch < channels; ++ch) frame[ch] = std::clamp(frame[ch] * g, -1.0f, 1.0f);
    }
}

}  // namespace sonarium
