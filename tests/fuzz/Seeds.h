#pragma once
// The starting inputs of the fuzz targets, shared by the short runs of every build and by the
// corpus a real fuzzing run starts from.
#include <cstdint>
#include <string>
#include <vector>

namespace sonarium::fuzz {

using Bytes = std::vector<std::uint8_t>;

struct Seed {
    std::string name;
    Bytes bytes;
};

// Empty input, a tag alone, MPEG frames (MPEG-1, MPEG-2, mono, free format, a Xing header, a
// change of format midway), frames after an ID3v2 header, frames with a tag, a lying ID3v2
// header, random bytes.
std::vector<Seed> seedCorpus();
// File names: case that differs, dots and doubled slashes, a looping symlink, a new name, and
// a name of 50,000 components.
std::vector<Seed> pathSeeds();
// WAV files: 16-bit stereo, 8-bit mono, float, WAVE_FORMAT_EXTENSIBLE, one whose header claims
// more data than it holds, and a RIFF of another kind (the mutations cut files short).
std::vector<Seed> wavSeeds();
// CD image descriptions, each read as a .cue and as a .toc next to disc.bin: audio tracks with
// gaps and a data track; a missing file, tracks backwards and past the data; nonsense.
std::vector<Seed> cueSeeds();
// RTF pages: one as the program writes it, with its marker line; one as an editor writes it, in
// code pages 1251 and 932, with a field and a surrogate pair; pictures, binary data and braces
// left open.
std::vector<Seed> rtfSeeds();
// Karaoke timings: a whole file as the program writes it; one without its last comma, with
// text, a sign and a number past a Long.
std::vector<Seed> kakSeeds();

}  // namespace sonarium::fuzz
