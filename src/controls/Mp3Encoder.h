#pragma once
// The MP3 encoder component: reads a WAV file and writes an MP3 file on its own thread.
#include <QString>
#include <cstdint>
#include <functional>

namespace sonarium {

class Mp3Encoder {
public:
    virtual ~Mp3Encoder() = default;
    virtual void setEncoderBitRate(double bitRate) = 0;        // kbit/s, or 128000 at start-up
    virtual void setEncoderSampleRate(double sampleRate) = 0;  // Hz
    // 0 = the job is prepared; anything else refuses it.
    virtual std::int16_t OpenFiles(const QString& wavFile, const QString& mp3File) = 0;
    // Size of the prepared job, in the units of EncodeProgress.
    virtual std::int32_t EncodeTotal() = 0;
    virtual void StartEncoding() = 0;  // returns at once
    // Ends a running job (EncodeFinished still follows); harmless when none runs.
    virtual void StopEncoding() = 0;

    std::function<void(std::int32_t done)> onEncodeProgress;
    std::function<void()> onEncodeFinished;
};

}  // namespace sonarium
