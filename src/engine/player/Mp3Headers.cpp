#include "engine/player/Mp3Headers.h"

#include <utility>

namespace sonarium {

namespace {

// kbit/s by [MPEG-1 or not][layer - 1][index]; index 0 is free format, 15 is invalid.
constexpr int kBitRates[2][3][15] = {{{0, 32, 64, 96, 128, 160, 192, 224, 256, 288, 320, 352, 384, 416, 448},
                                      {0, 32, 48, 56, 64, 80, 96, 112, 128, 160, 192, 224, 256, 320, 384},
                                      {0, 32, 40, 48, 56, 64, 80, 96, 112, 128, 160, 192, 224, 256, 320}},
                                     {{0, 32, 48, 56, 64, 80, 96, 112, 128, 144, 160, 176, 192, 224, 256},
                                      {0, 8, 16, 24, 32, 40, 48, 56, 64, 80, 96, 112, 128, 144, 160},
                                      {0, 8, 16, 24, 32, 40, 48, 56, 64, 80, 96, 112, 128, 144, 160}}};
constexpr int kMpeg1Rates[3] = {44100, 48000, 32000};

std::int64_t bigEndian32(const unsigned char* p) {
    return (std::int64_t(p[0]) << 24) | (p[1] << 16) | (p[2] << 8) | p[3];
}

const unsigned char* bytesOf(const QByteArray& a) {
    return reinterpret_cast<const unsigned char*>(a.constData());
}

// A free-format header states no size: another free-format header of its stream further on
// confirms it.
bool freeFormatFollows(const QByteArray& piece, qint64 at, const FrameHeader& h) {
    const unsigned char* p = bytesOf(piece);
    for (qint64 j = at + 4; j + 4 <= piece.size(); ++j) {
        const auto h2 = p[j] == 0xff ? frameHeader(p + j) : std::nullopt;
        if (h2 && h2->kbps == 0 && h2->sameStream(h)) return true;
    }
    return false;
}

// The first offset at or after `from` where a frame starts that the next one confirms, or -1.
qint64 sync(const QByteArray& piece, qint64 from, const FrameHeader* stream) {
    const unsigned char* p = bytesOf(piece);
    const qint64 n = piece.size();
    for (qint64 i = from; i + 4 <= n; ++i) {
        if (p[i] != 0xff) continue;
        const auto h = frameHeader(p + i);
        if (!h || (stream && (h->kbps == 0 || !h->sameStream(*stream)))) continue;
        if (h->kbps == 0) {
            if (freeFormatFollows(piece, i, *h)) return i;
            continue;
        }
        const qint64 next = i + h->bytes();
        if (next + 4 > n) continue;
        const auto h2 = frameHeader(p + next);
        if (h2 && h2->kbps != 0 && h2->sameStream(*h)) return i;
    }
    return -1;
}

// The Xing fields from their flags at `at` on, each read only when the frame holds all of it:
// frame count (flag 1), stream bytes (2), seek table (4), quality (8), then the 24 bytes of
// a LAME extension when its first byte is not zero.
void readXingFields(const QByteArray& frame, qint64 at, LengthHeader& found) {
    const unsigned char* p = bytesOf(frame);
    const qint64 n = frame.size();
    const std::int64_t flags = bigEndian32(p + at);
    at += 4;
    if (flags & 1) {
        if (n < at + 4) return;
        found.frames = bigEndian32(p + at);
        at += 4;
    }
    for (const auto& [flag, bytes] : {std::pair{2, 4}, std::pair{4, 100}, std::pair{8, 4}}) {
        if (!(flags & flag)) continue;
        if (n < at + bytes) return;
        at += bytes;
    }
    if (n < at + 24 || p[at] == 0) return;
    // Encoder name (9 bytes), then the revision and method nibbles: 1 and 8 constant, 2 and 9
    // average, anything else variable.
    const int method = p[at + 9] & 15;
    found.variable = method != 1 && method != 8;
    found.encoderDelay = (p[at + 21] << 4) | (p[at + 22] >> 4);
    found.padding = ((p[at + 22] << 8) | p[at + 23]) & 0xfff;
}

}  // namespace

qint64 id3v2Size(const QByteArray& head) {
    if (head.size() < 10 || !head.startsWith("ID3")) return 0;
    qint64 size = 0;
    for (int i = 6; i < 10; ++i) size = (size << 7) | (static_cast<unsigned char>(head[i]) & 0x7f);
    const bool footer = (static_cast<unsigned char>(head[5]) & 0x10) != 0;
    return 10 + size + (footer ? 10 : 0);
}

int FrameHeader::samples() const {
    if (layer == 1) return 384;
    return (layer == 3 && version != 1) ? 576 : 1152;
}

// Layer I counts in 4-byte slots, the others in bytes; layer III outside MPEG-1 carries half
// the samples, so half the bytes at the same rate.
double FrameHeader::meanBytes() const {
    if (layer == 1) return 48000.0 * kbps / rate;
    return (layer == 3 && version != 1 ? 72000.0 : 144000.0) * kbps / rate;
}

int FrameHeader::unpaddedBytes() const {
    if (layer == 1) return 12000 * kbps / rate * 4;
    return (layer == 3 && version != 1 ? 72000 : 144000) * kbps / rate;
}

int FrameHeader::smallestBytes() const {
    FrameHeader h = *this;
    h.kbps = kBitRates[version == 1 ? 0 : 1][layer - 1][1];
    h.padding = false;
    return h.bytes();
}

int FrameHeader::largestBytes() const {
    FrameHeader h = *this;
    h.kbps = kBitRates[version == 1 ? 0 : 1][layer - 1][14];
    h.padding = true;
    return h.bytes();
}

int FrameHeader::bytes() const {
    if (kbps == 0) return 0;
    return unpaddedBytes() + (padding ? (layer == 1 ? 4 : 1) : 0);
}

std::optional<FrameHeader> frameHeader(const unsigned char* p) {
    if (p[0] != 0xff || (p[1] & 0xe0) != 0xe0) return std::nullopt;
    const int versionBits = (p[1] >> 3) & 3, layerBits = (p[1] >> 1) & 3;
    const int rateIndex = (p[2] >> 2) & 3, bitRateIndex = p[2] >> 4;
    if (versionBits == 1 || layerBits == 0 || rateIndex == 3 || bitRateIndex == 15) return std::nullopt;
    FrameHeader h;
    h.version = versionBits == 3 ? 1 : (versionBits == 2 ? 2 : 3);
    h.layer = 4 - layerBits;
    h.kbps = kBitRates[h.version == 1 ? 0 : 1][h.layer - 1][bitRateIndex];
    h.rate = kMpeg1Rates[rateIndex] >> (h.version - 1);
    h.padding = (p[2] & 2) != 0;
    h.mode = p[3] >> 6;
    h.mono = h.mode == 3;
    return h;
}

LengthHeader lengthHeader(const QByteArray& frame, const FrameHeader& h) {
    const unsigned char* p = bytesOf(frame);
    const qint64 n = frame.size();
    LengthHeader found;
    const int side = h.version == 1 ? (h.mono ? 17 : 32) : (h.mono ? 9 : 17);
    const qint64 xing = 4 + side;
    const QByteArray word = frame.mid(xing, 4);
    if (h.layer == 3 && n >= xing + 8 && (word == "Xing" || word == "Info")) {
        // The decoder takes the tag only after zeros (a CRC may stand in the first two).
        bool zeros = true;
        for (qint64 i = 6; i < xing; ++i) zeros = zeros && p[i] == 0;
        if (zeros) {
            found.kind = LengthHeader::Xing;
            found.variable = word == "Xing";
            readXingFields(frame, xing + 4, found);
        }
    } else if (constexpr qint64 vbri = 36; n >= vbri + 18 && frame.mid(vbri, 4) == "VBRI") {
        // "VBRI", version, delay, quality (2 bytes each), stream bytes, then frames.
        found.kind = LengthHeader::Vbri;
        found.frames = bigEndian32(p + vbri + 14);
    }
    if (found.frames == 0) found.frames = -1;
    return found;
}

FrameRun walkFrames(const QByteArray& piece, const FrameHeader* stream) {
    FrameRun run;
    const unsigned char* p = bytesOf(piece);
    const qint64 n = piece.size();
    // Each pass synchronises, then walks until the frames stop; past damage it synchronises
    // again. Every step moves forward through the piece.
    for (qint64 pos = sync(piece, 0, stream); pos >= 0; pos = sync(piece, pos + 1, stream)) {
        if (!run.first) {
            run.first = frameHeader(p + pos);
            run.firstAt = pos;
            run.freeFormat = run.first->kbps == 0;
            if (run.freeFormat) return run;
        }
        for (;;) {
            if (pos + 4 > n) {
                run.reachesEnd = true;
                return run;
            }
            const auto h = frameHeader(p + pos);
            if (!h || h->kbps == 0) break;
            if (!h->sameStream(*run.first)) {
                run.otherStream = true;
                return run;
            }
            if (pos + h->bytes() > n) {
                run.reachesEnd = true;
                return run;
            }
            ++run.frames;
            run.mixedRates = run.mixedRates || h->kbps != run.first->kbps;
            run.padded = run.padded || h->padding;
            pos += h->bytes();
            run.end = pos;
        }
    }
    return run;
}

}  // namespace sonarium
