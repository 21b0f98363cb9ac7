#pragma once
// The bytes of an MP3 file that tell its length without decoding it: the ID3v2 tag in front,
// MPEG audio frame headers, and the Xing/Info or VBRI header an encoder writes into the first
// frame. Pure functions over byte buffers; Mp3Survey reads the file.
#include <QByteArray>
#include <cstdint>
#include <optional>

namespace sonarium {

// The bytes of an ID3v2 tag at the start of `head` (10-byte header, synchsafe size, optional
// footer), or 0.
qint64 id3v2Size(const QByteArray& head);

struct FrameHeader {
    int version = 1;  // 1: MPEG-1, 2: MPEG-2, 3: MPEG-2.5
    int layer = 3;
    int kbps = 0;  // 0: free format, whose frame size no header states
    int rate = 0;
    bool padding = false;
    bool mono = false;
    int mode = 0;  // 0 stereo, 1 joint stereo, 2 dual channel, 3 mono

    int samples() const;  // per channel
    int bytes() const;    // this frame's, padding included; 0 for free format
    // The mean frame size at this bit rate when the encoder pads to keep the rate exact, and
    // the size of a frame without padding.
    double meanBytes() const;
    int unpaddedBytes() const;
    // The smallest and the largest frame a stream of this version, layer and rate can hold.
    int smallestBytes() const;
    int largestBytes() const;
    // Frames of one stream: the decoder takes a change of these as a new stream.
    bool sameStream(const FrameHeader& o) const {
        return version == o.version && layer == o.layer && rate == o.rate && mono == o.mono;
    }
};

// The header in the 4 bytes at `p`, or nothing when they are not a valid one.
std::optional<FrameHeader> frameHeader(const unsigned char* p);

struct LengthHeader {
    enum Kind { None, Xing, Vbri } kind = None;  // Xing covers its CBR twin "Info"
    std::int64_t frames = -1;                    // -1: the header states no frame count
    // What the decoder takes the stream for: "Xing" variable, "Info" constant, unless the
    // LAME extension after either names its method (constant, average or variable).
    bool variable = false;
    // Samples the encoder added in front and at the end, from the LAME extension; 0 without.
    int encoderDelay = 0;
    int padding = 0;
};

// The Xing/Info or VBRI header of the frame `h` whose bytes (whole or cut short) are `frame`.
// Xing stands where the side information would, after zeros, in layer III only, as the
// decoder looks for it; VBRI stands 32 bytes after the frame header in every mode.
LengthHeader lengthHeader(const QByteArray& frame, const FrameHeader& h);

// The frames found in a piece of a file: synchronised on a valid header followed by another
// of the same stream, walked from frame to frame, and synchronised again past damage. Given
// the `stream` the file began with, only its frames are looked for (audio data can hold what
// looks like some header); else a free-format header counts once another like it follows.
struct FrameRun {
    std::optional<FrameHeader> first;  // the first frame found
    qint64 firstAt = -1;               // its offset in the piece
    qint64 end = 0;                    // the end of the last whole frame
    bool reachesEnd = false;           // the frames run to the piece's end (maybe cut there)
    int frames = 0;                    // whole frames walked
    bool mixedRates = false;           // not every frame has the first one's bit rate
    bool otherStream = false;          // a frame of another version, layer, rate or channels
    bool padded = false;               // some frame carries a padding slot
    bool freeFormat = false;           // the first header found is free format
};

FrameRun walkFrames(const QByteArray& piece, const FrameHeader* stream = nullptr);

}  // namespace sonarium
