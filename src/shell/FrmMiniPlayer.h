#pragma once
// The mini player window. It has no player of its own: every command goes to the main
// window's procedures, and the main window writes back into its digits, lamps and list. A
// skin places and sizes every control; until one loads, the built-in skin's layout stands.
#include <cstdint>

#include "controls/Components.h"
#include "controls/ControlArray.h"
#include "controls/Errors.h"
#include "controls/Form.h"
#include "controls/Timer.h"
#include "controls/Widgets.h"
#include "shell/Module1.h"

namespace sonarium {

class Form1;

class FrmMiniPlayer : public Form {
public:
    FrmMiniPlayer(Module1& m, Components& c);
    // The main window whose engine this one drives; set once by the main window.
    void attach(Form1& main) { F1 = &main; }

    // The window's background, shown whole from its top left corner; its magenta pixels are
    // see-through, which gives the window its shape.
    const Picture& picture() const { return picture_; }
    void setPicture(const Picture& p) { picture_ = p, notify(); }

    // Transport buttons, their pressed pictures and (ImageButton) their pictures at rest.
    Image ButtonBack{"ButtonBack"}, ButtonPlay{"ButtonPlay"}, ButtonPause{"ButtonPause"},
        ButtonForward{"ButtonForward"};
    Image ButtonBackPress{"ButtonBackPress"}, ButtonPlayPress{"ButtonPlayPress"},
        ButtonPausePress{"ButtonPausePress"}, ButtonForwardPress{"ButtonForwardPress"};
    ControlArray<Image> ImageButton{"ImageButton", 4};
    // The list and its commands.
    ListBox lstSongSets{"lstSongSets"};
    Image cmdUp{"cmdUp"}, cmdDown{"cmdDown"}, cmdShowList{"cmdShowList"}, cmdHideList{"cmdHideList"},
        cmdListType{"cmdListType"};
    Image lblSongQueue{"lblSongQueue"}, lblSongSets{"lblSongSets"};
    // Volume, treble and bass share one travel, from MiniSliderTop (100) to MiniSliderBottom (0).
    Image SLiderVolume{"SLiderVolume"}, SliderTreble{"SliderTreble"}, SliderBass{"SliderBass"};
    // The other commands.
    Image cmdFullScreen{"cmdFullScreen"}, cmdQuit{"cmdQuit"}, cmdLoadSkin{"cmdLoadSkin"}, cmdLoop{"cmdLoop"},
        cmdLoopOn{"cmdLoopOn"}, cmdSaveDefaults{"cmdSaveDefaults"}, cmsSaveTB{"cmsSaveTB"};
    // The display: scrolling title, eight digits with their separators, lamps, song position.
    PictureBox Picture1{"Picture1"};
    ControlArray<Image> Number{"Number", 10};
    ControlArray<Image> imgColon{"imgColon", 3};
    ControlArray<Image> Time{"Time", 8};
    ControlArray<Image> imgVU{"imgVU", 19};
    Image imgVUGreen{"imgVUGreen"}, imgVUAmber{"imgVUAmber"}, imgVURed{"imgVURed"},
        imgVUPurple{"imgVUPurple"};
    Image imgSLiderSong{"imgSLiderSong"}, imgButtonSong{"imgButtonSong"};
    Image Mono{"Mono"}, Stereo{"Stereo"};
    Image Photo{"Photo"};
    Timer Timer1, Timer2;

    // In the order of their views: the pictures over which the buttons stand come first.
    std::vector<Control*> allControls();

    // Procedures that the main window calls.
    void GetSongSets();
    void GetSongs();
    void ShowControl(const QString& caption);
    void SaveTB();
    void NextSong();
    void CheckLoop();
    void ButtonForward_MouseUp();
    void ButtonPause_Click();
    void cmdDown_Click();
    void cmdUp_Click();
    void lstSongSets_Click();
    // The slider under drag follows the pointer; any mouse move over one shows its hint.
    enum class ToneSlider { Volume, Treble, Bass };

    // Form-level state.
    std::vector<QString> SongNames{QString()}, SetNames{QString()};  // from index 1
    std::int16_t SongNameCount = 0, QueueTop = 0, SetNameCount = 0, SetTop = 0;
    bool SliderDragging = false, HintHold = false, WindowDragging = false;
    std::int32_t GrabX = 0, GrabY = 0;
    std::int32_t ScrollPosition = 0;  // Timer1's own, from 1

private:
    void design();
    void wireHandlers();
    bool tryStep(const std::function<void()>& statement) { return sonarium::tryStep(C.errors, statement); }
    void hint(Image& control, const QString& text);

    void Form_Activate();
    void Form_MouseDown(int button, double x, double y);
    void Form_MouseUp();
    void Form_QueryUnload(bool& cancel);
    void Timer1_Timer();
    void Timer2_Timer();
    void ButtonPlay_MouseDown();
    void ButtonBack_Click();
    void ButtonForward_MouseDown();
    void cmdListType_Click();
    void cmdShowList_Click();
    void cmdHideList_Click();
    void cmdLoop_Click(bool checkAfter);
    void cmsSaveTB_Click();
    void cmdSaveDefaults_Click();
    void cmdQuit_Click();
    void cmdFullScreen_Click();
    void ShowPage(std::int16_t top, const std::vector<QString>& names, std::int16_t count);
    void Slider_MouseDown();
    void Slider_MouseMove(ToneSlider which, double y);
    void Slider_MouseUp();

    Module1& M;
    Components& C;
    Form1* F1 = nullptr;
    Picture picture_;
};

}  // namespace sonarium
