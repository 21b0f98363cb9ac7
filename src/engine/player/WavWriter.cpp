#include "engine/player/WavWriter.h"

#include <QFile>
#include <algorithm>
#include <bit>
#include <cstring>

#include "controls/FileNames.h"

namespace sonarium {

namespace {

constexpr int kHeaderBytes = 44;
constexpr std::size_t kBufferSamples = 128 * 1024;
// The RIFF sizes are 32-bit: longer data keeps the largest size that fits (whole frames).
constexpr std::uint64_t kMaxDataBytes = 0xFFFFFFFFull - (kHeaderBytes - 8);

void putLe(unsigned char* at, std::uint32_t v, int bytes) {
    for (int i = 0; i < bytes; ++i) at[i] = static_cast<unsigned char>(v >> (8 * i));
}

// The canonical header of 16-bit PCM; every number little-endian.
void makeHeader(unsigned char* h, int rate, int channels, std::uint32_t dataBytes) {
    std::memcpy(h, "RIFF", 4);
    putLe(h + 4, dataBytes + kHeaderBytes - 8, 4);
    std::memcpy(h + 8, "WAVEfmt ", 8);
    putLe(h + 16, 16, 4);  // fmt chunk size
    putLe(h + 20, 1, 2);   // PCM
    putLe(h + 22, static_cast<std::uint32_t>(channels), 2);
    putLe(h + 24, static_cast<std::uint32_t>(rate), 4);
    putLe(h + 28, static_cast<std::uint32_t>(rate * channels * 2), 4);  // bytes per second
    putLe(h + 32, static_cast<std::uint32_t>(channels * 2), 2);         // block align
    putLe(h + 34, 16, 2);                                               // bits per sample
    std::memcpy(h + 36, "data", 4);
    putLe(h + 40, dataBytes, 4);
}

}  // namespace

WavWriter::~WavWriter() { close(); }

bool WavWriter::open(const QString& path, int rate, int channels) {
    close();
    if (path.isEmpty() || rate <= 0 || channels <= 0) return false;
    file_ = std::fopen(QFile::encodeName(resolveFileName(path)).constData(), "wb");
    if (!file_) return false;
    channels_ = channels;
    dataBytes_ = 0;
    ok_ = true;
    buffer_.clear();
    buffer_.reserve(kBufferSamples);
    // The header now, with sizes 0; close() writes it again with the sizes.
    unsigned char header[kHeaderBytes];
    makeHeader(header, rate, channels, 0);
    rate_ = rate;
    ok_ = std::fwrite(header, 1, kHeaderBytes, file_) == kHeaderBytes;
    return ok_;
}

bool WavWriter::write(const std::int16_t* samples, int frames) {
    if (!file_ || !ok_) return false;
    std::size_t n = static_cast<std::size_t>(std::max(frames, 0)) * channels_;
    while (n > 0) {
        const std::size_t take = std::min(n, kBufferSamples - buffer_.size());
        buffer_.insert(buffer_.end(), samples, samples + take);
        samples += take;
        n -= take;
        if (buffer_.size() == kBufferSamples && !flush()) return false;
    }
    return true;
}

bool WavWriter::flush() {
    if (buffer_.empty()) return ok_;
    if constexpr (std::endian::native == std::endian::big)
        for (auto& s : buffer_) {
            const auto u = static_cast<std::uint16_t>(s);
            s = static_cast<std::int16_t>(static_cast<std::uint16_t>((u >> 8) | (u << 8)));
        }
    const std::size_t bytes = buffer_.size() * sizeof(std::int16_t);
    ok_ = ok_ && std::fwrite(buffer_.data(), 1, bytes, file_) == bytes;
    dataBytes_ += bytes;
    buffer_.clear();
    return ok_;
}

bool WavWriter::close() {
    if (!file_) return ok_;
    flush();
    const std::uint64_t blockAlign = static_cast<std::uint64_t>(channels_) * 2;
    const std::uint64_t data = std::min(dataBytes_, kMaxDataBytes / blockAlign * blockAlign);
    unsigned char header[kHeaderBytes];
    makeHeader(header, rate_, channels_, static_cast<std::uint32_t>(data));
    bool ok =
        std::fseek(file_, 0, SEEK_SET) == 0 && std::fwrite(header, 1, kHeaderBytes, file_) == kHeaderBytes;
    ok = std::fclose(file_) == 0 && ok && ok_;
    file_ = nullptr;
    ok_ = ok;
    return ok;
}

}  // namespace sonarium
