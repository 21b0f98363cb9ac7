#pragma once
// Playback speed with the pitch kept (SoundTouch's tempo change). The player's speed value is
// a duration: 100 normal, 50 twice as fast, 200 half as fast. Any value is accepted: 0 or
// below means normal, and the tempo is held to 0.25..4, what the stretcher does cleanly.
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
