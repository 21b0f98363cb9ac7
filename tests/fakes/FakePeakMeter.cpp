#include "FakePeakMeter.h"

namespace sonarium {

int FakePeakMeter::OpenMixer() {
    record(QStringLiteral("OpenMixer"));
    return openResult_;
}

bool FakePeakMeter::FindPeakControl() {
    record(QStringLiteral("FindPeakControl"));
    return found_;
}

std::int32_t FakePeakMeter::Maximum() {
    record(QStringLiteral("Maximum"));
    return maximum_;
}

bool FakePeakMeter::Prepare() {
    record(QStringLiteral("Prepare"));
    prepared_ = prepareOk_;
    return prepareOk_;
}

std::optional<std::int32_t> FakePeakMeter::Read() {
    ++reads_;
    if (!prepared_ || readings_.empty()) return std::nullopt;
    std::int32_t v = readings_[next_];
    if (next_ + 1 < readings_.size()) ++next_;
    return v;
}

void FakePeakMeter::Free() {
    record(QStringLiteral("Free"));
    prepared_ = false;
}

}  // namespace sonarium
