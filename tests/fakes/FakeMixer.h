#pragma once
// A tone mixer that reports its controls from OpenMixer, at once and in order, and records
// every value sent to them.
#include <optional>
#include <vector>

#include "CallLog.h"
#include "controls/ToneMixer.h"

namespace sonarium {

class FakeMixer : public ToneMixer, public CallLog {
public:
    struct Control {
        QString name;
        std::int32_t id0, id1;
    };
    // By default "Treble" (1, 101), "Bass" (2, 102) and "VUMeterWaveOut" (3, 103).
    FakeMixer();

    // --- Set-up (tests) ---
    void setControls(std::vector<Control> controls) { controls_ = std::move(controls); }

    // --- Looking in (tests) ---
    // The last value sent to the named control's pair, if any was.
    std::optional<std::int32_t> value(const QString& name) const;

    // --- ToneMixer ---
    void OpenMixer() override;
    bool SetControlValue(std::int32_t id0, std::int32_t id1, std::int16_t zero, std::int32_t value) override;

private:
    std::vector<Control> controls_;
    struct Sent {
        std::int32_t id0, id1, value;
    };
    std::vector<Sent> sent_;
};

}  // namespace sonarium
