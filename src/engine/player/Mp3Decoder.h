#pragma once
// A pull decoder over libmpg123: one MP3 file, frame by frame, to 16-bit signed interleaved
// samples at the file's own rate and channel count. The output matches the mpg123 tool's WAV
// output bit for bit (same library, same gapless trimming, same format).
//
// Frames are numbered from 0 as libmpg123 counts them (an Xing/Info frame is not one). Open
// reads a few KiB of the file to learn its length (see Mp3Survey.h): exact from an Xing/Info
// header, an estimate within a frame from the size of a constant-rate file, and only where
// neither serves from a scan of every frame. An estimate never ends decoding early: next()
// runs to the file's real end. The file is only ever opened for reading. Not thread-safe: one
// thread at a time.
#include <QString>
#include <cstdint>

struct mpg123_handle_struct;

namespace sonarium {
struct LengthSurvey;
}

namespace sonarium {

struct Mp3Info {
    std::int32_t frames = 0;
    std::int64_t samples = 0;   // per channel, after gapless trimming
    int rate = 0;
    int channels = 0;           // 1 or 2
    int channelMode = 0;        // MPEG mode: 0 stereo, 1 joint, 2 dual, 3 mono
    int bitRate = 0;            // kbit/s; the average for VBR
    bool exactCount = true;     // the decoder itself knows the count: no frame lies past it
    double seconds() const { return rate > 0 ? double(samples) / rate : 0.0; }
};

// One decoded frame; the samples live in the decoder until the next call.
struct DecodedFrame {
    std::int32_t index = 0;
    const std::int16_t* samples = nullptr;
    int sampleFrames = 0;  // may be 0 (a frame trimmed whole, the encoder's padding)
};

class Mp3Decoder {
public:
    Mp3Decoder() = default;
    ~Mp3Decoder();
    Mp3Decoder(const Mp3Decoder&) = delete;
    Mp3Decoder& operator=(const Mp3Decoder&) = delete;

    // 0 = opened; 1 = missing, unreadable, or holding no decodable MPEG audio. The name is
    // found without regard to case.
    int open(const QString& path);
    void close();
    bool isOpen() const { return handle_ != nullptr; }
    const Mp3Info& info() const { return info_; }

    // The next decoded frame will be `frame` (clamped to 0..frames; frames = at the end). Lands
    // exactly, reading forward from the start or the nearest frame already passed.
    void seekFrame(std::int32_t frame);
    // The frame that the next call to next() decodes.
    std::int32_t position() const { return position_; }
    // Decodes the next frame. False at the end, or where nothing more can be decoded.
    bool next(DecodedFrame& out);

private:
    bool probe(const LengthSurvey& survey);
    bool formatUnchanged() const;
    int bitRate(qint64 fileSize, const LengthSurvey& survey) const;

    mpg123_handle_struct* handle_ = nullptr;
    Mp3Info info_;
    std::int32_t position_ = 0;
    bool ended_ = false;
};

}  // namespace sonarium
