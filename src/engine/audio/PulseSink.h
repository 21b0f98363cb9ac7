#pragma once
// Output through the desktop's sound server (PulseAudio, or PipeWire's Pulse service) with the
// blocking "simple" API: float samples as they come, about 100 ms of buffer. A server that goes
// away mid-stream is reported to the FallbackSink around it.
#include <chrono>

#include "engine/audio/AudioSink.h"

struct pa_simple;

namespace sonarium {

class PulseSink : public AudioSink {
public:
    static constexpr std::chrono::milliseconds kLatency{100};

    ~PulseSink() override;
    // Same format on an open sink: kept. Another format: the stream is opened anew.
    bool open(const AudioFormat& format) override;
    bool write(const float* interleaved, int frames) override;
    bool drain() override;
    void reset() override;
    void close() override;

    // True when a server accepts a connection within the timeout. Never starts a server.
    static bool serverAnswers(std::chrono::milliseconds timeout = std::chrono::milliseconds(1000));

private:
    pa_simple* stream_ = nullptr;
    AudioFormat format_;
};

}  // namespace sonarium
