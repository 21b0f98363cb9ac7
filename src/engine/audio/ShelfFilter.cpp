#include "engine/audio/ShelfFilter.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace sonarium {

BiquadCoefficients shelfCoefficients(ShelfKind kind, double cornerHz, double gainDb, int rate) {
    // Low sample rates (8 or 11.025 kHz files) would put a treble corner past Nyquist.
    const double corner = std::min(cornerHz, 0.4 * rate);
    const double a = std::pow(10.0, gainDb / 40.0);
    const double w0 = 2.0 * std::numbers::pi * corner / rate;
    const double cosw = std::cos(w0);
    const double alpha = std::sin(w0) / 2.0 * std::sqrt(2.0);  // shelf slope 1
    const double k = 2.0 * std::sqrt(a) * alpha;
    double b0, b1, b2, a0, a1, a2;
    if (kind == ShelfKind::Low) {
        b0 = a * ((a + 1) - (a - 1) * cosw + k);
        b1 = 2 * a * ((a - 1) - (a + 1) * cosw);
        b2 = a * ((a + 1) - (a - 1) * cosw - k);
        a0 = (a + 1) + (a - 1) * cosw + k;
        a1 = -2 * ((a - 1) + (a + 1) * cosw);
        a2 = (a + 1) + (a - 1) * cosw - k;
    } else {
        b0 = a * ((a + 1) + (a - 1) * cosw + k);
        b1 = -2 * a * ((a - 1) + (a + 1) * cosw);
        b2 = a * ((a + 1) + (a - 1) * cosw - k);
        a0 = (a + 1) - (a - 1) * cosw + k;
        a1 = 2 * ((a - 1) - (a + 1) * cosw);
        a2 = (a + 1) - (a - 1) * cosw - k;
    }
    return {b0 / a0, b1 / a0, b2 / a0, a1 / a0, a2 / a0};
}

double ShelfFilter::gainDbFor(int setting) {
    const int s = std::clamp(setting, 0, 100);
    return (s - kFlat) * kRangeDb / kFlat;
}

void ShelfFilter::reset(int channels) {
    history_.assign(static_cast<std::size_t>(std::max(channels, 0)), History{});
}

void ShelfFilter::rememberBypassed(const float* interleaved, int frames, int channels) {
    for (int ch = 0; ch < channels; ++ch) {
        History& h = history_[ch];
        if (frames >= 2) {
            h.x2 = h.y2 = interleaved[(frames - 2) * channels + ch];
            h.x1 = h.y1 = interleaved[(frames - 1) * channels + ch];
        } else if (frames == 1) {
            h.x2 = h.y2 = h.x1;
            h.x1 = h.y1 = interleaved[ch];
        }
    }
}

void ShelfFilter::process(float* interleaved, int frames, int channels, int rate, int setting) {
    if (frames <= 0 || channels <= 0 || rate <= 0) return;
    if (history_.size() != static_cast<std::size_t>(channels)) reset(channels);
    setting = std::clamp(setting, 0, 100);
    if (setting == kFlat) {
        rememberBypassed(interleaved, frames, channels);
        return;
    }
    if (setting != setting_ || rate != rate_) {
        c_ = shelfCoefficients(kind_, cornerHz_, gainDbFor(setting), rate);
        setting_ = setting;
        rate_ = rate;
    }
    for (int ch = 0; ch < channels; ++ch) {
        History h = history_[ch];
        float* s = interleaved + ch;
        for (int i = 0; i < frames; ++i, s += channels) {
            const double x = *s;
            double y = c_.b0 * x + c_.b1 * h.x1 + c_.b2 * h.x2 - c_.a1 * h.y1 - c_.a2 * h.y2;
            // A decaying tail into silence would reach denormals, which are very slow.
            if (std::fabs(y) < 1e-20) y = 0.0;
            h.x2 = h.x1;
            h.x1 = x;
            h.y2 = h.y1;
            h.y1 = y;
            *s = static_cast<float>(y);
        }
        history_[ch] = h;
    }
}

}  // namespace sonarium
