#pragma once
// The starting inputs of the fuzz targets and a deterministic mutator, shared by the short
// runs of every build and by the corpus a real fuzzing run starts from.
#include <cstdint>
#include <random>
#include <string>
#include <vector>

namespace sonarium::fuzz {

using Bytes = std::vector<std::uint8_t>;

struct Seed {
    std::string name;
    Bytes bytes;
};

// Empty input, a tag alone, MPEG frames (MPEG-1, MPEG-2, mono, free format, a Xing header, a
// change of format midway),
// frames after an ID3v2 header, frames with a tag, a lying ID3v2 header, random bytes.
std::vector<Seed> seedCorpus();
// File names: case that differs, dots and doubled slashes, a looping symlink, a new name, and
// a name of 50,000 components.
std::vector<Seed> pathSeeds();

// The seeds of the target being built (FUZZ_SEEDS names the function; MP3 files by default).
#ifndef FUZZ_SEEDS
#define FUZZ_SEEDS seedCorpus
#endif

// One to four random edits of `input`: bit flips, random bytes or copied pieces put in, bytes
// taken out or the rest cut off, splices with `other`, and markers the parsers look for ("TAG", "ID3",
// "Xing", frame headers) dropped at telling places. Never longer than 64 KiB.
Bytes mutate(const Bytes& input, const Bytes& other, std::mt19937& rng);

}  // namespace sonarium::fuzz
