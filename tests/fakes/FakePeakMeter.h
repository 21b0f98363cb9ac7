#pragma once
// A peak meter with scripted answers for its opening steps and a script of readings.
#include <vector>

#include "controls/PeakMeter.h"

namespace sonarium {

class FakePeakMeter : public PeakMeter {
public:
    // --- Set-up (tests) ---
    void setFindResult(bool found) { found_ = found; }
    void setMaximum(std::int32_t maximum) { maximum_ = maximum; }
    // Each Read takes the next reading; the last one then repeats. Default: one reading of 0.
    void setReadings(std::vector<std::int32_t> readings) { readings_ = std::move(readings), next_ = 0; }

    // --- Looking in (tests) ---
    bool prepared() const { return prepared_; }

    // --- PeakMeter ---
    int OpenMixer() override { return 0; }
    bool FindPeakControl() override { return found_; }
    std::int32_t Maximum() override { return maximum_; }
    bool Prepare() override { return prepared_ = true; }
    void Free() override { prepared_ = false; }
    std::optional<std::int32_t> Read() override {
        if (!prepared_ || readings_.empty()) return std::nullopt;
        const std::int32_t v = readings_[next_];
        if (next_ + 1 < readings_.size()) ++next_;
        return v;
    }

private:
    bool found_ = true, prepared_ = false;
    std::int32_t maximum_ = 32768;
    std::vector<std::int32_t> readings_{0};
    std::size_t next_ = 0;
};

}  // namespace sonarium
