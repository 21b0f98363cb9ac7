#pragma once
// The MP3 encoder on libmp3lame. OpenFiles checks the job without touching a file: the WAV is
// opened with libsndfile (every PCM and float WAV it knows), LAME is set up for it, and the
// target's folder must take a new file. StartEncoding runs the job on a worker thread that
// creates the MP3, encodes at a constant bit rate (resampling when the rate set differs from
// the WAV's) and writes LAME's Info frame at the end, so players know the exact length.
//
// Threading: every call is for the event loop's thread. The worker posts EncodeProgress at
// each whole per cent and EncodeFinished once per started job, also after StopEncoding.
#include <QString>
#include <cmath>
#include <memory>

#include "controls/Mp3Encoder.h"
#include "engine/jobs/WorkerJob.h"

namespace sonarium {

class LameEncoder : public Mp3Encoder {
public:
    explicit LameEncoder(EventLoop& loop);
    ~LameEncoder() override;  // stops the job and waits for its worker

    // kbit/s; a value in bit/s (the start-up's 128000) is taken as such.
    void setEncoderBitRate(double bitRate) override;
    // Hz; 0 keeps the WAV's rate.
    void setEncoderSampleRate(double sampleRate) override { sampleRate_ = int(std::lround(sampleRate)); }
    std::int16_t OpenFiles(const QString& wavFile, const QString& mp3File) override;
    // In sample frames of the WAV.
    std::int32_t EncodeTotal() override { return total_; }
    void StartEncoding() override;
    void StopEncoding() override;

    struct Job;  // the prepared job: the open WAV and LAME's set-up

private:
    int kbps_ = 128;
    int sampleRate_ = 0;
    std::int32_t total_ = 0;
    std::unique_ptr<Job> prepared_;
    WorkerJob job_;  // last: it goes first, stopping the worker before what the worker uses
};

}  // namespace sonarium
