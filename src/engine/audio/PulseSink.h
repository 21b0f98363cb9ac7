#pragma once
// Output through the desktop's sound server (PulseAudio, or PipeWire's Pulse service) with the
// blocking "simple" API: float samples as they come, about 100 ms of buffer. If the server goes
// away mid-stream, the rest keeps real-time pace through a null sink, so a song still ends on
// time instead of racing through.
#include <chrono>

#include "engine/audio/AudioSink.h"
#include "engine/audio/NullSink.h"

struct pa_simple;

namespace sonarium {

class PulseSink : public AudioSink {
public:
    static constexpr std::chrono::milliseconds kLatency{100};

    ~PulseSink() override;
    // Same format on an open sink: kept. Another format: the stream is opened anew.
    bool open(const AudioFormat& format) override;
    void write(const float* interleaved, int frames) override;
    void drain() override;
    void reset() override;
    void close() override;

    // True when a server accepts a connection within the timeout. Never starts a server.
    static bool serverAnswers(std::chrono::milliseconds timeout = std::chrono::milliseconds(1000));

private:
    void fallBack();

    pa_simple* stream_ = nullptr;
    AudioFormat format_;
    bool lost_ = false;  // the server failed after opening: pacing through fallback_
    NullSink fallback_;
};

}  // namespace sonarium
