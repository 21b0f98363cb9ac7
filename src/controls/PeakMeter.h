#pragma once
// The peak level of what goes to the sound output, read at each VU tick against a fixed
// maximum. Opening happens in steps because start-up traces each of them.
#include <cstdint>
#include <optional>

namespace sonarium {

class PeakMeter {
public:
    virtual ~PeakMeter() = default;
    // 0 = the mixer of the sound output is open.
    virtual int OpenMixer() = 0;
    // Finds the peak meter of the output line; false when there is none.
    virtual bool FindPeakControl() = 0;
    // The upper bound of a reading.
    virtual std::int32_t Maximum() = 0;
    // Prepares the reading (the 4-byte buffer); false when it cannot.
    virtual bool Prepare() = 0;
    // The current reading; nothing when the meter was never prepared.
    virtual std::optional<std::int32_t> Read() = 0;
    // Frees the buffer; reading afterwards gives nothing.
    virtual void Free() = 0;
};

}  // namespace sonarium
