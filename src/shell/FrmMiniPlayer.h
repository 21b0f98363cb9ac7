#pragma once
// The mini player window. It has no player of its own: it drives the main window's.
#include "controls/ControlArray.h"
#include "controls/Form.h"
#include "controls/Widgets.h"

namespace sonarium {

class FrmMiniPlayer : public Form {
public:
    FrmMiniPlayer() : Form(QStringLiteral("FrmMiniPlayer")) { setCaption(QStringLiteral("Zipdeck")); }
    Image Photo{"Photo"};
    PictureBox Picture1{"Picture1"};
    ControlArray<Image> imgVU{"imgVU", 19};
    // The song's position bar and its knob; positions in twips.
    Image imgSLiderSong{"imgSLiderSong"}, imgButtonSong{"imgButtonSong"};
    // Volume, treble and bass share one travel, from MiniSliderTop (100) to MiniSliderBottom (0).
    Image SLiderVolume{"SLiderVolume"}, SliderTreble{"SliderTreble"}, SliderBass{"SliderBass"};
    Image imgVUGreen{"imgVUGreen"}, imgVUAmber{"imgVUAmber"}, imgVURed{"imgVURed"},
        imgVUPurple{"imgVUPurple"};
};

}  // namespace sonarium
