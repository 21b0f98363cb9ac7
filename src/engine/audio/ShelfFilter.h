#pragma once
// A second-order shelving filter (the audio EQ cookbook's low and high shelves, slope 1) run
// over interleaved frames with one history per channel. A tone setting of 0..100 maps linearly
// in dB onto -12..+12 dB; 50 is flat and then the samples are not touched at all, so a flat
// tone is bit-transparent.
#include <vector>

namespace sonarium {

enum class ShelfKind { Low, High };

// Normalised so that a0 is 1.
struct BiquadCoefficients {
    double b0 = 1, b1 = 0, b2 = 0, a1 = 0, a2 = 0;
};

BiquadCoefficients shelfCoefficients(ShelfKind kind, double cornerHz, double gainDb, int rate);

class ShelfFilter {
public:
    static constexpr int kFlat = 50;
    static constexpr double kRangeDb = 12.0;

    ShelfFilter(ShelfKind kind, double cornerHz) : kind_(kind), cornerHz_(cornerHz) {}

    // -12 dB at 0, 0 dB at 50, +12 dB at 100; settings outside 0..100 are clamped.
    static double gainDbFor(int setting);

    // Forgets the history, for a stream of a new format.
    void reset(int channels);
    // Coefficients follow the setting and the rate, recomputed only when either changes; the
    // history is kept between calls so that blocks join without clicks.
    void process(float* interleaved, int frames, int channels, int rate, int setting);

private:
    // Direct form I: it tolerates coefficient changes mid-stream better than the transposed
    // forms, and while bypassed its history is simply the last inputs (a flat filter's output
    // equals its input), so leaving the bypass does not click.
    struct History {
        double x1 = 0, x2 = 0, y1 = 0, y2 = 0;
    };
    void rememberBypassed(const float* interleaved, int frames, int channels);

    ShelfKind kind_;
    double cornerHz_;
    int setting_ = kFlat;
    int rate_ = 0;
    BiquadCoefficients c_;
    std::vector<History> history_;
};

}  // namespace sonarium
