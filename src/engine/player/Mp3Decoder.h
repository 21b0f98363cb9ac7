#pragma once
// A pull decoder over libmpg123: one MP3 file, frame by frame, to 16-bit signed interleaved
// samples at the file's own rate and channel count. The output matches the mpg123 tool's WAV
// output bit for bit (same library, same gapless trimming, same format).
//
// Frames are numbered from 0 as libmpg123 counts them (an Xing/Info frame is not one). Open
// reads a few KiB of the file to learn its length and format (see Mp3Survey.h): exact from an
// Xing/Info header, an estimate within a frame from the size of a constant-rate file, and only
// where neither serves from a scan of every frame. An estimate never ends decoding early:
// next() runs to the file's real end. The file is only ever opened for reading.
//
// Opening a file costs only that survey: libmpg123 opens it on the first seekFrame() or next()
// (at open() only for a file that must be scanned), on one library handle that the decoder
// keeps from file to file. Not thread-safe: one thread at a time.
#include <QByteArray>
#include <QString>
#include <cstdint>

struct mpg123_handle_struct;

namespace sonarium {
struct LengthSurvey;
}

namespace sonarium {

struct Mp3Info {
    std::int32_t frames = 0;
    std::int64_t samples = 0;  // per channel, after gapless trimming
    int rate = 0;
    int channels = 0;        // 1 or 2
    int channelMode = 0;     // MPEG mode: 0 stereo, 1 joint, 2 dual, 3 mono
    int bitRate = 0;         // kbit/s; the average for VBR
    bool exactCount = true;  // the decoder itself knows the count: no frame lies past it
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

    // 0 = opened; 1 = missing, unreadable, or holding no MPEG audio. The name is found without
    // regard to case. `fileEnd`, when given, receives the file's last 128 bytes (all of a
    // shorter file) whenever the file could be read, opened or not.
    int open(const QString& path, QByteArray* fileEnd = nullptr);
    void close();
    bool isOpen() const { return open_; }
    const Mp3Info& info() const { return info_; }

    // The next decoded frame will be `frame` (clamped to 0..frames; frames = at the end). Lands
    // exactly, reading forward from the start or the nearest frame already passed.
    void seekFrame(std::int32_t frame);
    // The frame that the next call to next() decodes.
    std::int32_t position() const { return position_; }
    // Decodes the next frame. False at the end, or where nothing more can be decoded (also
    // when the file can no longer be opened for decoding).
    bool next(DecodedFrame& out);

private:
    bool openStream();
    bool probeScanned();
    bool formatUnchanged() const;
    int bitRate(qint64 fileSize, const LengthSurvey& survey) const;

    mpg123_handle_struct* handle_ = nullptr;  // made on first need, kept until destruction
    QByteArray path_;                         // the open file's name, in the file system's encoding
    bool open_ = false;
    bool streamOpen_ = false;  // libmpg123 has the file open on handle_
    Mp3Info info_;
    std::int32_t position_ = 0;
    bool ended_ = false;
};

}  // namespace sonarium
