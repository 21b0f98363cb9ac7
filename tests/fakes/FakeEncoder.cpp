#include "FakeEncoder.h"

namespace sonarium {

void FakeEncoder::setEncoderBitRate(double bitRate) {
    record(QStringLiteral("EncoderBitRate(%1)").arg(bitRate));
    bitRate_ = bitRate;
}

void FakeEncoder::setEncoderSampleRate(double sampleRate) {
    record(QStringLiteral("EncoderSampleRate(%1)").arg(sampleRate));
    sampleRate_ = sampleRate;
}

std::int16_t FakeEncoder::OpenFiles(const QString& wavFile, const QString& mp3File) {
    record(QStringLiteral("OpenFiles(%1,%2)").arg(wavFile, mp3File));
    wav_ = wavFile;
    mp3_ = mp3File;
    prepared_ = openResult_ == 0 && !encoding();
    return openResult_;
}

std::int32_t FakeEncoder::EncodeTotal() {
    record(QStringLiteral("EncodeTotal"));
    return prepared_ ? total_ : 0;
}

void FakeEncoder::StartEncoding() {
    record(QStringLiteral("StartEncoding"));
    if (!prepared_ || encoding()) return;
    prepared_ = false;
    stepsDone_ = 0;
    timer_ = loop_.startTimer(std::max(durationMs_ / steps_, 1), guarded([this] { step(); }));
}

void FakeEncoder::StopEncoding() {
    record(QStringLiteral("StopEncoding"));
    if (encoding()) finish();
}

void FakeEncoder::step() {
    ++stepsDone_;
    bool last = stepsDone_ >= steps_;
    if (last) finish();  // posted: the last progress still comes first
    if (onEncodeProgress) onEncodeProgress(std::int32_t(std::int64_t(total_) * stepsDone_ / steps_));
}

void FakeEncoder::finish() {
    stopTimer();
    loop_.post(guarded([this] {
        record(QStringLiteral("event EncodeFinished"));
        if (onEncodeFinished) onEncodeFinished();
    }));
}

void FakeEncoder::stopTimer() {
    if (timer_) loop_.stopTimer(timer_);
    timer_ = 0;
}

}  // namespace sonarium
