#pragma once
// How an MP3 file's length can be known without decoding it, from a few KiB of the file: the
// first frame's Xing/Info or VBRI header states it; else, when every frame sampled at the
// start, a third, two thirds and the end has one bit rate, the audio bytes over the mean frame
// size give it; else only a full scan of the frames can tell (VBR without a header, free
// format, damage, or a file too short to sample).
//
// Where the survey knows the length it also gives what the decoder would report once it had
// opened the file: its format, the first audio frame's mode and rate, and the samples after
// the decoder's gapless trimming. The player then needs the decoder only to play.
#include <QIODevice>
#include <cstdint>
#include <functional>

namespace sonarium {

struct LengthSurvey {
    enum Method { Scan, XingFrames, VbriFrames, ConstantRate } method = Scan;
    std::int64_t frames = 0;  // the count the method gives; 0 for Scan
    int samplesPerFrame = 0;  // per channel; 0 when no frame was found
    qint64 id3v2 = 0;         // bytes of the ID3v2 tag in front
    bool id3v1 = false;       // a 128-byte "TAG" block at the end
    QByteArray fileEnd;       // the file's last 128 bytes, or all of a shorter file

    // Known whenever method is not Scan:
    std::int64_t samples = 0;  // per channel, after gapless trimming
    int rate = 0;
    int channels = 0;
    int channelMode = 0;  // of the first audio frame
    int statedKbps = 0;   // the first audio frame's rate; 0 when the decoder calls it VBR
};

// The samples the decoder gives of `frames` frames of `samplesPerFrame` from an Xing header,
// gapless: it delays its output by 529 samples and cuts the encoder's delay after that
// delay, and the encoder's padding (at least the decoder's own delay) at the end.
std::int64_t gaplessSamples(std::int64_t frames, int samplesPerFrame, int encoderDelay, int padding);

// Reads up to `bytes` of the file from offset `at`: fewer at its end, none on failure.
using ReadAt = std::function<QByteArray(qint64 at, qint64 bytes)>;

LengthSurvey surveyLength(qint64 fileSize, const ReadAt& readAt);
// `file` is open for reading and seekable; where it stands afterwards is undefined.
LengthSurvey surveyLength(QIODevice& file);

}  // namespace sonarium
