#pragma once
// A 16-bit PCM WAV file written front to back: the canonical 44-byte header, then the samples.
// The header's sizes are written as 0 at open and set at close, so every closed file is
// valid, whether it holds the whole song or stops midway. The samples are buffered and
// written in large blocks.
#include <QString>
#include <cstdint>
#include <cstdio>
#include <vector>

namespace sonarium {

class WavWriter {
public:
    WavWriter() = default;
    ~WavWriter();
    WavWriter(const WavWriter&) = delete;
    WavWriter& operator=(const WavWriter&) = delete;

    // Creates or truncates the file: an existing file is found without regard to case, a new
    // one takes the spelling given. False when it cannot be written.
    bool open(const QString& path, int rate, int channels);
    // Interleaved samples, `frames` per channel. False once a write has failed.
    bool write(const std::int16_t* samples, int frames);
    // Sets the header's sizes and closes. False when anything failed along the way.
    bool close();
    bool isOpen() const { return file_ != nullptr; }

private:
    bool flush();

    std::FILE* file_ = nullptr;
    int rate_ = 0;
    int channels_ = 0;
    std::uint64_t dataBytes_ = 0;
    std::vector<std::int16_t> buffer_;
    bool ok_ = true;
};

}  // namespace sonarium
