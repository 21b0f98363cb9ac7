#pragma once
// Playback speed with the pitch kept (SoundTouch's tempo change). The player's speed value is
// a duration: 100 normal, 50 twice as fast, 200 half as fast. Any value is accepted, since the
// speed buttons count on without limit: the tempo is held to 0.5..2, the range over which
// SoundTouch tunes its sequence and seek window to the tempo (beyond it they stay fixed and the
// sound breaks up). So every speed of 50 or less, 0 and below too, plays at the fastest tempo,
// and every speed of 200 or more at the slowest.
// At speed 100 samples pass untouched and SoundTouch is not even made. One worker thread.
#include <memory>
#include <vector>

namespace soundtouch {
class SoundTouch;
}

namespace sonarium {

class SpeedStage {
public:
    SpeedStage(int rate, int channels);
    ~SpeedStage();

    static constexpr double kFastest = 2.0, kSlowest = 0.5;

    // The tempo factor that a speed value gives (1 = normal).
    static double tempoOf(int speed);

    void setSpeed(int speed);
    // True while samples go through the stretcher: the speed is not normal.
    bool active() const { return touch_ && tempo_ != 1.0; }

    // Interleaved float samples in; what the stretcher has ready is appended to `out`.
    void process(const float* in, int frames, std::vector<float>& out);
    // The end of the stream: the rest that it holds, appended to `out`.
    void finish(std::vector<float>& out);
    // Forgets what it holds (a seek).
    void clear();

private:
    void receive(std::vector<float>& out);

    int rate_, channels_;
    double tempo_ = 1.0;
    std::unique_ptr<soundtouch::SoundTouch> touch_;
};

}  // namespace sonarium
