// Writes the seed corpus into a directory, one file per seed, for a libFuzzer run to start from.
#include <cstdio>
#include <fstream>

#include "Seeds.h"

int main(int argc, char** argv) {
    if (argc != 2) {
        std::fprintf(stderr, "usage: %s DIRECTORY\n", argv[0]);
        return 2;
    }
    for (const auto& seed : sonarium::fuzz::FUZZ_SEEDS()) {
        std::ofstream out(std::string(argv[1]) + "/" + seed.name, std::ios::binary | std::ios::trunc);
        out.write(reinterpret_cast<const char*>(seed.bytes.data()), std::streamsize(seed.bytes.size()));
        if (!out) {
            std::fprintf(stderr, "cannot write into %s\n", argv[1]);
            return 1;
        }
    }
    return 0;
}
