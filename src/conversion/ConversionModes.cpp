// The four conversion modes: each is the check mark of its Convert menu entry. Entering one
// turns the queue into a list of jobs and the main window into the converter; leaving it puts
// the player and its queue back.
#include <vector>

#include "shell/ButtonPictures.h"
#include "shell/Form1.h"
#include "shell/Form2.h"
#include "shell/TextFields.h"

namespace sonarium {

using namespace buttons;

namespace {

// A CD track's row: the track number at characters 8 and 9, a carriage return, and the length
// in minutes and seconds with no leading zero on the seconds.
QString trackRow(int track, std::int32_t lengthMs) {
    const auto seconds = std::int64_t(roundHalfEven(lengthMs / 1000.0));
    return QStringLiteral(" Track %1 \r %2:%3 Mns     ")
        .arg(track, 2, 10, QLatin1Char('0'))
        .arg(seconds / 60)
        .arg(seconds % 60);
}

}  // namespace

// The player's controls that a conversion panel takes the place of.
std::vector<Control*> Form1::PlayerOnlyControls() {
    return {&lblRepeat, &chkLoop, &BtnFade,  &BtnPause,   &imgSLiderSong, &imgButtonSong,
            &PanelVU,   &lblSpd,  &lblSpeed, &cmdSpeedUp, &cmdSpeedDown,  &lblTime};
}

void Form1::EnterMode() {
    tryStep([&] { mnuView.setEnabled(false); });
    tryStep([&] { mnuViewStick.setEnabled(false); });
    tryStep([&] { imgEncoder.setVisible(true); });
    tryStep([&] { imgQuitEncoder.setVisible(true); });
    tryStep([&] { imgSize.setVisible(false); });
}

void Form1::ShowConversionPanel() {
    tryStep([&] { PanelCdToMP3.setVisible(true); });
    for (Control* c : PlayerOnlyControls()) tryStep([&] { c->setVisible(false); });
}

void Form1::LeaveMode() {
    // A job still running is stopped first, as Quit converter stops it: left to finish in the
    // player's mode, its finish path would start the queue's next song.
    if (ExtractRunning || EncodeRunning || TimerEnc.Enabled()) {
        BtnStop_MouseDown(LeftButton, 0, 0, 0);
        BtnStop_MouseUp(LeftButton, 0, 0, 0);
    }
    const bool cd = mnuCDtoMP3.Checked() || mnuCdToWav.Checked(), wav = mnuWavToMp3.Checked(),
               mp3 = mnuMP3ToWav.Checked();
    tryStep([&] { mnuView.setEnabled(true); });
    tryStep([&] { mnuViewStick.setEnabled(true); });
    for (Control* c : PlayerOnlyControls()) tryStep([&] { c->setVisible(c != &PanelVU || mnuVU.Checked()); });
    tryStep([&] { imgEncoder.setVisible(false); });
    tryStep([&] { imgQuitEncoder.setVisible(false); });
    tryStep([&] { imgSize.setVisible(true); });
    for (MenuItem* m : {&mnuCDtoMP3, &mnuCdToWav, &mnuWavToMp3, &mnuMP3ToWav}) m->setChecked(false);
    ShowButtonImage(BtnPlay, PlayAtRest);
    tryStep([&] { PanelCdToMP3.setVisible(false); });
    UnparkQueue();
    tryStep([&] { LoadMixer(); });
    if (wav) {
        tryStep([&] { txtTrackTitle.setVisible(true); });
        tryStep([&] { Label11.setVisible(true); });
        tryStep([&] { lstSongs.Clear(); });
    }
    if (mp3) SetPunchControlsVisible(false);
    if (cd || wav) tryStep([&] { Dir1_Change(); });
}

void Form1::SetRateListsVisible(bool visible) {
    for (Control* c :
         std::initializer_list<Control*>{&cboSampleRate, &cboBitRate, &lblSampleRate, &lblBtRate})
        tryStep([&] { c->setVisible(visible); });
}

void Form1::SetPunchControlsVisible(bool visible) {
    for (Control* c : std::initializer_list<Control*>{&lblPunchInOut, &chkUseInOut, &cmdSetPunchInOut})
        tryStep([&] { c->setVisible(visible); });
}

void Form1::mnuCDtoMP3_Click() {
    SetRateListsVisible(true);
    for (MenuItem* m : {&mnuCdToWav, &mnuMP3ToWav, &mnuWavToMp3}) m->setChecked(false);
    SetPunchControlsVisible(false);
    GetAudioTracks(1);
}

void Form1::mnuCdToWav_Click() {
    SetRateListsVisible(false);
    for (MenuItem* m : {&mnuMP3ToWav, &mnuWavToMp3, &mnuCDtoMP3}) m->setChecked(false);
    GetAudioTracks(0);
}

void Form1::mnuWavToMp3_Click() {
    if (mnuWavToMp3.Checked()) {
        LeaveMode();
        return;
    }
    EnterMode();
    tryStep([&] { C.mp3.Stop(); });
    tryStep([&] { C.mp3.Close(); });
    SetPunchControlsVisible(false);
    ParkQueue();
    // The result keeps the source's name, so the title has no use here.
    tryStep([&] { txtTrackTitle.setVisible(false); });
    tryStep([&] { Label11.setVisible(false); });
    for (MenuItem* m : {&mnuCDtoMP3, &mnuCdToWav, &mnuMP3ToWav}) m->setChecked(false);
    mnuWavToMp3.setChecked(true);
    SetRateListsVisible(true);
    ShowConversionPanel();
    tryStep([&] { GetTitles(); });
}

void Form1::mnuMP3ToWav_Click() {
    if (mnuMP3ToWav.Checked()) {
        LeaveMode();
        return;
    }
    EnterMode();
    tryStep([&] { SaveMixer(); });
    BtnStop_MouseUp(1, 0, 0, 0);
    for (MenuItem* m : {&mnuCDtoMP3, &mnuCdToWav, &mnuWavToMp3})
        if (m->Checked()) m->Click();
    mnuMP3ToWav.setChecked(true);
    SetPunchControlsVisible(true);
    for (Control* c : PlayerOnlyControls())
        if (c != &lblTime) tryStep([&] { c->setVisible(false); });
}

void Form1::GetAudioTracks(int mode) {
    if (!M.BitRateChanging && (mnuCDtoMP3.Checked() || mnuCdToWav.Checked())) {
        LeaveMode();
        return;
    }
    EnterMode();
    ParkQueue();
    (mode == 0 ? mnuCdToWav : mnuCDtoMP3).setChecked(true);
    tryStep([&] { C.mp3.Stop(); });
    tryStep([&] { C.mp3.Close(); });
    std::int16_t init = 1;
    tryStep([&] { init = C.cd.InitCD(); });
    if (init != 0) {
        C.dialogs.msgBox(QStringLiteral("ADC Init Error"), MsgButtons::OK, MsgIcon::Critical,
                         QStringLiteral("ADC Init"));
        return;
    }
    for (;;) {
        if (C.cd.DriveCount() >= 2) {
            GetDriveList();
            tryStep([&] { C.cd.SelectDrive(M.SelectedCDDrive); });
        } else {
            tryStep([&] { C.cd.SelectDrive(1); });
        }
        Titles.clear();
        const int tracks = std::max<int>(0, C.cd.TrackCount());
        for (int i = 1; i <= tracks; ++i) Titles << trackRow(i, C.cd.TrackLength(std::int16_t(i)));
        TitleCount = std::int16_t(tracks);
        TitleTop = 0;
        if (TitleCount != 0) break;
        if (C.dialogs.msgBox(QStringLiteral("Error reading CD drive - Retry?"), MsgButtons::YesNo,
                             MsgIcon::Critical, QStringLiteral("CD")) != MsgResult::Yes) {
            mnuCDtoMP3.setChecked(false);
            UnparkQueue();  // the mode is given up with the queue empty
            return;
        }
    }
    tryStep([&] { FillTitles(); });
    ShowConversionPanel();
}

void Form1::GetDriveList() {
    QStringList drives;
    for (int d = 1; d <= C.cd.DriveCount(); ++d) tryStep([&] { drives << C.cd.DriveName(std::int16_t(d)); });
    form2.ShowDrives(drives);
}

void Form1::cboBitRate_Click() {
    M.BitRateChanging = true;
    if (mnuCDtoMP3.Checked()) {
        GetAudioTracks(1);
    } else if (mnuWavToMp3.Checked()) {
        tryStep([&] { lstSongs.Clear(); });
        tryStep([&] { GetTitles(); });
    }
    M.BitRateChanging = false;
}

void Form1::imgQuitEncoder_Click() {
    BtnStop_MouseDown(1, 0, 0, 0);
    BtnStop_MouseUp(1, 0, 0, 0);
    for (MenuItem* m : {&mnuCDtoMP3, &mnuCdToWav, &mnuWavToMp3, &mnuMP3ToWav})
        if (m->Checked()) {
            m->Click();
            break;
        }
    ShowButtonImage(BtnStop, StopAtRest);
}

void Form1::mnuCDOpen_Click() {
    tryStep([&] { C.cd.OpenTray(); });
}
void Form1::mnuCDClose_Click() {
    tryStep([&] { C.cd.CloseTray(); });
}

// A pair of radio entries; only "Blade Invisible" is ever read, and on this system neither
// changes how the encoder runs.
void Form1::ChooseBladeWindow(bool invisible) {
    mnuBladeInvisible.setChecked(invisible);
    mnuBladeMinimised.setChecked(!invisible);
}

void Form1::mnuInternal_Click() { ChooseEncoder(0); }
void Form1::mnuBlade_Click() { ChooseEncoder(1); }

// The external encoder takes a bit rate and no sample rate.
void Form1::ChooseEncoder(std::int16_t choice) {
    M.EncoderChoice = choice;
    mnuInternal.setChecked(choice == 0);
    mnuBlade.setChecked(choice == 1);
    tryStep([&] { cboSampleRate.setEnabled(choice == 0); });
}

}  // namespace sonarium
