#pragma once
// Playing to the sound device: samples to float, through the speed stage (only when the
// speed is not normal), then volume, tone and peak (the player's SoundProcessor), then the
// sink, whose write() paces the run at real time.
#include <atomic>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

#include "engine/audio/AudioSink.h"
#include "engine/audio/SoundProcessor.h"
#include "engine/player/RunOutput.h"
#include "engine/player/SpeedStage.h"

namespace sonarium {

using SinkFactory = std::function<std::unique_ptr<AudioSink>()>;

class DeviceOutput : public RunOutput {
public:
    // `processor` and `speed` belong to the player and outlive the run; the sink is made on
    // the worker thread, in open(), since only that thread may use it.
    DeviceOutput(SinkFactory sinks, SoundProcessor& processor, const std::atomic<int>& speed);
    ~DeviceOutput() override;

    bool open(int rate, int channels) override;
    void write(const DecodedFrame& frame) override;
    void seeked() override;
    void finish() override;
    void abort() override;

private:
    void play(std::vector<float>& samples);

    SinkFactory sinks_;
    SoundProcessor& processor_;
    const std::atomic<int>& speed_;
    std::unique_ptr<AudioSink> sink_;
    std::optional<SpeedStage> stage_;
    int rate_ = 0, channels_ = 0;
    std::vector<float> in_, out_;
};

}  // namespace sonarium
