#pragma once
// A sound device can go away in the middle of a song: the sound server stops, a USB card is
// unplugged. The device sinks only report that; FallbackSink decides what follows, the same for
// both: the rest of the stream goes through a NullSink at real-time pace, so the song still
// ends on time instead of racing through or stopping short.
#include <memory>

#include "engine/audio/AudioSink.h"
#include "engine/audio/NullSink.h"

namespace sonarium {

class FallbackSink : public AudioSink {
public:
    explicit FallbackSink(std::unique_ptr<AudioSink> device) : device_(std::move(device)) {}
    ~FallbackSink() override;

    // Once the device is lost, the same format stays on the null sink; another format tries
    // the device again.
    bool open(const AudioFormat& format) override;
    // Never fail: once the device has, the null sink takes the rest.
    bool write(const float* interleaved, int frames) override;
    bool drain() override;
    void reset() override;
    void close() override;

    AudioSink& device() { return *device_; }

private:
    void fallBack();

    std::unique_ptr<AudioSink> device_;
    AudioFormat format_;
    bool lost_ = false;  // the device failed after opening: pacing through fallback_
    NullSink fallback_;
};

}  // namespace sonarium
