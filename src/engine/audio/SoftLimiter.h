#pragma once
// Keeps boosted samples within -1..1 by riding one gain shared by all channels (so the stereo
// image holds) instead of cutting the wave's tops off. A frame that would overshoot lowers the
// gain at once to just fit; the gain is then held while the signal stays near full scale, so a
// steady loud tone is scaled cleanly rather than pumped, and released slowly afterwards. While
// the gain is 1 and nothing overshoots, samples pass untouched.
namespace sonarium {

class SoftLimiter {
public:
    // Hold and release times are set in frames of this rate.
    void reset(int rate);
    void process(float* interleaved, int frames, int channels);
    double gain() const { return gain_; }

private:
    // Longer than half a period of the lowest audible tone, so its peaks refresh the hold.
    static constexpr double kHoldSeconds = 0.05;
    static constexpr double kReleaseSeconds = 0.2;
    // Output level above which the hold is refreshed.
    static constexpr double kHoldLevel = 0.9;

    double gain_ = 1.0;
    int holdFrames_ = 2205;
    int holdLeft_ = 0;
    double releaseKeep_ = 0.9999;  // share of the gain's distance to 1 kept per frame
};

}  // namespace sonarium
