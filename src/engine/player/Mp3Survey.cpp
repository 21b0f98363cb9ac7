#include "engine/player/Mp3Survey.h"

#include <algorithm>
#include <cmath>
#include <initializer_list>

#include "engine/player/Mp3Headers.h"

namespace sonarium {

namespace {

// Each sample holds several frames at any bit rate (the largest layer III frame is 1,441 bytes).
constexpr qint64 kPiece = 4096;
constexpr qint64 kId3v1Bytes = 128;

// Does this sample's frames agree with the first sample's?
bool sameConstantRate(const FrameRun& run, const FrameHeader& first) {
    return run.first && !run.freeFormat && !run.otherStream && !run.mixedRates && run.frames > 0 &&
           run.first->kbps == first.kbps && run.first->sameStream(first);
}

// The stream as the decoder will report it: the format of its first frame, and the mode and
// rate of its first audio frame (after an Xing/Info frame, or the first frame itself).
void describeStream(LengthSurvey& s, const FrameHeader& first, const FrameHeader& audio, bool variable) {
    s.rate = first.rate;
    s.channels = first.mono ? 1 : 2;
    s.channelMode = audio.mode;
    s.statedKbps = variable ? 0 : audio.kbps;
}

// The frame after the Xing/Info frame at `at` in `head`, or the Xing frame's own header
// when the piece does not hold it.
FrameHeader audioAfter(const QByteArray& head, qint64 at, const FrameHeader& h) {
    const qint64 next = at + h.bytes();
    if (next + 4 > head.size()) return h;
    const auto audio = frameHeader(reinterpret_cast<const unsigned char*>(head.constData()) + next);
    return audio && audio->kbps != 0 && audio->sameStream(h) ? *audio : h;
}

}  // namespace

std::int64_t gaplessSamples(std::int64_t frames, int samplesPerFrame, int encoderDelay, int padding) {
    constexpr int kDecoderDelay = 529;
    const std::int64_t all = frames * samplesPerFrame;
    return std::min(all, all - padding + kDecoderDelay) - (encoderDelay + kDecoderDelay);
}

LengthSurvey surveyLength(QIODevice& file) {
    return surveyLength(file.size(), [&file](qint64 at, qint64 bytes) {
        return file.seek(at) ? file.read(bytes) : QByteArray();
    });
}

LengthSurvey surveyLength(qint64 size, const ReadAt& readAt) {
    LengthSurvey s;
    QByteArray head = readAt(0, kPiece);
    const qint64 tailAt = std::max<qint64>(0, size - kPiece - kId3v1Bytes);
    // A file no longer than the first read is read once.
    QByteArray tail = tailAt == 0 && head.size() == size ? head : readAt(tailAt, size - tailAt);
    s.fileEnd = tail.right(kId3v1Bytes);
    s.id3v2 = id3v2Size(head);
    if (s.id3v2 >= size) return s;
    if (s.id3v2 > 0) head = readAt(s.id3v2, kPiece);
    s.id3v1 = size >= kId3v1Bytes && tail.size() >= kId3v1Bytes && tail.right(kId3v1Bytes).startsWith("TAG");
    if (s.id3v1) tail.chop(kId3v1Bytes);
    const qint64 audioLimit = size - (s.id3v1 ? kId3v1Bytes : 0);

    const FrameRun first = walkFrames(head);
    if (!first.first || first.freeFormat) return s;
    const FrameHeader& h = *first.first;
    const qint64 start = s.id3v2 + first.firstAt;
    s.samplesPerFrame = h.samples();

    const qint64 audio = audioLimit - start;
    QByteArray headerFrame = head.mid(first.firstAt, h.bytes());
    if (headerFrame.size() < h.bytes()) headerFrame = readAt(start, h.bytes());
    const LengthHeader stated = lengthHeader(headerFrame, h);
    if (stated.kind != LengthHeader::None) {
        // A header without a frame count: its frame is no audio, so bytes would not count. A
        // count the file's bytes could not hold at any rate is a lie: the frames are counted.
        const std::int64_t n = stated.frames;
        const bool plausible =
            n * h.smallestBytes() <= audio && n * h.largestBytes() >= audio - h.largestBytes();
        if (n <= 0 || n > INT32_MAX || !plausible) return s;
        s.frames = n;
        if (stated.kind == LengthHeader::Xing) {
            // The decoder skips the Xing frame and trims as its LAME extension says.
            s.method = LengthSurvey::XingFrames;
            s.samples = gaplessSamples(n, s.samplesPerFrame, stated.encoderDelay, stated.padding);
            describeStream(s, h, audioAfter(head, first.firstAt, h), stated.variable);
        } else {
            // The decoder knows no VBRI header: it plays that frame as audio and trims nothing.
            s.method = LengthSurvey::VbriFrames;
            s.samples = n * s.samplesPerFrame;
            describeStream(s, h, h, true);
        }
        return s;
    }

    // A short file costs a scan no more than the samples would.
    if (audio < 4 * kPiece || tailAt < start) return s;
    // A VBR file without a header may open with a run of frames at the lowest rate (silence),
    // so the rate must hold all through the file, not only at its start.
    const FrameRun third = walkFrames(readAt(start + audio / 3, kPiece), &h);
    const FrameRun twoThirds = walkFrames(readAt(start + audio * 2 / 3, kPiece), &h);
    const FrameRun end = walkFrames(tail, &h);
    for (const FrameRun* run : {&first, &third, &twoThirds, &end})
        if (!sameConstantRate(*run, h)) return s;

    // Trailing bytes that are no frames (another tag) are not audio.
    const qint64 audioEnd = end.reachesEnd ? audioLimit : tailAt + end.end;
    // An encoder that pads keeps the mean size exact; one that never pads makes every frame
    // the shorter size, which the samples show (at any fractional mean a padding encoder pads
    // at least every fifth frame).
    const bool padded = first.padded || third.padded || twoThirds.padded || end.padded;
    const double frameBytes = padded ? h.meanBytes() : h.unpaddedBytes();
    s.frames = std::llround(double(audioEnd - start) / frameBytes);
    if (s.frames > 0 && s.frames <= INT32_MAX) {
        s.method = LengthSurvey::ConstantRate;
        s.samples = s.frames * s.samplesPerFrame;
        describeStream(s, h, h, false);
    }
    return s;
}

}  // namespace sonarium
