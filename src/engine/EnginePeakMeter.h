#pragma once
// The VU meter's source: the peak of what the players send to the output since the previous
// tick, against the fixed full scale of 32768. Used on the UI thread only.
#include "controls/PeakMeter.h"
#include "engine/audio/SoundProcessor.h"

namespace sonarium {

class EnginePeakMeter : public PeakMeter {
public:
    explicit EnginePeakMeter(PeakLevel& level) : level_(level) {}

    int OpenMixer() override { return 0; }
    bool FindPeakControl() override { return true; }
    std::int32_t Maximum() override { return PeakLevel::Maximum; }
    bool Prepare() override;
    // The peak since the last reading (which it resets); nothing unless prepared and not freed.
    std::optional<std::int32_t> Read() override;
    void Free() override;

private:
    PeakLevel& level_;
    bool prepared_ = false;
};

}  // namespace sonarium
