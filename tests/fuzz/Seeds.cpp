#include "Seeds.h"

#include <algorithm>
#include <cstring>

namespace sonarium::fuzz {
namespace {

constexpr std::size_t kMaxSize = 64 * 1024;

void append(Bytes& b, const char* text, std::size_t n) {
    b.insert(b.end(), text, text + n);
}

Bytes tag(const char* title) {
    Bytes b(128, 0);
    std::memcpy(b.data(), "TAG", 3);
    std::memcpy(b.data() + 3, title, std::min<std::size_t>(std::strlen(title), 30));
    std::memcpy(b.data() + 93, "1999", 4);
    b[125] = 0;  // ID3v1.1: a track number after a NUL
    b[126] = 7;
    b[127] = 17;
    return b;
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

// MPEG-1 Layer III, 128 kbit/s, 44.1 kHz, joint stereo: 417 bytes a frame.
Bytes mpeg1(int count) {
    return frames(0xFFFB9064u, 417, count);
}

Bytes concat(Bytes a, const Bytes& b) {
    a.insert(a.end(), b.begin(), b.end());
    return a;
}

}  // namespace

std::vector<Seed> seedCorpus() {
    std::vector<Seed> seeds;
    seeds.push_back({"empty", {}});
    seeds.push_back({"tag", tag("Tiny Caf\xE9 \x80")});
    seeds.push_back({"mpeg1", mpeg1(8)});
    seeds.push_back({"mpeg1-tag", concat(mpeg1(4), tag("Title"))});
    // MPEG-2 Layer III, 64 kbit/s, 22.05 kHz, mono: 208 bytes a frame.
    seeds.push_back({"mpeg2-mono", frames(0xFFF380C0u, 208, 8)});
    // A stream whose format changes midway: mono 22.05 kHz, then stereo 44.1 kHz.
    seeds.push_back({"format-change", concat(frames(0xFFF380C0u, 208, 3), mpeg1(6))});
    // Free format (bit rate index 0): the frame size comes from the distance between headers.
    seeds.push_back({"free-format", frames(0xFFFB0064u, 300, 6)});

    Bytes xing = mpeg1(6);
    std::memcpy(xing.data() + 36, "Xing\0\0\0\x03\x7F\xFF\xFF\xFF\0\0\x10\0", 16);  // lies: 2^31 frames
    seeds.push_back({"xing", xing});

    Bytes id3v2;
    append(id3v2, "ID3\x03\x00\x00\x00\x00\x00\x14", 10);  // 20 bytes of tag after the header
    append(id3v2, "TIT2\x00\x00\x00\x06\x00\x00\x00Title", 16);
    id3v2.resize(30, 0);
    seeds.push_back({"id3v2", concat(id3v2, mpeg1(4))});
    Bytes lying;
    append(lying, "ID3\x04\x00\x10\x7F\x7F\x7F\x7F", 10);  // claims 256 MiB and a footer
    seeds.push_back({"id3v2-lying", concat(lying, mpeg1(2))});

    std::mt19937 rng(12345);
    Bytes random(2000);
    for (auto& b : random) b = std::uint8_t(rng());
    seeds.push_back({"random", random});
    return seeds;
}

std::vector<Seed> pathSeeds() {
    std::vector<Seed> seeds;
    auto text = [](const std::string& s) { return Bytes(s.begin(), s.end()); };
    seeds.push_back({"empty", {}});
    seeds.push_back({"case", text("MUSIC/rock/song.mp3")});
    seeds.push_back({"dots", text("music/../MUSIC//./Rock/")});
    seeds.push_back({"loops", text("Music/UP/music/up/SELF/x")});
    seeds.push_back({"new", text("/Music/Nowhere/New.WAV")});
    // A skin path of 50,000 components, as a hand-edited settings file once held.
    std::string deep = "music";
    for (int i = 0; i < 50000; ++i) deep += "/a";
    seeds.push_back({"deep", text(deep)});
    return seeds;
}

Bytes mutate(const Bytes& input, const Bytes& other, std::mt19937& rng) {
    static const char* const kMarkers[] = {
        "TAG", "ID3", "Xing", "Info", "\xFF\xFB\x90\x64", "\xFF\xF3\x80\xC0", "\xFF\xFF\xFF\xFF", "\0\0\0\0"};
    Bytes b = input;
    auto pick = [&rng](std::size_t n) { return n == 0 ? 0 : std::size_t(rng() % n); };
    const int edits = 1 + int(rng() % 4);
    for (int e = 0; e < edits; ++e) {
        switch (rng() % 8) {
            case 0:
                if (!b.empty()) b[pick(b.size())] ^= std::uint8_t(1u << (rng() % 8));
                break;
            case 1:
                if (!b.empty()) b[pick(b.size())] = std::uint8_t(rng());
                break;
            case 2: {
                Bytes bytes(1 + pick(64));
                for (auto& x : bytes) x = std::uint8_t(rng());
                b.insert(b.begin() + std::ptrdiff_t(pick(b.size() + 1)), bytes.begin(), bytes.end());
                break;
            }
            case 3:
                if (!b.empty()) {
                    const std::size_t at = pick(b.size());
                    const std::size_t n = std::min(b.size() - at, 1 + pick(256));
                    b.erase(b.begin() + std::ptrdiff_t(at), b.begin() + std::ptrdiff_t(at + n));
                }
                break;
            case 4:
                if (!b.empty()) {
                    const std::size_t at = pick(b.size());
                    const Bytes piece(b.begin() + std::ptrdiff_t(at),
                                      b.begin() + std::ptrdiff_t(std::min(b.size(), at + 1 + pick(512))));
                    b.insert(b.begin() + std::ptrdiff_t(pick(b.size() + 1)), piece.begin(), piece.end());
                }
                break;
            case 5:
                b.resize(pick(b.size() + 1));
                break;
            case 6: {
                // Head of one, tail of the other.
                const std::size_t cut = pick(b.size() + 1);
                b.resize(cut);
                const std::size_t from = pick(other.size() + 1);
                b.insert(b.end(), other.begin() + std::ptrdiff_t(from), other.end());
                break;
            }
            default: {
                const char* m = kMarkers[pick(std::size(kMarkers))];
                const std::size_t n = std::max<std::size_t>(std::strlen(m), 4 * (m[0] == '\0'));
                // The start, where a tag's marker goes at the end, or anywhere.
                std::size_t at = pick(b.size() + 1);
                if (rng() % 3 == 0)
                    at = 0;
                else if (rng() % 2 == 0 && b.size() >= 128)
                    at = b.size() - 128;
                if (b.size() < at + n) b.resize(at + n, 0);
                std::memcpy(b.data() + at, m, n);
                break;
            }
        }
    }
    if (b.size() > kMaxSize) b.resize(kMaxSize);
    return b;
}

}  // namespace sonarium::fuzz
