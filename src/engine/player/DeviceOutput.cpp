#include "engine/player/DeviceOutput.h"

namespace sonarium {

DeviceOutput::DeviceOutput(SinkFactory sinks, SoundProcessor& processor, const std::atomic<int>& speed)
    : sinks_(std::move(sinks)), processor_(processor), speed_(speed) {}

DeviceOutput::~DeviceOutput() {
    if (sink_) sink_->close();
}

bool DeviceOutput::open(int rate, int channels) {
    sink_ = sinks_ ? sinks_() : nullptr;
    if (!sink_ || !sink_->open(AudioFormat{rate, channels})) return false;
    rate_ = rate;
    channels_ = channels;
    stage_.emplace(rate, channels);
    processor_.reset();
    return true;
}

void DeviceOutput::write(const DecodedFrame& frame) {
    const std::size_t n = static_cast<std::size_t>(frame.sampleFrames) * channels_;
    in_.resize(n);
    for (std::size_t i = 0; i < n; ++i) in_[i] = static_cast<float>(frame.samples[i]) * (1.0f / 32768.0f);
    stage_->setSpeed(speed_.load(std::memory_order_relaxed));
    out_.clear();
    stage_->process(in_.data(), frame.sampleFrames, out_);
    play(out_);
}

void DeviceOutput::play(std::vector<float>& samples) {
    const int frames = static_cast<int>(samples.size() / channels_);
    if (frames <= 0) return;
    processor_.process(samples.data(), frames, channels_, rate_);
    sink_->write(samples.data(), frames);
}

void DeviceOutput::seeked() {
    sink_->reset();
    stage_->clear();
    processor_.reset();
}

void DeviceOutput::finish() {
    out_.clear();
    stage_->finish(out_);
    play(out_);
    sink_->drain();
}

void DeviceOutput::abort() { sink_->reset(); }

}  // namespace sonarium
