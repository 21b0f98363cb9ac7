// The length Open finds without decoding a file, one file for each way of finding it (header,
// constant rate, full scan), against the truth of decoding it to its end with the mpg123 tool:
// the frame count within one frame, the length within one frame's time, and decoding through
// the player to the file's real end, sample for sample, even where the count is an estimate.
#include <gtest/gtest.h>

#include <QTemporaryDir>
#include <algorithm>
#include <cmath>

#include "engine/player/Mp3Survey.h"
#include "fixtures/Files.h"
#include "fixtures/Mp3Fixtures.h"
#include "fixtures/PlayerHarness.h"
#include "fixtures/ToolRunner.h"
#include "fixtures/WavFile.h"

namespace sonarium {
namespace {

using namespace fixtures;

// --- Hand-made streams: MPEG-1 layer III at 44.1 kHz, joint stereo, silent frames ---

// A frame of `kbps` with zero side information, which decodes as silence.
QByteArray silentFrame(int kbps, bool padded) {
    static const int index[] = {0, 32, 40, 48, 56, 64, 80, 96, 112, 128, 160, 192, 224, 256, 320};
    const int bitRateIndex = int(std::find(std::begin(index), std::end(index), kbps) - std::begin(index));
    QByteArray f(144000 * kbps / 44100 + (padded ? 1 : 0), '\0');
    f[0] = char(0xff);
    f[1] = char(0xfb);
    f[2] = char(bitRateIndex << 4 | (padded ? 2 : 0));
    f[3] = char(0x64);
    return f;
}

// `count` frames of one rate, padded as an encoder keeps the rate exact, or never.
QByteArray constantRate(int kbps, int count, bool pad = true) {
    QByteArray out;
    const double mean = 144000.0 * kbps / 44100;
    for (int k = 0; k < count; ++k)
        out += silentFrame(kbps, pad && std::floor((k + 1) * mean) - std::floor(k * mean) > std::floor(mean));
    return out;
}

QByteArray bigEndian(quint32 v) {
    const char b[] = {char(v >> 24), char(v >> 16), char(v >> 8), char(v)};
    return QByteArray(b, 4);
}

// A first frame carrying `text` 32 bytes after its header, where a stereo MPEG-1 frame's
// Xing header and every VBRI header stand.
QByteArray headerFrame(const QByteArray& text) {
    QByteArray f = silentFrame(128, false);
    f.replace(36, text.size(), text);
    return f;
}

// A VBRI header counting the frames after it; the decoder knows no VBRI and plays its frame.
QByteArray vbriFile() {
    QByteArray rest;
    for (int k = 0; k < 300; ++k) rest += silentFrame(k % 3 ? 128 : 192, false);
    return headerFrame("VBRI" + QByteArray("\0\1\0\0\0\x50", 6) + bigEndian(rest.size()) + bigEndian(300)) +
           rest;
}

// An Xing header over 300 frames with one field: the frame count (flags 1), with no LAME
// extension, so the decoder trims only its own delay; or the stream's bytes but no frame count
// (flags 2).
QByteArray xingFile(quint32 flags) {
    const QByteArray rest = constantRate(128, 300);
    return headerFrame("Xing" + bigEndian(flags) + bigEndian(flags == 1 ? 300 : rest.size())) + rest;
}

// A VBR file without a header that opens with a long silence at the lowest rate.
QByteArray silentStartVbr() {
    QByteArray out = constantRate(32, 400);
    for (int k = 0; k < 600; ++k) out += silentFrame(k % 2 ? 128 : 192, false);
    return out;
}

// Bytes that are no frames between the last frame and the ID3v1 tag.
QByteArray junkBeforeTag() { return constantRate(128, 600) + QByteArray(2000, '\0') + fixtureTag(); }

QByteArray withId3v2(const QByteArray& audio) {
    const int size = 5000;  // past the first read, so the audio is looked for behind it
    QByteArray tag("ID3\x03\x00\x00", 6);
    for (int shift : {21, 14, 7, 0}) tag += char((size >> shift) & 0x7f);
    return tag + QByteArray(size, '\0') + audio;
}

// --- The table: one row for each way the length is found ---

struct LengthCase {
    const char* name;
    LengthSurvey::Method method;
    Mp3Recipe recipe;  // encoded with LAME unless made by hand
    QByteArray (*handMade)() = nullptr;
    bool id3v2 = false;  // an ID3v2 tag in front
};

void PrintTo(const LengthCase& c, std::ostream* os) { *os << c.name; }

using M = LengthSurvey::Method;
const LengthCase kCases[] = {
    {"cbr192_48k_info", M::XingFrames, {.rate = 48000, .joint = false, .kbps = 192, .info = true}},
    {"cbr256_id3v2_id3v1", M::ConstantRate, {.kbps = 256, .seconds = 4, .id3v1 = true}, nullptr, true},
    {"cbr32_22k_mono", M::ConstantRate, {.rate = 22050, .channels = 1, .kbps = 32, .seconds = 8}},
    {"vbr_xing", M::XingFrames, {.vbr = true, .seconds = 4}},
    {"vbr_48k_mono_id3v1", M::XingFrames, {.rate = 48000, .channels = 1, .vbr = true, .id3v1 = true}},
    {"vbr_22k_mono", M::XingFrames, {.rate = 22050, .channels = 1, .vbr = true}},
    {"free_format", M::Scan, {.kbps = 200, .freeFormat = true, .seconds = 4}},
    {"vbri", M::VbriFrames, {}, vbriFile},
    {"xing_without_frames", M::Scan, {}, [] { return xingFile(2); }},
    {"xing_without_lame", M::XingFrames, {}, [] { return xingFile(1); }},
    {"silent_start_vbr", M::Scan, {}, silentStartVbr},
    // Never padded: the mean frame size would count these 2,000 frames 5 short.
    {"cbr_unpadded", M::ConstantRate, {}, [] { return constantRate(128, 2000, false); }},
    {"cbr_junk_before_tag", M::ConstantRate, {}, junkBeforeTag},
};

class PlayerLengthTest : public ::testing::TestWithParam<LengthCase> {
protected:
    QTemporaryDir dir;
};

// The survey's way, then the player's count, length, rate and tag, and its decoding against the
// tool's: the same samples, every 32nd frame notified, then one StreamEnd.
TEST_P(PlayerLengthTest, SurveyPlayerAndDecodingAgreeWithTheTool) {
    const LengthCase& c = GetParam();
    const QString mp3 = dir.filePath("song.mp3");
    QByteArray bytes;
    if (c.handMade) {
        bytes = c.handMade();
    } else {
        ASSERT_TRUE(makeMp3(mp3, c.recipe));
        bytes = fileBytes(mp3);
    }
    if (c.id3v2) bytes = withId3v2(bytes);
    ASSERT_TRUE(writeFile(mp3, bytes));
    const LengthSurvey survey =
        surveyLength(bytes.size(), [&](qint64 at, qint64 n) { return bytes.mid(at, n); });
    EXPECT_EQ(survey.method, c.method);

    const QString raw = dir.filePath("raw.wav"), trimmed = dir.filePath("tool.wav"),
                  ours = dir.filePath("ours.wav");
    ASSERT_EQ(mpg123ToWav(mp3, raw, {"--no-gapless"}), 0);
    ASSERT_EQ(mpg123ToWav(mp3, trimmed), 0);
    const WavFile toolRaw = readWav(raw), tool = readWav(trimmed);
    ASSERT_TRUE(toolRaw.parsed && tool.parsed && tool.rate > 0);

    PlayerHarness h;
    ASSERT_EQ(h.player.Open(mp3, ours), 0);
    const int samplesPerFrame = tool.rate < 32000 ? 576 : 1152;
    // Without gapless trimming the tool writes every frame whole: its frame count.
    const int frames = int(toolRaw.frames() / samplesPerFrame);
    EXPECT_NEAR(h.player.FrameCount(), frames, 1.0);
    EXPECT_NEAR(h.player.Length(), double(tool.frames()) / tool.rate, double(samplesPerFrame) / tool.rate);
    EXPECT_EQ(h.player.Frequency(), tool.rate);
    const qint64 audioBytes = bytes.size() - survey.id3v2 - (survey.id3v1 ? 128 : 0);
    const double average = audioBytes * 8 / h.player.Length() / 1000;
    EXPECT_NEAR(h.player.BitRate(), average, average / 20) << "a stated rate stands within 5%";
    EXPECT_EQ(h.player.TagTitle(), survey.id3v1 ? "Sweep" : "");

    // Decoding runs to the file's real end whatever the count said.
    h.player.setNotifyInterval(32);
    h.player.Play();
    h.finish();
    EXPECT_EQ(h.events.last(), "end");
    EXPECT_EQ(h.ends, 1);
    // The tool's samples byte for byte and a notification from frame 0 on; not so for MPEG-2
    // VBR, where the tool rounds a few samples otherwise and the trimming takes frame 0 whole.
    if (c.recipe.vbr && c.recipe.rate < 32000) {
        EXPECT_EQ(readWav(ours).data.size(), tool.data.size());
        return;
    }
    EXPECT_TRUE(fileBytes(ours) == fileBytes(trimmed)) << "the WAV differs from the tool's";
    std::vector<int> notified;
    for (int f = 0; f < frames; f += 32) notified.push_back(f);
    EXPECT_EQ(h.frames, notified);
}

INSTANTIATE_TEST_SUITE_P(Files, PlayerLengthTest, ::testing::ValuesIn(kCases),
                         [](const auto& info) { return std::string(info.param.name); });

}  // namespace
}  // namespace sonarium
