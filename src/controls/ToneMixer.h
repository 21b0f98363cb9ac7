#pragma once
// The mixer component for treble and bass. OpenMixer reports each control it manages through
// ControlFound ("Treble", "Bass", "VUMeterWaveOut") with a pair of identifiers.
#include <QString>
#include <cstdint>
#include <functional>

namespace sonarium {

class ToneMixer {
public:
    virtual ~ToneMixer() = default;
    virtual void OpenMixer() = 0;
    // Sets the control that the pair names to value per cent of its range.
    virtual bool SetControlValue(std::int32_t id0, std::int32_t id1, std::int16_t zero,
                                 std::int32_t value) = 0;

    std::function<void(const QString& name, std::int32_t id0, std::int32_t id1)> onControlFound;
};

}  // namespace sonarium
