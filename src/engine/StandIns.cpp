#include "engine/StandIns.h"

#include <cstdio>

#include "controls/Errors.h"

namespace sonarium {

namespace {

void announce(const char* component) {
    std::fprintf(stderr, "sonarium: %s is not available in this build (stand-in)\n", component);
}

}  // namespace

StandInCdReader::StandInCdReader() { announce("the CD reader"); }

}  // namespace sonarium
