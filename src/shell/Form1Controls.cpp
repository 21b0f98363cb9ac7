#include "shell/Form1Controls.h"

#include "controls/Components.h"

namespace sonarium {

Form1Controls::Form1Controls(Components& c, DriveDirectories& drives, const QString& startDir)
    : DBGrid1(QStringLiteral("DBGrid1"), c.data),
      Drive1(QStringLiteral("Drive1"), c.volumes, startDir),
      Dir1(QStringLiteral("Dir1"), c.volumes, drives, startDir),
      Fillist(QStringLiteral("Fillist"), startDir),
      Timer1(QStringLiteral("Timer1"), c.loop, 100),
      Timer2(QStringLiteral("Timer2"), c.loop, 100),
      TimerMix(QStringLiteral("TimerMix"), c.loop, 10),
      TimerEnc(QStringLiteral("TimerEnc"), c.loop, 100),
      tmrAlarm(QStringLiteral("tmrAlarm"), c.loop, 5000),
      tmrInfo(QStringLiteral("tmrInfo"), c.loop, 30000) {}

std::vector<Control*> Form1Controls::allControls() const {
    auto* self = const_cast<Form1Controls*>(this);
    // clang-format off
    std::vector<Control*> all = {
        &self->imgStick, &self->PicTopPanel, &self->PicView, &self->PicMixer, &self->PicTitleBoxes,
        &self->PicRightPanel, &self->PicDatabase, &self->imgSize,
        &self->BtnPlay, &self->BtnPause, &self->BtnStop, &self->BtnFade, &self->chkLoop, &self->Ball,
        &self->imgRedBall, &self->imgGreenBall, &self->lblRepeat,
        &self->lstSongs, &self->List1, &self->lstSongSets, &self->cmdUp, &self->cmdDown, &self->cmdAddAll,
        &self->cmdDeleteAll, &self->cmdDelete, &self->cmdShuffle, &self->lblTotTime, &self->lblSongQueue, &self->lblDoubleClick,
        &self->lblTime, &self->lblSpeed, &self->imgSLiderSong, &self->imgButtonSong, &self->cmdSpeedDown,
        &self->cmdSpeedUp, &self->lblSpd,
        &self->SLiderVolume, &self->SliderTreble, &self->SliderBass, &self->cmdSaveTB, &self->cmdSaveTBDefaults,
        &self->PanelVU, &self->imgVUGreen, &self->imgVUAmber, &self->imgVURed, &self->imgVUPurple,
        &self->PanelPhoto, &self->PanelSongInfo, &self->Photo, &self->imgMpeg3, &self->Image8, &self->Image9,
        &self->imgMS, &self->txtTitle, &self->txtArtist, &self->txtAlbum, &self->txtYear, &self->txtComment,
        &self->cboGenre, &self->cmdUpdateTag, &self->lblSongTitile, &self->lblBitrate, &self->lblFrequency, &self->lblSongDuration,
        &self->PanelCdToMP3, &self->PicEncode, &self->cboBitRate, &self->cboSampleRate, &self->lblBtRate, &self->lblSampleRate,
        &self->Label11, &self->lblTrackProgress, &self->lblBladeEncTime, &self->txtTrackTitle,
        &self->ShapeBack, &self->Shape1, &self->chkUseInOut, &self->cmdSetPunchInOut, &self->lblPunchInOut,
        &self->imgEncoder, &self->imgQuitEncoder,
        &self->PanelDatabase, &self->DBGrid1, &self->Indent, &self->Button, &self->ButtonBlue, &self->imgDataBase,
        &self->cmdAddToQueue, &self->CmdDataAdd, &self->cmdSearch, &self->imgAutoUpdate, &self->cmdAutoSet,
        &self->cmdClearAll, &self->cmdDatabaseClose, &self->CmdDeleteFile, &self->cmdDeleteLine,
        &self->imgCancelSearch, &self->lblRecords, &self->lblFilter, &self->lblOrder, &self->ListGen,
        &self->Drive1, &self->Dir1, &self->Fillist,
        &self->InfoPanel, &self->RT, &self->PanelViewButtons, &self->PanelControls, &self->imgViewInfo,
        &self->imgEditInfo, &self->cmdInfoLeft, &self->cmdInfoRight, &self->lblInfoPageNumber,
        &self->btnGigGuide, &self->btnContact, &self->cmdCurrentSongInfo, &self->cmdPrint,
        &self->cmdCloseInfoViewer, &self->Label13, &self->CboFontName, &self->CboFontSize, &self->cmdQuitEditor, &self->Toolbar,
        &self->PanelAlarm, &self->lblAlarmHeading, &self->lblAlarmCaption, &self->lblAlarmTime,
        &self->lblHour, &self->lblMinute, &self->lstHour, &self->lstMinute, &self->cmdSetTimeOK,
        &self->cmdSetTimeCancel,
    };
    // clang-format on
    for (auto* arr : {&Title})
        for (auto& c : *arr) all.push_back(c.get());
    for (auto* arr : {&imgVU, &imgButon, &imgDown})
        for (auto& c : *arr) all.push_back(c.get());
    return all;
}

}  // namespace sonarium
