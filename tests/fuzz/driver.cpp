// The main of a fuzz target in builds without libFuzzer: the seed corpus, then seeded
// mutations of it, so that every test run feeds the target the same inputs and a failure
// repeats, under a debugger if need be. Stops after kMutations inputs or kBudget, whichever
// comes first. (A libFuzzer build saves and replays crashing inputs itself.)
#include <chrono>
#include <cstdio>

#include "Seeds.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

int main() {
    using namespace sonarium::fuzz;
    constexpr int kMutations = 4000;
    constexpr auto kBudget = std::chrono::seconds(2);

    const std::vector<Seed> seeds = FUZZ_SEEDS();
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
