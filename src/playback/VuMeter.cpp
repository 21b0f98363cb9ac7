// The VU meter: the peak level of the sound output on nineteen lamps.
#include <limits>
#include <optional>

#include "controls/Errors.h"
#include "shell/Form1.h"
#include "shell/FrmMiniPlayer.h"
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

// The panel of lamps takes the song slider's place. The lamps are written at every tick of play
// whether the panel is seen or not.
void Form1::mnuVU_Click() {
    const bool on = !mnuVU.Checked();
    tryStep([&] { imgSLiderSong.setVisible(!on); });
    tryStep([&] { imgButtonSong.setVisible(!on); });
    tryStep([&] { PanelVU.setVisible(on); });
    M.VUMeterOn = on ? 1 : 0;
    tryStep([&] { mnuVU.setChecked(on); });
}

// Each tick shows that tick's reading, in 18 equal steps of the scale: no hold, no decay. The
// three runs overlap at lamps 10 and 15 and the later run wins, so those are amber and red.
// Lamp 0 is lit all through play. A meter that was never prepared gives no reading, and the
// lamps stay as they are.
void Form1::TimerMix_Timer() {
    if (!M.SongPlaying) return;
    std::optional<std::int32_t> reading;
    tryStep([&] { reading = C.peak.Read(); });
    if (!reading) return;
    PeakValue = *reading;
    // The most negative reading has no positive twin; it stays as it is, and lights nothing.
    if (PeakValue < 0 && PeakValue != std::numeric_limits<std::int32_t>::min()) PeakValue = -PeakValue;
    tryStep([&] { LampStep = toInt32(PeakMaximum / 18.0); });
    auto run = [&](int from, int to, Image& lit, Image& miniLit) {
        for (int i = from; i <= to; ++i) {
            const bool off = std::int64_t(PeakValue) < std::int64_t(LampStep) * i;
            // The window is chosen anew for each lamp, as it may change between two of them.
            if (Visible())
                tryStep([&] { imgVU[i].setPicture(off ? imgVUPurple.picture() : lit.picture()); });
            else
                tryStep([&] {
                    frmMiniPlayer.imgVU[i].setPicture(off ? frmMiniPlayer.imgVUPurple.picture()
                                                          : miniLit.picture());
                });
        }
    };
    run(0, 10, imgVUGreen, frmMiniPlayer.imgVUGreen);
    run(10, 15, imgVUAmber, frmMiniPlayer.imgVUAmber);
    run(15, 18, imgVURed, frmMiniPlayer.imgVURed);
}

}  // namespace sonarium
