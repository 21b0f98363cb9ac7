#pragma once
// The mixer component over our own output path: "Treble" and "Bass" are the shelves that every
// player applies, so setting one changes what all players sound like from their next block.
// "VUMeterWaveOut" is reported because the program looks for it, but it sets nothing.
#include <cstdint>

#include "controls/ToneMixer.h"
#include "engine/audio/SoundProcessor.h"

namespace sonarium {

class EngineMixer : public ToneMixer {
public:
    // The identifier pairs this mixer reports; opaque to the program.
    static constexpr std::int32_t kTreble[2] = {1, 1001};
    static constexpr std::int32_t kBass[2] = {2, 1002};
    static constexpr std::int32_t kVuMeter[2] = {3, 1003};

    explicit EngineMixer(ToneSettings& tone) : tone_(tone) {}

    // Reports Treble, Bass, VUMeterWaveOut in that order, before returning.
    void OpenMixer() override;
    // A Treble or Bass pair takes value clamped to 0..100 and answers true; any other pair,
    // the meter's included, changes nothing and answers false.
    bool SetControlValue(std::int32_t id0, std::int32_t id1, std::int16_t zero, std::int32_t value) override;

private:
    ToneSettings& tone_;
};

}  // namespace sonarium
