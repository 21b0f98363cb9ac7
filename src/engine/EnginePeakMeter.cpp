#include "engine/EnginePeakMeter.h"

namespace sonarium {

bool EnginePeakMeter::Prepare() {
    // What played before the meter existed is not this tick's level.
    level_.takeReading();
    prepared_ = true;
    return true;
}

std::optional<std::int32_t> EnginePeakMeter::Read() {
    if (!prepared_) return std::nullopt;
    return level_.takeReading();
}

void EnginePeakMeter::Free() { prepared_ = false; }

}  // namespace sonarium
