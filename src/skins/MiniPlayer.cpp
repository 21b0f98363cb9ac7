// The mini player's window: what its activation prepares, the scrolling title and the hints,
// dragging the frameless window by hand, the transport buttons, the sliders, and the ways out.
#include "playback/SliderTravel.h"
#include "shell/Form1.h"
#include "shell/Form2.h"
#include "shell/FrmGeneral.h"
#include "shell/FrmMiniPlayer.h"
#include "shell/TextFields.h"

namespace sonarium {

namespace {
constexpr int TitleInterval = 150, DragInterval = 10;
constexpr int HintIndent = 100;  // twips from the display's left edge
constexpr int TitleCopies = 6;
}  // namespace

// Every time the window becomes the program's active one, not only the first time.
void FrmMiniPlayer::Form_Activate() {
    tryStep([&] {
        if (M.MiniTop > 0) setTop(M.MiniTop), setLeft(M.MiniLeft);
    });
    M.MiniMode = 1;
    if (!F1->mnuVU.Enabled())
        for (auto& lamp : imgVU) tryStep([&] { lamp->setVisible(false); });
    tryStep([&] { F1->lstSongSets.Clear(); });
    for (const QString& name : F1->SongSetNames()) tryStep([&] { F1->lstSongSets.AddItem(name); });
    if (M.MiniListType == 1)
        GetSongSets();
    else
        GetSongs();
    M.MiniTitleText.clear();
    tryStep([&] {
        if (F1->lstSongs.Text().isEmpty()) return;
        const QString title = F1->txtTitle.Text().isEmpty() ? F1->lstSongs.Text() : F1->txtTitle.Text();
        M.MiniTitleText = title + QStringLiteral(" - ") + F1->txtAlbum.Text() + QStringLiteral(" - ") +
                          F1->txtArtist.Text() + QStringLiteral("   ");
    });
    M.MiniTitleText = M.MiniTitleText.repeated(TitleCopies);
    tryStep([&] { Picture1.Cls(), Picture1.Print(M.MiniTitleText); });
    Timer1.setInterval(TitleInterval);
    for (auto [slider, value] : {std::pair{&SLiderVolume, std::int32_t(M.Volume)},
                                 std::pair{&SliderTreble, M.Treble}, std::pair{&SliderBass, M.Bass}})
        tryStep([&] { slider->setTop(slider::miniTopFor(M, value)); });
    tryStep([&] { CheckLoop(); });
    tryStep([&] { lstSongSets.setVisible(true); });
}

void FrmMiniPlayer::ShowControl(const QString& caption) {
    if (Timer2.Enabled()) Timer2.setEnabled(false);
    Picture1.Cls();
    Picture1.setCurrentX(HintIndent);
    Picture1.Print(caption);
    Timer1.setEnabled(false);
    Timer2.setEnabled(true);
}

// A hint has had its time: the title comes back, scrolling again if a song plays.
void FrmMiniPlayer::Timer2_Timer() {
    Picture1.Cls();
    Timer2.setEnabled(false);
    if (!M.SongPlaying)
        Picture1.Print(M.MiniTitleText);
    else
        Timer1.setEnabled(true);
    HintHold = false;
}

// The title moves one character a tick and jumps back at half its length: it is stored several
// times over, so the jump isn't seen. While the window is dragged the timer moves it instead.
void FrmMiniPlayer::Timer1_Timer() {
    if (!WindowDragging) {
        if (ScrollPosition == 0) ScrollPosition = 1;
        Picture1.Cls();
        const qsizetype length = M.MiniTitleText.size();
        Picture1.Print(
            M.MiniTitleText.mid(ScrollPosition - 1, std::max<qsizetype>(0, length - ScrollPosition)));
        ++ScrollPosition;
        if (ScrollPosition > length / 2) ScrollPosition = 1;
        return;
    }
    tryStep([&] {
        const QPoint cursor = C.desktop.cursorPosTwips();
        setTop(cursor.y() - GrabY);
        setLeft(cursor.x() - GrabX);
    });
}

// The window has no title bar: it is dragged by its own surface, from the pointer's position
// on the screen, at each tick of the fast timer.
void FrmMiniPlayer::Form_MouseDown(int button, double x, double y) {
    if (button != LeftButton) return;
    GrabX = toInt32(roundHalfEven(x));
    GrabY = toInt32(roundHalfEven(y));
    WindowDragging = true;
    Timer1.setInterval(DragInterval);
    Timer1.setEnabled(true);
}

void FrmMiniPlayer::Form_MouseUp() {
    if (!WindowDragging) return;
    Timer1_Timer();  // the last position, so the window stands where the button came up
    WindowDragging = false;
    Timer1.setInterval(TitleInterval);
    Timer1.setEnabled(M.SongPlaying);
}

// The button toggles, and keeps its pressed picture during play. Nothing in a pause.
void FrmMiniPlayer::ButtonPlay_MouseDown() {
    if (M.SongPaused) return;
    if (M.SongPlaying) {
        tryStep([&] { ButtonPlay.setPicture(ImageButton[1].picture()); });
        tryStep([&] { F1->StopFromMini(); });
    } else {
        tryStep([&] { ButtonPlay.setPicture(ButtonPlayPress.picture()); });
        tryStep([&] { F1->PlayFromMini(); });
        // With no row selected when the window opened its page stayed empty; Play has now
        // selected the first row, so the page can show where the song is.
        if (M.MiniListType != 1 && SongNameCount == 0) GetSongs();
        Timer1.setInterval(TitleInterval);
        Timer1.setEnabled(true);
    }
}

// The title stands still during a pause.
void FrmMiniPlayer::ButtonPause_Click() {
    if (!M.SongPlaying) return;
    if (M.SongPaused) {
        tryStep([&] { F1->PauseFromMini(); });
        tryStep([&] { ButtonPause.setPicture(ImageButton[2].picture()); });
        Timer1.setEnabled(true);
    } else {
        tryStep([&] { F1->PauseFromMini(); });
        tryStep([&] { ButtonPause.setPicture(ButtonPausePress.picture()); });
        Timer1.setEnabled(false);
    }
}

void FrmMiniPlayer::cmdShowList_Click() {
    tryStep([&] { setWidth(M.MiniWidth), setHeight(M.MiniHeight); });
}

void FrmMiniPlayer::cmdHideList_Click() {
    if (M.MiniCollapseHeight != 0)
        setHeight(M.MiniCollapsedSize);
    else
        setWidth(M.MiniCollapsedSize);
}

void FrmMiniPlayer::CheckLoop() {
    cmdLoopOn.setVisible(M.LoopMode >= 1);
    cmdLoop.setVisible(M.LoopMode < 1);
}

// Both buttons open the main window's loop menu; the menu's own commands swap them.
void FrmMiniPlayer::cmdLoop_Click(bool checkAfter) {
    if (MenuItem* chosen = C.dialogs.popupMenu(F1->mnuLoop)) chosen->Click();
    if (checkAfter) CheckLoop();
}

void FrmMiniPlayer::SaveTB() { F1->SaveTB(); }

void FrmMiniPlayer::cmsSaveTB_Click() {
    HintHold = true;
    ShowControl(QStringLiteral("Treble/Bass Saved..............."));
    tryStep([&] { SaveTB(); });
}

void FrmMiniPlayer::cmdSaveDefaults_Click() {
    HintHold = true;
    ShowControl(QStringLiteral("Defaults Saved..............."));
    tryStep([&] { F1->SaveMixer(); });
}

// The slider under the pointer follows it between the common top and bottom; one height, the
// volume slider's, centres all three on the pointer.
void FrmMiniPlayer::Slider_MouseDown() { SliderDragging = true; }
void FrmMiniPlayer::Slider_MouseUp() { SliderDragging = false; }

void FrmMiniPlayer::Slider_MouseMove(ToneSlider which, double y) {
    Image& slider = which == ToneSlider::Volume   ? SLiderVolume
                    : which == ToneSlider::Treble ? SliderTreble
                                                  : SliderBass;
    tryStep([&] { ShowControl(slider.ToolTipText()); });
    if (!SliderDragging) return;
    tryStep([&] {
        // The pointer's row in the window: the slider's top and the row within the slider.
        const double top = slider.Top() + y - SLiderVolume.Height() / 2;
        slider.setTop(
            toInt32(std::clamp<double>(top, M.MiniSliderTop, std::max(M.MiniSliderTop, M.MiniSliderBottom))));
    });
    tryStep([&] {
        const std::int32_t value = toInt32(100 - (slider.Top() - M.MiniSliderTop) / M.MiniSliderStep);
        if (which == ToneSlider::Volume) {
            M.Volume = toInt16(value);
            C.mp3.SetVolume(M.Volume, M.Volume);
        } else if (which == ToneSlider::Treble) {
            M.Treble = value;
            C.mixer.SetControlValue(M.TrebleControl[0], M.TrebleControl[1], 0, M.Treble);
        } else {
            M.Bass = value;
            C.mixer.SetControlValue(M.BassControl[0], M.BassControl[1], 0, M.Bass);
        }
    });
}

// Quit keeps both settings files; the system's close keeps neither.
void FrmMiniPlayer::cmdQuit_Click() {
    M.MiniTop = Top(), M.MiniLeft = Left();
    tryStep([&] { F1->SaveConfig(); });
    tryStep([&] { F1->SaveMixer(); });
    C.desktop.quit(0);
}

void FrmMiniPlayer::Form_QueryUnload(bool&) {
    tryStep([&] { C.peak.Free(); });
    tryStep([&] { C.mp3.Close(); });
    tryStep([&] { F1->frmGeneral.Unload(); });
    tryStep([&] { F1->form2.Unload(); });
    C.desktop.quit(0);
}

// Back to the main window. Opened from the menu, the menu's wait now ends and finishes the
// change; at a start in mini mode the main window's activation does the rest.
void FrmMiniPlayer::cmdFullScreen_Click() {
    M.MiniMode = 0;
    Timer1.setEnabled(false);
    Timer2.setEnabled(false);
    M.MiniTop = Top(), M.MiniLeft = Left();
    M.ReturnedFromMini = true;
    tryStep([&] { F1->PanelPhoto.setVisible(true); });
    tryStep([&] { F1->PanelSongInfo.setVisible(true); });
    tryStep([&] { F1->lstSongSets.setVisible(false); });
    tryStep([&] { F1->setVisible(true), F1->Refresh(); });
    Hide();
}

}  // namespace sonarium
