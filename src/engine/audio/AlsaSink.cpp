#include "engine/audio/AlsaSink.h"

#include <alsa/asoundlib.h>

#include <algorithm>
#include <cmath>
#include <mutex>

namespace sonarium {
namespace {

void quietAlsaError(const char*, int, const char*, int, const char*, ...) {}

// ALSA's handler is process-wide; set before the first call that could report.
void silenceAlsa() {
    static std::once_flag once;
    std::call_once(once, [] { snd_lib_error_set_handler(&quietAlsaError); });
}

}  // namespace

AlsaSink::AlsaSink() { silenceAlsa(); }

AlsaSink::~AlsaSink() { close(); }

bool AlsaSink::deviceOpens() {
    silenceAlsa();
    snd_pcm_t* pcm = nullptr;
    if (snd_pcm_open(&pcm, "default", SND_PCM_STREAM_PLAYBACK, SND_PCM_NONBLOCK) < 0) return false;
    snd_pcm_close(pcm);
    return true;
}

bool AlsaSink::open(const AudioFormat& format) {
    if (pcm_ && format == format_) return true;
    close();
    if (format.rate <= 0 || format.channels <= 0) return false;
    if (snd_pcm_open(&pcm_, "default", SND_PCM_STREAM_PLAYBACK, 0) < 0) {
        pcm_ = nullptr;
        return false;
    }
    const auto setParams = [&](snd_pcm_format_t sampleFormat) {
        return snd_pcm_set_params(pcm_, sampleFormat, SND_PCM_ACCESS_RW_INTERLEAVED,
                                  static_cast<unsigned>(format.channels), static_cast<unsigned>(format.rate),
                                  1 /* let ALSA resample */, kLatencyMicroseconds) == 0;
    };
    useFloat_ = setParams(SND_PCM_FORMAT_FLOAT);
    if (!useFloat_ && !setParams(SND_PCM_FORMAT_S16)) {
        snd_pcm_close(pcm_);
        pcm_ = nullptr;
        return false;
    }
    format_ = format;
    return true;
}

bool AlsaSink::writeFrames(const void* data, int frames) {
    const std::size_t frameBytes =
        static_cast<std::size_t>(format_.channels) * (useFloat_ ? sizeof(float) : sizeof(std::int16_t));
    const auto* bytes = static_cast<const char*>(data);
    while (frames > 0) {
        snd_pcm_sframes_t done = snd_pcm_writei(pcm_, bytes, static_cast<snd_pcm_uframes_t>(frames));
        if (done < 0) {
            // An underrun or a suspend is recoverable; anything else means the device is gone.
            if (snd_pcm_recover(pcm_, static_cast<int>(done), 1) < 0) return false;
            continue;
        }
        frames -= static_cast<int>(done);
        bytes += static_cast<std::size_t>(done) * frameBytes;
    }
    return true;
}

bool AlsaSink::write(const float* interleaved, int frames) {
    if (!pcm_ || frames <= 0) return true;
    if (useFloat_) return writeFrames(interleaved, frames);
    converted_.resize(static_cast<std::size_t>(frames) * format_.channels);
    std::transform(interleaved, interleaved + converted_.size(), converted_.begin(), [](float s) {
        return static_cast<std::int16_t>(std::lrint(std::clamp(s, -1.0f, 1.0f) * 32767.0f));
    });
    return writeFrames(converted_.data(), frames);
}

bool AlsaSink::drain() {
    if (pcm_) {
        snd_pcm_drain(pcm_);
        // Draining stops the device; prepare it so that writing can go on.
        snd_pcm_prepare(pcm_);
    }
    return true;
}

void AlsaSink::reset() {
    if (pcm_) {
        snd_pcm_drop(pcm_);
        snd_pcm_prepare(pcm_);
    }
}

void AlsaSink::close() {
    if (pcm_) snd_pcm_close(pcm_);
    pcm_ = nullptr;
}

}  // namespace sonarium
