#include "engine/player/SpeedStage.h"

#include <soundtouch/SoundTouch.h>

#include <algorithm>

namespace sonarium {

SpeedStage::SpeedStage(int rate, int channels) : rate_(rate), channels_(channels) {}

SpeedStage::~SpeedStage() = default;

double SpeedStage::tempoOf(int speed) {
    // A duration of 0 or less is past the fast end, not a stop: no division by it.
    if (speed <= 100 / kFastest) return kFastest;
    return std::clamp(100.0 / speed, kSlowest, kFastest);
}

void SpeedStage::setSpeed(int speed) {
    const double tempo = tempoOf(speed);
    if (tempo == tempo_) return;
    // Back to normal: what the stretcher still holds (a fraction of a second) is dropped, so
    // the change is heard at once and the plain path takes over.
    if (tempo == 1.0) {
        if (touch_) touch_->clear();
        tempo_ = tempo;
        return;
    }
    if (!touch_) {
        touch_ = std::make_unique<soundtouch::SoundTouch>();
        touch_->setSampleRate(static_cast<unsigned>(rate_));
        touch_->setChannels(static_cast<unsigned>(channels_));
    }
    touch_->setTempo(tempo);
    tempo_ = tempo;
}

void SpeedStage::receive(std::vector<float>& out) {
    // Bounded: each call takes at least one sample frame out, and what is ready is finite.
    for (unsigned ready = touch_->numSamples(); ready > 0; ready = touch_->numSamples()) {
        const std::size_t at = out.size();
        out.resize(at + static_cast<std::size_t>(ready) * channels_);
        const unsigned got = touch_->receiveSamples(out.data() + at, ready);
        out.resize(at + static_cast<std::size_t>(got) * channels_);
        if (got == 0) break;
    }
}

void SpeedStage::process(const float* in, int frames, std::vector<float>& out) {
    if (!active()) {
        out.insert(out.end(), in, in + static_cast<std::size_t>(frames) * channels_);
        return;
    }
    touch_->putSamples(in, static_cast<unsigned>(frames));
    receive(out);
}

void SpeedStage::finish(std::vector<float>& out) {
    if (!active()) return;
    touch_->flush();
    receive(out);
}

void SpeedStage::clear() {
    if (touch_) touch_->clear();
}

}  // namespace sonarium
