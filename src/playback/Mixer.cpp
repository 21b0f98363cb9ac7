// Volume, treble and bass: the mixer component and the three sliders of the window.
#include "controls/Errors.h"
#include "playback/SliderTravel.h"
#include "shell/Form1.h"

namespace sonarium {

using namespace slider;

void Form1::OpenMixerAtLoad() {
    C.mixer.onControlFound = [this](const QString& name, std::int32_t id0, std::int32_t id1) {
        ControlFound(name, id0, id1);
    };
    C.mixer.OpenMixer();
}

// Names compare exactly. The VU pair is kept but nothing reads it: the meter's level comes
// from the peak meter.
void Form1::ControlFound(const QString& name, std::int32_t id0, std::int32_t id1) {
    if (name == QLatin1String("Treble")) {
        M.TrebleControl = {id0, id1};
    } else if (name == QLatin1String("Bass")) {
        M.BassControl = {id0, id1};
    } else if (name == QLatin1String("VUMeterWaveOut")) {
        VUMeterControl = {id0, id1};
    }
}

void Form1::PlaceVolumeSlider(double value) { SLiderVolume.setTop(topFor(VolumeTop, value)); }

void Form1::PlaceSliders() {
    tryStep([&] { PlaceVolumeSlider(M.Volume); });
    tryStep([&] { SliderTreble.setTop(topFor(TrebleTop, M.Treble)); });
    tryStep([&] { SliderBass.setTop(topFor(BassTop, M.Bass)); });
}

void Form1::SendToneToMixer() {
    tryStep([&] { C.mixer.SetControlValue(M.BassControl[0], M.BassControl[1], 0, M.Bass); });
    tryStep([&] { C.mixer.SetControlValue(M.TrebleControl[0], M.TrebleControl[1], 0, M.Treble); });
}

// One drag flag serves all three sliders: any mouse-down sets it, any mouse-up clears it, and a
// lost mouse-up leaves it set.
void Form1::ToneSlider_MouseDown(ToneSlider) { SliderDragging = true; }
void Form1::ToneSlider_MouseUp(ToneSlider) { SliderDragging = false; }

// While dragging, the slider follows the cursor (centred under it) within its travel and its
// value follows the slider. Treble and bass go to the mixer on every move over the slider,
// dragging or not, so merely passing over one sends its working value; the volume is sent only
// while dragging, and becomes the listener's volume unless a fade is running.
void Form1::ToneSlider_MouseMove(ToneSlider which, double y) {
    Image& slider = which == ToneSlider::Volume   ? SLiderVolume
                    : which == ToneSlider::Treble ? SliderTreble
                                                  : SliderBass;
    const int top100 = which == ToneSlider::Volume   ? VolumeTop
                       : which == ToneSlider::Treble ? TrebleTop
                                                     : BassTop;
    if (SliderDragging) {
        tryStep([&] {
            const int top = toInt32(slider.Top() + y - slider.Height() / 2.0);
            slider.setTop(std::clamp(top, top100, top100 + Travel));
            const double value = roundHalfEven(100 - (slider.Top() - top100) / TwipsPerUnit);
            if (which == ToneSlider::Volume) {
                M.Volume = toInt16(value);
                C.mp3.SetVolume(M.Volume, M.Volume);
            } else {
                (which == ToneSlider::Treble ? M.Treble : M.Bass) = toInt32(value);
            }
        });
    }
    if (which == ToneSlider::Treble)
        tryStep([&] { C.mixer.SetControlValue(M.TrebleControl[0], M.TrebleControl[1], 0, M.Treble); });
    else if (which == ToneSlider::Bass)
        tryStep([&] { C.mixer.SetControlValue(M.BassControl[0], M.BassControl[1], 0, M.Bass); });
    else if (!Fading)
        SavedVolume = M.Volume;
}

}  // namespace sonarium
