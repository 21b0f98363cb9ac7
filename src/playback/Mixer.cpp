// Volume, treble and bass: the mixer component, the sliders and Mixer.dat.
#include "controls/Errors.h"
#include "shell/Form1.h"
#include "shell/TextFields.h"

namespace sonarium {

namespace {
// Slider Top at value 100 and the travel down to value 0, in twips.
constexpr int VolumeTop = 275, TrebleTop = 1505, BassTop = 2735;
constexpr double TwipsPerUnit = 8.1;

int sliderTop(int top100, double value) { return toInt32((100 - value) * TwipsPerUnit + top100); }
}  // namespace

void Form1::OpenMixerAtLoad() {
    C.mixer.onControlFound = [this](const QString& name, std::int32_t id0, std::int32_t id1) {
        if (name == QLatin1String("Treble")) {
            M.TrebleControl = {id0, id1};
        } else if (name == QLatin1String("Bass")) {
            M.BassControl = {id0, id1};
        }
    };
    C.mixer.OpenMixer();
}

void Form1::PlaceVolumeSlider(double value) { SLiderVolume.setTop(sliderTop(VolumeTop, value)); }

void Form1::PlaceSliders() {
    tryStep([&] { PlaceVolumeSlider(M.Volume); });
    tryStep([&] { SliderTreble.setTop(sliderTop(TrebleTop, M.Treble)); });
    tryStep([&] { SliderBass.setTop(sliderTop(BassTop, M.Bass)); });
}

void Form1::SendToneToMixer() {
    tryStep([&] { C.mixer.SetControlValue(M.BassControl[0], M.BassControl[1], 0, M.Bass); });
    tryStep([&] { C.mixer.SetControlValue(M.TrebleControl[0], M.TrebleControl[1], 0, M.Treble); });
}

// Mixer.dat and the queue it brings back land with the playback work.
void Form1::LoadMixer() {}

void Form1::SaveMixer() {}

// The song's own treble and bass from its .TB file land with the tone work.
void Form1::LoadTB() {}

}  // namespace sonarium
