#pragma once
// A tone mixer with the controls "Treble" (1, 101), "Bass" (2, 102) and "VUMeterWaveOut"
// (3, 103), reported from OpenMixer at once and in that order; every value sent is recorded.
#include "CallLog.h"
#include "controls/ToneMixer.h"

namespace sonarium {

class FakeMixer : public ToneMixer, public CallLog {
public:
    void OpenMixer() override {
        record("OpenMixer");
        if (!onControlFound) return;
        onControlFound(QStringLiteral("Treble"), 1, 101);
        onControlFound(QStringLiteral("Bass"), 2, 102);
        onControlFound(QStringLiteral("VUMeterWaveOut"), 3, 103);
    }
    bool SetControlValue(std::int32_t id0, std::int32_t id1, std::int16_t zero, std::int32_t value) override {
        record("SetControlValue", id0, id1, zero, value);
        return true;
    }
};

}  // namespace sonarium
