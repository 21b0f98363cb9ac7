// Chooses the output: SONARIUM_AUDIO=null, pulse or alsa forces one; otherwise the sound
// server if one answers, else ALSA's default device if it opens, else the paced null sink.
// Choosing anything but the server is said once on stderr, so a silent run can be explained.
#include <QByteArray>
#include <QtGlobal>
#include <atomic>
#include <cstdio>

#include "engine/audio/AlsaSink.h"
#include "engine/audio/AudioSink.h"
#include "engine/audio/FallbackSink.h"
#include "engine/audio/NullSink.h"
#include "engine/audio/PulseSink.h"

namespace sonarium {
namespace {

void sayOnce(const char* sink, const char* why) {
    static std::atomic<bool> said{false};
    if (!said.exchange(true)) std::fprintf(stderr, "Sonarium: audio output: %s (%s)\n", sink, why);
}

constexpr const char* kNull = "silent null output";
constexpr const char* kAlsa = "ALSA default device";

template <class Device>
std::unique_ptr<AudioSink> onDevice() {
    return std::make_unique<FallbackSink>(std::make_unique<Device>());
}

}  // namespace

std::unique_ptr<AudioSink> createAudioSink() {
    const QByteArray forced = qgetenv("SONARIUM_AUDIO").trimmed().toLower();
    if (forced == "null") {
        sayOnce(kNull, "SONARIUM_AUDIO=null");
        return std::make_unique<NullSink>();
    }
    if (forced == "pulse") return onDevice<PulseSink>();
    if (forced == "alsa") {
        sayOnce(kAlsa, "SONARIUM_AUDIO=alsa");
        return onDevice<AlsaSink>();
    }
    // An unknown value is not an error: the usual choice is made, and the message says why.
    const bool unknown = !forced.isEmpty();

    if (PulseSink::serverAnswers()) return onDevice<PulseSink>();
    if (AlsaSink::deviceOpens()) {
        sayOnce(kAlsa, unknown ? "SONARIUM_AUDIO is not null, pulse or alsa; no sound server answered"
                               : "no sound server answered");
        return onDevice<AlsaSink>();
    }
    sayOnce(kNull, unknown ? "SONARIUM_AUDIO is not null, pulse or alsa; no sound server or device"
                           : "no sound server or device");
    return std::make_unique<NullSink>();
}

}  // namespace sonarium
