#include "shell/Form1.h"

#include "controls/Errors.h"
#include "shell/FrmMiniPlayer.h"

namespace sonarium {

Form1::Form1(Module1& m, Components& c, CurrentDirectory& current, DriveDirectories& drives,
             FrmGeneral& general, Form2& f2, FrmMiniPlayer& mini)
    : Form(QStringLiteral("Form1")),
      Form1Controls(c, drives, current.path()),
      M(m),
      C(c),
      currentDirectory(current),
      frmGeneral(general),
      form2(f2),
      frmMiniPlayer(mini) {
    frmMiniPlayer.attach(*this);
    design();
    // The built-in look is the default skin, shipped inside the program. Where it can't be read
    // the controls keep the plain look they were designed with.
    tryStep([&] { ApplySkinFiles(BuiltInSkin); });
    tryStep([&] { ApplyMiniSkinFiles(BuiltInMiniSkin); });
    wireHandlers();
}

// Events of the window, its controls and menus, to the procedures that serve them.
void Form1::wireHandlers() {
    onLoad = [this] { Form_Load(); };
    onActivate = [this] { Form_Activate(); };
    onKeyDown = [this](int& key, int shift) { Form_KeyDown(key, shift); };
    onQueryUnload = [this](bool& cancel) { Form_QueryUnload(cancel); };

    mnuQuit.onClick = [this] { mnuQuit_Click(); };
    SQuit.onClick = [this] { SQuit_Click(); };
    mnuContents.onClick = [this] { mnuContents_Click(); };
    mnuAbout.onClick = [this] { mnuAbout_Click(); };

    BtnPlay.onMouseDown = [this](int b, int s, double x, double y) { BtnPlay_MouseDown(b, s, x, y); };
    BtnPlay.onMouseUp = [this](int b, int s, double x, double y) { BtnPlay_MouseUp(b, s, x, y); };
    BtnPause.onMouseDown = [this](int b, int s, double x, double y) { BtnPause_MouseDown(b, s, x, y); };
    BtnPause.onMouseUp = [this](int b, int s, double x, double y) { BtnPause_MouseUp(b, s, x, y); };
    BtnStop.onMouseDown = [this](int b, int s, double x, double y) { BtnStop_MouseDown(b, s, x, y); };
    BtnStop.onMouseUp = [this](int b, int s, double x, double y) { BtnStop_MouseUp(b, s, x, y); };
    BtnFade.onMouseDown = [this](int b, int s, double x, double y) { BtnFade_MouseDown(b, s, x, y); };
    BtnFade.onMouseUp = [this](int b, int s, double x, double y) { BtnFade_MouseUp(b, s, x, y); };
    C.mp3.onStreamEnd = [this] { MP3_StreamEnd(); };
    C.cd.onExtractProgress = [this](std::int32_t perMille) { ACD_ExtractProgress(perMille); };
    C.cd.onExtractFinished = [this] { ACD_ExtractFinished(); };
    C.encoder.onEncodeProgress = [this](std::int32_t done) { Mp3Enc_EncodeProgress(done); };
    C.encoder.onEncodeFinished = [this] { Mp3Enc_EncodeFinished(); };
    TimerEnc.onTimer = [this] { TimerEnc_Timer(); };
    mnuCDtoMP3.onClick = [this] { mnuCDtoMP3_Click(); };
    mnuCdToWav.onClick = [this] { mnuCdToWav_Click(); };
    mnuWavToMp3.onClick = [this] { mnuWavToMp3_Click(); };
    mnuMP3ToWav.onClick = [this] { mnuMP3ToWav_Click(); };
    mnuInternal.onClick = [this] { mnuInternal_Click(); };
    mnuBlade.onClick = [this] { mnuBlade_Click(); };
    mnuCDOpen.onClick = [this] { mnuCDOpen_Click(); };
    mnuCDClose.onClick = [this] { mnuCDClose_Click(); };
    mnuBladeInvisible.onClick = [this] { ChooseBladeWindow(true); };
    mnuBladeMinimised.onClick = [this] { ChooseBladeWindow(false); };
    cboBitRate.onClick = [this] { cboBitRate_Click(); };
    imgQuitEncoder.onClick = [this] { imgQuitEncoder_Click(); };
    cmdSetPunchInOut.onClick = [this] { cmdSetPunchInOut_Click(); };
    lstSongs.onClick = [this] { lstSongs_Click(); };

    chkLoop.onClick = [this] { chkLoop_Click(); };
    mnuLoopOff.onClick = [this] { mnuLoopOff_Click(); };
    mnuLoopSongSet.onClick = [this] { mnuLoopSongSet_Click(); };
    mnuLoopSong.onClick = [this] { mnuLoopSong_Click(); };
    mnuStopAfterSong.onClick = [this] { mnuStopAfterSong_Click(); };

    // Queue and title pane
    Dir1.onChange = [this] { Dir1_Change(); };
    Drive1.onChange = [this] { Drive1_Change(); };
    Dir1.onLostFocus = [this] { Dir1_LostFocus(); };
    Dir1.onMouseDown = [this](int b, int s, double x, double y) { Dir1_MouseDown(b, s, x, y); };
    for (int i = 0; i < Title.size(); ++i) Title[i].onDblClick = [this, i] { Title_DblClick(i); };
    cmdUp.onClick = [this] { cmdUp_Click(); };
    cmdDown.onClick = [this] { cmdDown_Click(); };
    cmdAddAll.onClick = [this] { cmdAddAll_Click(); };
    cmdAddToQueue.onClick = [this] { cmdAddToQueue_Click(); };
    cmdDelete.onClick = [this] { cmdDelete_Click(); };
    cmdDeleteAll.onClick = [this] { cmdDeleteAll_Click(); };
    cmdShuffle.onClick = [this] { cmdShuffle_Click(); };
    mnuOrdered.onClick = [this] { mnuOrdered_Click(); };
    mnuRandom.onClick = [this] { Shuffle(); };

    mnuSaveSongSet.onClick = [this] { mnuSaveSongSet_Click(); };
    mnuLoadSongSet.onClick = [this] { mnuLoadSongSet_Click(); };
    mnuSongSets.onClick = [this] { mnuSongSets_Click(); };
    mnuSongInfo.onClick = [this] { mnuSongInfo_Click(); };
    mnuPhoto.onClick = [this] { mnuPhoto_Click(); };
    wireInfo();
    wireWindowModes();
    lstSongSets.onDblClick = [this] { lstSongSets_DblClick(); };

    cmdUpdateTag.onClick = [this] { UpdateTag(); };
    mnuCreateDatabase.onClick = [this] { mnuCreateDatabase_Click(); };
    mnuDefaultDatabase.onClick = [this] { mnuDefaultDatabase_Click(); };
    mnuDatabase.onClick = [this] { mnuDatabase_Click(); };
    imgDataBase.onClick = [this] { mnuDatabase_Click(); };
    cmdDatabaseClose.onClick = [this] { mnuDatabase_Click(); };
    wireGrid();
    wireScanner();
    wireCriteria();
    for (TextBox* box : {&txtTitle, &txtArtist, &txtAlbum, &txtComment})
        box->onKeyPress = [box](int& key) { LimitTyping(*box, 30, key); };
    txtYear.onKeyPress = [this](int& key) { LimitTyping(txtYear, 4, key); };
    txtTrackTitle.onKeyPress = [](int& key) {
        if (key == 32) key = 0;
    };

    mnuVU.onClick = [this] { mnuVU_Click(); };
    mnuSelectSkin.onClick = [this] { mnuSelectSkin_Click(); };
    TimerMix.onTimer = [this] { TimerMix_Timer(); };

    // Fade, position and speed
    Timer1.onTimer = [this] { Timer1_Timer(); };
    C.mp3.onFrameNotify = [this](std::int32_t frame) { FrameNotify(frame); };
    imgButtonSong.onMouseDown = [this](int b, int s, double x, double y) {
        imgButtonSong_MouseDown(b, s, x, y);
    };
    imgButtonSong.onMouseMove = [this](int b, int s, double x, double y) {
        imgButtonSong_MouseMove(b, s, x, y);
    };
    imgButtonSong.onMouseUp = [this](int b, int s, double x, double y) { imgButtonSong_MouseUp(b, s, x, y); };
    cmdSpeedUp.onClick = [this] { cmdSpeedUp_Click(); };
    cmdSpeedDown.onClick = [this] { cmdSpeedDown_Click(); };

    // Mixer and tone
    auto wireSlider = [this](Image& slider, ToneSlider which) {
        slider.onMouseDown = [this, which](int, int, double, double) { ToneSlider_MouseDown(which); };
        slider.onMouseMove = [this, which](int, int, double, double y) { ToneSlider_MouseMove(which, y); };
        slider.onMouseUp = [this, which](int, int, double, double) { ToneSlider_MouseUp(which); };
    };
    wireSlider(SLiderVolume, ToneSlider::Volume);
    wireSlider(SliderTreble, ToneSlider::Treble);
    wireSlider(SliderBass, ToneSlider::Bass);
    cmdSaveTB.onClick = [this] { cmdSaveTB_Click(); };
    cmdSaveTBDefaults.onClick = [this] { cmdSaveTBDefaults_Click(); };

    // Alarm
    tmrAlarm.onTimer = [this] { tmrAlarm_Timer(); };
    mnuSetAlarmTime.onClick = [this] { mnuSetAlarmTime_Click(); };
    mnuAlarmOnOff.onClick = [this] { mnuAlarmOnOff_Click(); };
    cmdSetTimeOK.onClick = [this] { cmdSetTimeOK_Click(); };
    cmdSetTimeCancel.onClick = [this] { cmdSetTimeCancel_Click(); };
}

}  // namespace sonarium
