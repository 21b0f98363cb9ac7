#pragma once
// A sound device can go away in the middle of a song: the sound server stops, a USB card is
// unplugged. The device sinks only report that; FallbackSink decides what follows, the same for
// both: the rest of the stream goes through a NullSink at real-time pace, so the song still
// ends on time instead of racing through or stopping short.
#include <memory>

#include "engine/audio/AudioSink.h"
#include "engine/audio/NullSink.h"

namespace sonarium {

// A sink on real hardware, whose write and drain tell whether the device is still there.
class AudioDevice {
public:
    virtual ~AudioDevice() = default;
    // False when the device cannot take this format now. Same format on an open device: kept.
    virtual bool open(const AudioFormat& format) = 0;
    // False when the device failed for good; it need not have played any of the samples.
    virtual bool write(const float* interleaved, int frames) = 0;
    virtual bool drain() = 0;
    virtual void reset() = 0;
    virtual void close() = 0;
};

class FallbackSink : public AudioSink {
public:
    explicit FallbackSink(std::unique_ptr<AudioDevice> device) : device_(std::move(device)) {}
    ~FallbackSink() override;

    // Once the device is lost, the same format stays on the null sink; another format tries
    // the device again.
    bool open(const AudioFormat& format) override;
    void write(const float* interleaved, int frames) override;
    void drain() override;
    void reset() override;
    void close() override;

    AudioDevice& device() { return *device_; }

private:
    void fallBack();

    std::unique_ptr<AudioDevice> device_;
    AudioFormat format_;
    bool lost_ = false;  // the device failed after opening: pacing through fallback_
    NullSink fallback_;
};

}  // namespace sonarium
