#include "Seeds.h"

#include <algorithm>
#include <random>
#include <string_view>

namespace sonarium::fuzz {
namespace {

using namespace std::string_view_literals;

// Layer III frame headers. MPEG-1, 128 kbit/s, 44.1 kHz, joint stereo: 417 bytes a frame.
// MPEG-2, 64 kbit/s, 22.05 kHz, mono: 208 bytes. Free format (bit rate index 0): the frame size
// comes from the distance between headers.
constexpr std::uint32_t kMpeg1 = 0xFFFB9064u, kMpeg2Mono = 0xFFF380C0u, kFreeFormat = 0xFFFB0064u;

Bytes bytes(std::string_view s) { return Bytes(s.begin(), s.end()); }

Bytes operator+(Bytes a, const Bytes& b) {
    a.insert(a.end(), b.begin(), b.end());
    return a;
}

// `count` frames with header `h`; zero side information decodes as silence.
Bytes frames(std::uint32_t h, std::size_t frameBytes, int count) {
    Bytes b;
    for (int i = 0; i < count; ++i) {
        const std::size_t at = b.size();
        b.resize(at + frameBytes, 0);
        for (int k = 0; k < 4; ++k) b[at + k] = std::uint8_t(h >> (24 - 8 * k));
    }
    return b;
}

// An ID3v1.1 tag: a track number after a NUL.
Bytes tag(std::string_view title) {
    Bytes b = bytes("TAG"sv) + bytes(title.substr(0, 30));
    b.resize(93, 0);
    b = b + bytes("1999"sv);
    b.resize(126, 0);
    return b + Bytes{7, 17};
}

// Little-endian numbers of `n` bytes.
Bytes le(std::uint32_t v, int n) {
    Bytes b;
    for (int i = 0; i < n; ++i) b.push_back(std::uint8_t(v >> (8 * i)));
    return b;
}

// A WAV of `frames` sample frames of a ramp, whose data chunk claims `claimed` bytes (0: the truth).
Bytes wav(int formatTag, int channels, std::uint32_t rate, int bits, int frames, std::uint32_t claimed = 0) {
    const int align = channels * bits / 8;
    Bytes fmt = le(std::uint32_t(formatTag), 2) + le(std::uint32_t(channels), 2) + le(rate, 4) +
                le(rate * std::uint32_t(align), 4) + le(std::uint32_t(align), 2) + le(std::uint32_t(bits), 2);
    if (formatTag == 0xFFFE)  // valid bits, channel mask, and the PCM sub-format's GUID
        fmt = fmt + le(22, 2) + le(std::uint32_t(bits), 2) + le(3, 4) +
              bytes("\1\0\0\0\0\0\x10\0\x80\0\0\xAA\0\x38\x9B\x71"sv);
    Bytes data(std::size_t(frames * align));
    for (std::size_t i = 0; i < data.size(); ++i) data[i] = std::uint8_t(i * 7);
    const Bytes body = bytes("WAVEfmt "sv) + le(std::uint32_t(fmt.size()), 4) + fmt + bytes("data"sv) +
                       le(claimed ? claimed : std::uint32_t(data.size()), 4) + data;
    return bytes("RIFF"sv) + le(std::uint32_t(body.size()), 4) + body;
}

}  // namespace

std::vector<Seed> seedCorpus() {
    Bytes xing = frames(kMpeg1, 417, 6);
    const Bytes lyingCount = bytes("Xing\0\0\0\3\x7F\xFF\xFF\xFF\0\0\x10\0"sv);  // 2^31 frames
    std::copy(lyingCount.begin(), lyingCount.end(), xing.begin() + 36);
    std::mt19937 rng(12345);
    Bytes random(2000);
    for (auto& b : random) b = std::uint8_t(rng());
    return {
        {"empty", {}},
        {"tag", tag("Tiny Caf\xE9 \x80")},
        {"mpeg1", frames(kMpeg1, 417, 8)},
        {"mpeg1-tag", frames(kMpeg1, 417, 4) + tag("Title")},
        {"mpeg2-mono", frames(kMpeg2Mono, 208, 8)},
        {"format-change", frames(kMpeg2Mono, 208, 3) + frames(kMpeg1, 417, 6)},
        {"free-format", frames(kFreeFormat, 300, 6)},
        {"xing", xing},
        // 20 bytes of tag after the header; then one that claims 256 MiB and a footer.
        {"id3v2", bytes("ID3\3\0\0\0\0\0\x14TIT2\0\0\0\6\0\0\0Title\0\0\0\0"sv) + frames(kMpeg1, 417, 4)},
        {"id3v2-lying", bytes("ID3\4\0\x10\x7F\x7F\x7F\x7F"sv) + frames(kMpeg1, 417, 2)},
        {"random", random},
    };
}

std::vector<Seed> pathSeeds() {
    // A skin path of 50,000 components, as a hand-edited settings file once held.
    std::string deep = "music";
    for (int i = 0; i < 50000; ++i) deep += "/a";
    return {{"empty", {}},
            {"case", bytes("MUSIC/rock/song.mp3")},
            {"dots", bytes("music/../MUSIC//./Rock/")},
            {"loops", bytes("Music/UP/music/up/SELF/x")},
            {"new", bytes("/Music/Nowhere/New.WAV")},
            {"deep", bytes(deep)}};
}

std::vector<Seed> wavSeeds() {
    Bytes other = wav(1, 1, 8000, 8, 50);
    std::copy_n("AVI ", 4, other.begin() + 8);
    return {{"pcm16", wav(1, 2, 44100, 16, 2000)},
            {"pcm8", wav(1, 1, 8000, 8, 800)},
            {"float", wav(3, 2, 22050, 32, 1000)},
            {"extensible", wav(0xFFFE, 2, 44100, 16, 1000)},
            {"lying", wav(1, 2, 44100, 16, 500, 0x7FFFFFF0)},
            {"other", other}};
}

std::vector<Seed> cueSeeds() {
    return {
        {"cue",
         bytes(
             "FILE \"disc.bin\" BINARY\nTRACK 01 AUDIO\nINDEX 01 00:00:00\nTRACK 02 AUDIO\nPREGAP 00:00:02\n"
             "INDEX 00 00:00:05\nINDEX 01 00:00:08\nTRACK 03 MODE1/2352\nINDEX 01 00:00:15\n")},
        {"cue-odd",
         bytes("FILE \"gone.bin\" WAVE\nTRACK 02 AUDIO\nINDEX 01 00:00:10\nFILE \"disc.bin\" BINARY\n"
               "TRACK 01 AUDIO\nINDEX 01 00:00:04\nTRACK 99 AUDIO\nINDEX 01 99:59:74\n")},
        {"toc",
         bytes("CD_DA\nTRACK AUDIO\nFILE \"disc.bin\" 0 00:00:10\nTRACK AUDIO\nSTART 00:00:02\n"
               "FILE \"disc.bin\" 00:00:10 00:00:10\nTRACK MODE1\nDATAFILE \"disc.bin\" 74:59:74 99:00:00\n"
               "SILENCE -1\nFILE \"\" 0\n")}};
}

std::vector<Seed> rtfSeeds() {
    return {
        {"page", bytes("{\\rtf1\\ansi\\ansicpg1252\\deff0{\\fonttbl{\\f0\\fnil\\fcharset0 "
                       "Arial;}}\r\n{\\colortbl;\\red255"
                       "\\green0\\blue0;}\r\n\\pard\\qc\\plain\\b Hi\\plain  "
                       "there\\par\r\n\\pard\\qr\\plain\\i\\cf1\\'dc"
                       "\\u1046?\\tab\\line}\r\n{\\bc\\13156270;-bc}\r\n")},
        {"editor",
         bytes("{\\rtf1\\ansi\\ansicpg1251\\deff0{\\fonttbl{\\f0\\fswiss\\fcharset204{\\*\\panose 0}Arial;}"
               "{\\f1\\fcharset128 MS Gothic;}}{\\*\\generator X}\\uc1\\pard\\f0\\fs20 \\'c0 {\\f1\\'82\\'a0}"
               "\\u-10179?\\u-8694?{\\field{\\*\\fldinst HYPERLINK x}{\\fldrslt link}}\\emdash\\~\\par}")},
        {"objects",
         bytes("{\\rtf1 a{\\pict\\pngblip 89504e47}{\\object\\bin6 }}{{\\}{\\stylesheet{;}}\\uc0\\u8364 b")},
    };
}

std::vector<Seed> kakSeeds() {
    return {{"whole", bytes(" 150 , 0 , 310 , 6 , 500 , 12 , 9000 , 21 , 0 , 0 ,")},
            {"odd", bytes("12,-3, x ,99999999999,\"7\",\r\n 5")}};
}

}  // namespace sonarium::fuzz
