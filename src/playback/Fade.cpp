// The fade-out's clock: 2 volume points every 100 ms, then Stop.
#include "controls/Errors.h"
#include "shell/Form1.h"

namespace sonarium {

void Form1::StartFade() { Timer1.setEnabled(true); }

// Stop comes before the last SetVolume(0, 0). Nothing here looks at the play state: a timer left
// running after a stop (StreamEnd restores the volume but doesn't stop the timer) runs the
// restored volume down again and ends with a Stop on an idle player.
void Form1::Timer1_Timer() {
    tryStep([&] { M.Volume = std::int16_t(M.Volume - 2); });
    if (M.Volume < 1) {
        M.Volume = 0;
        tryStep([&] { C.mp3.Stop(); });
        Timer1.setEnabled(false);
    }
    tryStep([&] { C.mp3.SetVolume(M.Volume, M.Volume); });
    tryStep([&] { PlaceVolumeSlider(M.Volume); });
}

}  // namespace sonarium
