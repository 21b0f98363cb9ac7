#pragma once
// A peak meter with scripted answers for each opening step and a script of readings.
#include <vector>

#include "CallLog.h"
#include "controls/PeakMeter.h"

namespace sonarium {

class FakePeakMeter : public PeakMeter, public CallLog {
public:
    // --- Set-up (tests) ---
    void setOpenResult(int result) { openResult_ = result; }
    void setFindResult(bool found) { found_ = found; }
    void setMaximum(std::int32_t maximum) { maximum_ = maximum; }
    void setPrepareResult(bool ok) { prepareOk_ = ok; }
    // Each Read takes the next reading; the last one then repeats. Default: one reading of 0.
    void setReadings(std::vector<std::int32_t> readings) { readings_ = std::move(readings), next_ = 0; }

    // --- Looking in (tests) ---
    bool prepared() const { return prepared_; }
    // Reads are counted, not logged: the meter is read every 10 ms.
    int readCount() const { return reads_; }

    // --- PeakMeter ---
    int OpenMixer() override;
    bool FindPeakControl() override;
    std::int32_t Maximum() override;
    bool Prepare() override;
    std::optional<std::int32_t> Read() override;
    void Free() override;

private:
    int openResult_ = 0;
    bool found_ = true, prepareOk_ = true, prepared_ = false;
    std::int32_t maximum_ = 32768;
    std::vector<std::int32_t> readings_{0};
    std::size_t next_ = 0;
    int reads_ = 0;
};

}  // namespace sonarium
