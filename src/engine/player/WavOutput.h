#pragma once
// Decoding to a file: exactly the decoded samples, with no volume, tone or speed, as fast as
// the decoder goes. The file is created when the run opens its output.
#include <QString>
#include <utility>

#include "engine/player/RunOutput.h"
#include "engine/player/WavWriter.h"

namespace sonarium {

class WavOutput : public RunOutput {
public:
    explicit WavOutput(QString path) : path_(std::move(path)) {}
    bool open(int rate, int channels) override { return writer_.open(path_, rate, channels); }
    void write(const DecodedFrame& f) override { writer_.write(f.samples, f.sampleFrames); }
    void seeked() override {}
    void finish() override { writer_.close(); }
    void abort() override { writer_.close(); }

private:
    QString path_;
    WavWriter writer_;
};

}  // namespace sonarium
