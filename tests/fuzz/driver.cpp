// The main of a fuzz target in builds without libFuzzer: the seed corpus, then seeded
// mutations of it, so that every test run feeds the target the same inputs and a failure
// repeats, under a debugger if need be. Stops after kMutations inputs or kBudget, whichever
// comes first. (A libFuzzer build saves and replays crashing inputs itself.) Given a directory,
// it writes the seeds there instead, one file each, for a libFuzzer run to start from.
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <fstream>
#include <random>
#include <string>

#include "Seeds.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace {

using sonarium::fuzz::Bytes;

// One to four random edits of `input`: bit flips, random bytes or copied pieces put in, bytes
// taken out or the rest cut off, splices with `other`, and markers the parsers look for ("TAG",
// "ID3", "Xing", frame headers) dropped at telling places. Never longer than 64 KiB.
Bytes mutate(const Bytes& input, const Bytes& other, std::mt19937& rng) {
    // clang-format off
    static const std::string kMarkers[] = {"TAG", "ID3", "Xing", "Info", "\xFF\xFB\x90\x64", "\xFF\xF3\x80\xC0",
                                           "\xFF\xFF\xFF\xFF", std::string(4, '\0')};
    // clang-format on
    Bytes b = input;
    auto pick = [&rng](std::size_t n) { return n == 0 ? 0 : std::size_t(rng() % n); };
    auto at = [&b](std::size_t i) { return b.begin() + std::ptrdiff_t(i); };
    for (int edits = 1 + int(rng() % 4); edits > 0; --edits) {
        const std::size_t where = pick(b.size() + 1);
        switch (rng() % 5) {
        case 0:  // a bit flipped
            if (!b.empty()) b[pick(b.size())] ^= std::uint8_t(1u << (rng() % 8));
            break;
        case 1: {  // random bytes, or a piece of the input itself, put in
            Bytes piece(1 + pick(64));
            for (auto& x : piece) x = std::uint8_t(rng());
            if (rng() % 2 && !b.empty()) {
                const std::size_t from = pick(b.size());
                piece.assign(at(from), at(std::min(b.size(), from + 1 + pick(512))));
            }
            b.insert(at(where), piece.begin(), piece.end());
            break;
        }
        case 2:  // bytes taken out, or the rest cut off
            b.erase(at(where), rng() % 4 ? at(std::min(b.size(), where + 1 + pick(256))) : b.end());
            break;
        case 3:  // the head of one, the tail of the other
            b.resize(where);
            b.insert(b.end(), other.begin() + std::ptrdiff_t(pick(other.size() + 1)), other.end());
            break;
        default: {  // a marker the parsers look for: at the start, where a tag's goes, or anywhere
            const std::string& m = kMarkers[pick(std::size(kMarkers))];
            const std::size_t to = rng() % 3 == 0                        ? 0
                                   : (rng() % 2 == 0 && b.size() >= 128) ? b.size() - 128
                                                                         : where;
            if (b.size() < to + m.size()) b.resize(to + m.size(), 0);
            std::copy(m.begin(), m.end(), at(to));
            break;
        }
        }
    }
    if (b.size() > 64 * 1024) b.resize(64 * 1024);
    return b;
}

}  // namespace

int main(int argc, char** argv) {
    using namespace sonarium::fuzz;
    constexpr int kMutations = 4000;
    constexpr auto kBudget = std::chrono::seconds(2);

    const std::vector<Seed> seeds = FUZZ_SEEDS();  // the build names the target's seed function
    if (argc == 2) {
        for (const Seed& s : seeds) {
            std::ofstream out(std::string(argv[1]) + "/" + s.name, std::ios::binary);
            if (!out.write(reinterpret_cast<const char*>(s.bytes.data()), std::streamsize(s.bytes.size()))) {
                std::perror(argv[1]);
                return 1;
            }
        }
        return 0;
    }
    for (const Seed& s : seeds) LLVMFuzzerTestOneInput(s.bytes.data(), s.bytes.size());

    std::mt19937 rng(20240601);
    const auto deadline = std::chrono::steady_clock::now() + kBudget;
    Bytes last = seeds.front().bytes;
    int done = 0;
    for (; done < kMutations && std::chrono::steady_clock::now() < deadline; ++done) {
        // Half the time build on the last input, so that edits pile up.
        const Bytes& base = rng() % 2 ? last : seeds[rng() % seeds.size()].bytes;
        last = mutate(base, seeds[rng() % seeds.size()].bytes, rng);
        LLVMFuzzerTestOneInput(last.data(), last.size());
    }
    std::printf("ran %zu seeds and %d mutations\n", seeds.size(), done);
    return 0;
}
