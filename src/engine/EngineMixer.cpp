#include "engine/EngineMixer.h"

#include <algorithm>

namespace sonarium {

void EngineMixer::OpenMixer() {
    if (!onControlFound) return;
    onControlFound(QStringLiteral("Treble"), kTreble[0], kTreble[1]);
    onControlFound(QStringLiteral("Bass"), kBass[0], kBass[1]);
    onControlFound(QStringLiteral("VUMeterWaveOut"), kVuMeter[0], kVuMeter[1]);
}

bool EngineMixer::SetControlValue(std::int32_t id0, std::int32_t id1, std::int16_t, std::int32_t value) {
    const int clamped = static_cast<int>(std::clamp<std::int32_t>(value, 0, 100));
    if (id0 == kTreble[0] && id1 == kTreble[1]) {
        tone_.treble.store(clamped);
        return true;
    }
    if (id0 == kBass[0] && id1 == kBass[1]) {
        tone_.bass.store(clamped);
        return true;
    }
    return false;
}

}  // namespace sonarium
