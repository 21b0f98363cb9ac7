#pragma once
// How an MP3 file's length can be known without decoding it, from a few KiB of the file: the
// first frame's Xing/Info or VBRI header states it; else, when every frame sampled at the
// start, a third, two thirds and the end has one bit rate, the audio bytes over the mean frame
// size give it; else only a full scan of the frames can tell (VBR without a header, free
// format, damage, or a file too short to sample).
#include <QIODevice>
#include <cstdint>

namespace sonarium {

struct LengthSurvey {
    enum Method { Scan, XingFrames, VbriFrames, ConstantRate } method = Scan;
    std::int64_t frames = 0;  // the count the method gives; 0 for Scan
    int samplesPerFrame = 0;  // per channel; 0 when no frame was found
    qint64 id3v2 = 0;         // bytes of the ID3v2 tag in front
    bool id3v1 = false;       // a 128-byte "TAG" block at the end
};

// `file` is open for reading and seekable; where it stands afterwards is undefined.
LengthSurvey surveyLength(QIODevice& file);

}  // namespace sonarium
