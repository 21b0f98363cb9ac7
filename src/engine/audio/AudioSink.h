#pragma once
// The push side of playback: a sink takes interleaved float samples (-1..1) and hands them to
// the sound device. write() blocks until the device has room, so a writer is paced at real
// time; the null sink keeps the same pace with a clock, for machines without sound.
// Threading: one sink belongs to one player's worker thread; only that thread calls it.
#include <memory>

namespace sonarium {

struct AudioFormat {
    int rate = 44100;
    int channels = 2;
    bool operator==(const AudioFormat&) const = default;
};

class AudioSink {
public:
    virtual ~AudioSink() = default;
    // False when the device cannot take this format now.
    virtual bool open(const AudioFormat& format) = 0;
    // Both false when the device failed for good (a server that stops, a card unplugged); it
    // need not have played any of the samples then. FallbackSink decides what follows.
    virtual bool write(const float* interleaved, int frames) = 0;
    // Returns when everything written has been played.
    virtual bool drain() = 0;
    // Drops what is buffered and not yet heard (stop, seek).
    virtual void reset() = 0;
    virtual void close() = 0;
};

// The sound server (PulseAudio or PipeWire's Pulse service), else ALSA's default device, else
// the paced null sink. SONARIUM_AUDIO=null chooses the null sink (tests, benchmarks).
std::unique_ptr<AudioSink> createAudioSink();

}  // namespace sonarium
