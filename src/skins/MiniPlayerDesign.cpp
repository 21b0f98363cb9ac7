// The mini player's controls, their hints and the events that serve them.
#include "shell/Form1.h"
#include "shell/FrmMiniPlayer.h"

namespace sonarium {

namespace {
// Picture1 keeps the height it was designed with; a skin sets the rest of its place.
constexpr int DisplayHeight = 240;
constexpr int HintInterval = 1250;
}  // namespace

FrmMiniPlayer::FrmMiniPlayer(Module1& m, Components& c)
    : Form(QStringLiteral("FrmMiniPlayer")),
      Timer1(QStringLiteral("Timer1"), c.loop, 5),
      Timer2(QStringLiteral("Timer2"), c.loop, HintInterval),
      M(m),
      C(c) {
    design();
    wireHandlers();
}

std::vector<Control*> FrmMiniPlayer::allControls() {
    std::vector<Control*> all = {&Picture1,     &imgSLiderSong, &imgButtonSong, &Photo, &lstSongSets,
                                 &lblSongQueue, &lblSongSets,   &Mono,          &Stereo};
    for (auto* array : {&Time, &imgColon, &imgVU})
        for (auto& c : *array) all.push_back(c.get());
    for (Image* c : {&ButtonBack, &ButtonPlay, &ButtonPause, &ButtonForward, &cmdUp, &cmdDown, &cmdShowList,
                     &cmdHideList, &cmdListType, &SLiderVolume, &SliderTreble, &SliderBass, &cmdFullScreen,
                     &cmdQuit, &cmdLoadSkin, &cmdLoop, &cmdLoopOn, &cmdSaveDefaults, &cmsSaveTB})
        all.push_back(c);
    return all;
}

void FrmMiniPlayer::hint(Image& control, const QString& text) {
    // The hint is also the button's name for keyboard and screen-reader users.
    control.setToolTipText(text);
    control.onMouseMove = [this, text](int, int, double, double) { tryStep([&] { ShowControl(text); }); };
}

void FrmMiniPlayer::design() {
    setCaption(QStringLiteral("Zipdeck"));
    Move(0, 0, M.MiniWidth, M.MiniHeight);
    Picture1.setHeight(DisplayHeight);
    Picture1.setDescription(QStringLiteral("Song title"));
    lstSongSets.setDescription(QStringLiteral("Songs"));
    Photo.setStretch(true);
    // Stores of pictures, never seen themselves.
    for (Image* store : {&ButtonBackPress, &ButtonPlayPress, &ButtonPausePress, &ButtonForwardPress,
                         &imgVUGreen, &imgVUAmber, &imgVURed, &imgVUPurple})
        store->setVisible(false);
    for (auto* array : {&ImageButton, &Number})
        for (auto& store : *array) store->setVisible(false);
    lblSongSets.setVisible(false);
    cmdLoopOn.setVisible(false);
    for (auto& digit : Time) digit->setDescription(QStringLiteral("Time"));
}

void FrmMiniPlayer::wireHandlers() {
    onActivate = [this] { Form_Activate(); };
    onQueryUnload = [this](bool& cancel) { Form_QueryUnload(cancel); };
    onMouseDown = [this](int b, int, double x, double y) { Form_MouseDown(b, x, y); };
    onMouseUp = [this](int, int, double, double) { Form_MouseUp(); };
    Timer1.onTimer = [this] { Timer1_Timer(); };
    Timer2.onTimer = [this] { Timer2_Timer(); };

    const std::pair<Image*, const char*> hints[] = {
        {&ButtonBack, "Back"},       {&ButtonForward, "Forward"}, {&ButtonPause, "Pause"},
        {&cmdUp, "Scroll Up"},       {&cmdDown, "Scroll Down"},   {&cmdFullScreen, "Main Screen"},
        {&cmdHideList, "Hide List"}, {&cmdShowList, "Show List"}, {&cmdListType, "Toggle List Type"},
        {&cmdLoadSkin, "Load Skin"}, {&cmdLoop, "Loop"},          {&cmdLoopOn, "Loop"},
        {&cmdQuit, "Quit"}};
    for (const auto& [control, text] : hints) hint(*control, QLatin1String(text));
    // The play button's hint says what a press would do.
    ButtonPlay.setToolTipText(QStringLiteral("Start Play"));
    ButtonPlay.onMouseMove = [this](int, int, double, double) {
        tryStep(
            [&] { ShowControl(M.SongPlaying ? QStringLiteral("Stop Play") : QStringLiteral("Start Play")); });
    };
    // A confirmation on show is not replaced by these two hints until it has timed out.
    cmdSaveDefaults.setToolTipText(QStringLiteral("Set as Defaults"));
    cmdSaveDefaults.onMouseMove = [this](int, int, double, double) {
        if (!HintHold) tryStep([&] { ShowControl(QStringLiteral("Set as Defaults")); });
    };
    cmsSaveTB.setToolTipText(QStringLiteral("Record T/B for song"));
    cmsSaveTB.onMouseMove = [this](int, int, double, double) {
        if (!HintHold) tryStep([&] { ShowControl(QStringLiteral("Record T/B for song")); });
    };

    ButtonPlay.onMouseDown = [this](int, int, double, double) { ButtonPlay_MouseDown(); };
    ButtonPause.onClick = [this] { ButtonPause_Click(); };
    ButtonBack.onMouseDown = [this](int, int, double, double) {
        tryStep([&] { ButtonBack.setPicture(ButtonBackPress.picture()); });
    };
    ButtonBack.onMouseUp = [this](int, int, double, double) {
        tryStep([&] { ButtonBack.setPicture(ImageButton[0].picture()); });
    };
    ButtonBack.onClick = [this] { ButtonBack_Click(); };
    ButtonForward.onMouseDown = [this](int, int, double, double) { ButtonForward_MouseDown(); };
    ButtonForward.onMouseUp = [this](int, int, double, double) { ButtonForward_MouseUp(); };
    cmdUp.onClick = [this] { cmdUp_Click(); };
    cmdDown.onClick = [this] { cmdDown_Click(); };
    lstSongSets.onClick = [this] { lstSongSets_Click(); };
    cmdListType.onClick = [this] { cmdListType_Click(); };
    cmdShowList.onClick = [this] { cmdShowList_Click(); };
    cmdHideList.onClick = [this] { cmdHideList_Click(); };
    cmdLoop.onClick = [this] { cmdLoop_Click(false); };
    cmdLoopOn.onClick = [this] { cmdLoop_Click(true); };
    cmsSaveTB.onClick = [this] { cmsSaveTB_Click(); };
    cmdSaveDefaults.onClick = [this] { cmdSaveDefaults_Click(); };
    cmdQuit.onClick = [this] { cmdQuit_Click(); };
    cmdFullScreen.onClick = [this] { cmdFullScreen_Click(); };
    cmdLoadSkin.onClick = [this] { tryStep([&] { F1->cmdLoadSkin_Click(); }); };

    const std::pair<Image*, std::pair<ToneSlider, const char*>> sliders[] = {
        {&SLiderVolume, {ToneSlider::Volume, "Volume"}},
        {&SliderTreble, {ToneSlider::Treble, "Treble"}},
        {&SliderBass, {ToneSlider::Bass, "Bass"}}};
    for (const auto& [slider, what] : sliders) {
        const ToneSlider which = what.first;
        slider->setToolTipText(QLatin1String(what.second));
        slider->onMouseDown = [this](int, int, double, double) { Slider_MouseDown(); };
        slider->onMouseMove = [this, which](int, int, double, double y) { Slider_MouseMove(which, y); };
        slider->onMouseUp = [this](int, int, double, double) { Slider_MouseUp(); };
    }
}

}  // namespace sonarium
