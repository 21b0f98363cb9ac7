// The main of a fuzz target in builds without libFuzzer: the seed corpus, then seeded
// mutations of it, so that every test run feeds the target the same inputs and a failure
// repeats. Stops after kMutations inputs or kBudget, whichever comes first. Files named on
// the command line are run instead (a crash input saved by a real fuzzing run, for one).
#include <fcntl.h>
#include <unistd.h>

#include <chrono>
#include <csignal>
#include <cstdio>
#include <fstream>
#include <iterator>

#include "Seeds.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace {

constexpr int kMutations = 4000;
constexpr auto kBudget = std::chrono::seconds(2);

// The input being run, kept where a crash handler can save it.
const sonarium::fuzz::Bytes* current = nullptr;

void run(const sonarium::fuzz::Bytes& input) {
    current = &input;
    LLVMFuzzerTestOneInput(input.data(), input.size());
    current = nullptr;
}

// Saves the input that crashed as crash-input in the working directory (the build tree under
// ctest), to be run again by naming it, then dies of the same signal. Async-signal-safe calls only.
void saveCrashInput(int sig) {
    if (current) {
        const int fd = open("crash-input", O_WRONLY | O_CREAT | O_TRUNC, 0644);
        if (fd >= 0) {
            [[maybe_unused]] ssize_t n = write(fd, current->data(), current->size());
            close(fd);
            const char note[] = "the crashing input is saved in crash-input\n";
            n = write(STDERR_FILENO, note, sizeof note - 1);
        }
    }
    signal(sig, SIG_DFL);
    raise(sig);
}

}  // namespace

int main(int argc, char** argv) {
    using namespace sonarium::fuzz;
    for (int sig : {SIGABRT, SIGSEGV, SIGBUS, SIGFPE, SIGILL}) signal(sig, saveCrashInput);
    if (argc > 1) {
        for (int i = 1; i < argc; ++i) {
            std::ifstream in(argv[i], std::ios::binary);
            if (!in) {
                std::fprintf(stderr, "cannot read %s\n", argv[i]);
                return 1;
            }
            run(Bytes(std::istreambuf_iterator<char>(in), {}));
        }
        std::printf("ran %d input(s)\n", argc - 1);
        return 0;
    }

    const std::vector<Seed> seeds = FUZZ_SEEDS();
    for (const Seed& s : seeds) run(s.bytes);

    std::mt19937 rng(20240601);
    const auto deadline = std::chrono::steady_clock::now() + kBudget;
    Bytes last = seeds.front().bytes;
    int done = 0;
    for (; done < kMutations && std::chrono::steady_clock::now() < deadline; ++done) {
        // Half the time build on the last input, so that edits pile up.
        const Bytes& base = rng() % 2 ? last : seeds[rng() % seeds.size()].bytes;
        last = mutate(base, seeds[rng() % seeds.size()].bytes, rng);
        run(last);
    }
    std::printf("ran %zu seeds and %d mutations\n", seeds.size(), done);
    return 0;
}
