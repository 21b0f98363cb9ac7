#pragma once
// An encoder on the event loop's clock. A started job reports progress in even steps over
// its duration, then EncodeFinished; StopEncoding ends a running job with EncodeFinished.
// EncodeFinished comes exactly once per started job, posted through the loop.
#include <algorithm>

#include "CallLog.h"
#include "controls/EventLoop.h"
#include "controls/Mp3Encoder.h"

namespace sonarium {

class FakeEncoder : public Mp3Encoder, public CallLog {
public:
    explicit FakeEncoder(EventLoop& loop) : loop_(loop) {}
    ~FakeEncoder() override { stopTimer(); }

    // --- Set-up (tests) ---
    // What the following OpenFiles calls return (0 prepares the job).
    void setOpenResult(std::int16_t result) { openResult_ = result; }
    void setTotal(std::int32_t total) { total_ = total; }
    // A job lasts `durationMs` and reports `steps` progress events (the last one = total).
    void setJob(int durationMs, int steps) { durationMs_ = durationMs, steps_ = std::max(steps, 1); }

    // --- Looking in (tests) ---
    double bitRate() const { return bitRate_; }
    double sampleRate() const { return sampleRate_; }
    QString wavFile() const { return wav_; }
    QString mp3File() const { return mp3_; }
    bool encoding() const { return timer_ != 0; }

    // --- Mp3Encoder ---
    void setEncoderBitRate(double bitRate) override;
    void setEncoderSampleRate(double sampleRate) override;
    std::int16_t OpenFiles(const QString& wavFile, const QString& mp3File) override;
    std::int32_t EncodeTotal() override;
    void StartEncoding() override;
    void StopEncoding() override;

private:
    void step();
    void finish();
    void stopTimer();

    EventLoop& loop_;
    std::int16_t openResult_ = 0;
    std::int32_t total_ = 1000;
    int durationMs_ = 1000, steps_ = 10;
    double bitRate_ = 0, sampleRate_ = 0;
    QString wav_, mp3_;
    bool prepared_ = false;
    int stepsDone_ = 0;
    EventLoop::TimerId timer_ = 0;
};

}  // namespace sonarium
