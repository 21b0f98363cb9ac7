#include "FakeMixer.h"

namespace sonarium {

FakeMixer::FakeMixer()
    : controls_{{QStringLiteral("Treble"), 1, 101},
                {QStringLiteral("Bass"), 2, 102},
                {QStringLiteral("VUMeterWaveOut"), 3, 103}} {}

std::optional<std::int32_t> FakeMixer::value(const QString& name) const {
    for (const Control& c : controls_) {
        if (c.name != name) continue;
        for (auto it = sent_.rbegin(); it != sent_.rend(); ++it)
            if (it->id0 == c.id0 && it->id1 == c.id1) return it->value;
    }
    return std::nullopt;
}

void FakeMixer::OpenMixer() {
    record(QStringLiteral("OpenMixer"));
    for (const Control& c : controls_)
        if (onControlFound) onControlFound(c.name, c.id0, c.id1);
}

bool FakeMixer::SetControlValue(std::int32_t id0, std::int32_t id1, std::int16_t zero,
                                std::int32_t value) {
    record(QStringLiteral("SetControlValue(%1,%2,%3,%4)").arg(id0).arg(id1).arg(zero).arg(value));
    sent_.push_back(Sent{id0, id1, value});
    return true;
}

}  // namespace sonarium
