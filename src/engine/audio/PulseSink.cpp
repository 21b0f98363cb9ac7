#include "engine/audio/PulseSink.h"

#include <pulse/context.h>
#include <pulse/mainloop.h>
#include <pulse/simple.h>

namespace sonarium {

PulseSink::~PulseSink() { close(); }

bool PulseSink::open(const AudioFormat& format) {
    if (stream_ && format == format_) return true;
    close();
    if (format.rate <= 0 || format.channels <= 0 || format.channels > static_cast<int>(PA_CHANNELS_MAX))
        return false;

    pa_sample_spec spec{};
    spec.format = PA_SAMPLE_FLOAT32NE;
    spec.rate = static_cast<std::uint32_t>(format.rate);
    spec.channels = static_cast<std::uint8_t>(format.channels);
    // Only the target length is ours; the server chooses the rest.
    pa_buffer_attr attr{};
    attr.maxlength = static_cast<std::uint32_t>(-1);
    attr.tlength = static_cast<std::uint32_t>(
        pa_usec_to_bytes(std::chrono::duration_cast<std::chrono::microseconds>(kLatency).count(), &spec));
    attr.prebuf = static_cast<std::uint32_t>(-1);
    attr.minreq = static_cast<std::uint32_t>(-1);
    attr.fragsize = static_cast<std::uint32_t>(-1);

    int error = 0;
    stream_ = pa_simple_new(nullptr, "Sonarium", PA_STREAM_PLAYBACK, nullptr, "Music", &spec, nullptr, &attr,
                            &error);
    if (!stream_) return false;
    format_ = format;
    return true;
}

bool PulseSink::write(const float* interleaved, int frames) {
    if (!stream_ || frames <= 0) return true;
    const std::size_t bytes = static_cast<std::size_t>(frames) * format_.channels * sizeof(float);
    int error = 0;
    return pa_simple_write(stream_, interleaved, bytes, &error) >= 0;
}

bool PulseSink::drain() {
    int error = 0;
    return !stream_ || pa_simple_drain(stream_, &error) >= 0;
}

void PulseSink::reset() {
    int error = 0;
    if (stream_) pa_simple_flush(stream_, &error);
}

void PulseSink::close() {
    if (stream_) pa_simple_free(stream_);
    stream_ = nullptr;
}

bool PulseSink::serverAnswers(std::chrono::milliseconds timeout) {
    pa_mainloop* loop = pa_mainloop_new();
    if (!loop) return false;
    pa_context* context = pa_context_new(pa_mainloop_get_api(loop), "Sonarium");
    bool ready = false;
    if (context && pa_context_connect(context, nullptr, PA_CONTEXT_NOAUTOSPAWN, nullptr) >= 0) {
        const auto deadline = std::chrono::steady_clock::now() + timeout;
        while (true) {
            const pa_context_state_t state = pa_context_get_state(context);
            if (state == PA_CONTEXT_READY) {
                ready = true;
                break;
            }
            if (!PA_CONTEXT_IS_GOOD(state)) break;
            const auto left = std::chrono::duration_cast<std::chrono::microseconds>(
                deadline - std::chrono::steady_clock::now());
            if (left.count() <= 0) break;
            // One bounded pass: wait at most until the deadline for the connection to move on.
            if (pa_mainloop_prepare(loop, static_cast<int>(left.count())) < 0 || pa_mainloop_poll(loop) < 0 ||
                pa_mainloop_dispatch(loop) < 0)
                break;
        }
        pa_context_disconnect(context);
    }
    if (context) pa_context_unref(context);
    pa_mainloop_free(loop);
    return ready;
}

}  // namespace sonarium
