#pragma once
// Output to ALSA's default device with blocking writes of float samples, or 16-bit ones when
// the device takes no float. ALSA's own error messages are silenced: on a machine without a
// sound card every open would print several lines. A device that fails for good mid-stream
// (unplugged) is reported to the FallbackSink around it.
#include <cstdint>
#include <vector>

#include "engine/audio/AudioSink.h"

typedef struct _snd_pcm snd_pcm_t;

namespace sonarium {

class AlsaSink : public AudioSink {
public:
    static constexpr unsigned kLatencyMicroseconds = 100000;

    AlsaSink();
    ~AlsaSink() override;
    // Same format on an open sink: kept. Another format: the device is opened anew.
    bool open(const AudioFormat& format) override;
    bool write(const float* interleaved, int frames) override;
    bool drain() override;
    void reset() override;
    void close() override;

    // True when the default device opens for playback now.
    static bool deviceOpens();

private:
    bool writeFrames(const void* data, int frames);

    snd_pcm_t* pcm_ = nullptr;
    AudioFormat format_;
    bool useFloat_ = true;
    std::vector<std::int16_t> converted_;
};

}  // namespace sonarium
