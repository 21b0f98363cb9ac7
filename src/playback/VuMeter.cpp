// The VU meter: the peak level of the sound output on nineteen lamps.
#include "controls/Errors.h"
#include "shell/Form1.h"
#include "shell/TextFields.h"

namespace sonarium {

// At load: without a mixer or a peak meter the menu entry is disabled for the whole run.
void Form1::OpenPeakMeter() {
    trace("Load", 3);
    if (C.peak.OpenMixer() != 0) {
        mnuVU.setEnabled(false);
        return;
    }
    trace("Load", 4);
    trace("Load", 5);
    const bool found = C.peak.FindPeakControl();
    trace("Load", 6);
    if (!found) {
        mnuVU.setEnabled(false);
        return;
    }
    trace("Load", 7);
    PeakMaximum = C.peak.Maximum();
    trace("Load", 8);
    C.peak.Prepare();
    trace("Load", 9);
    LampStep = toInt32(PeakMaximum / 18.0);
    trace("Load", 10);
}

}  // namespace sonarium
