#pragma once
// The main window: owner of the players and nearly all of the program's procedures. Its
// member functions are defined in the folder of the subsystem they belong to:
//   shell/     load, initialisation, command line, focus, keys, closing, Config.dat
//   playback/  queue, song loading, transport, fade, position, mixer, VU, alarm
//   library/   database, tags, scanner, grid, criteria, song sets, file browser
//   conversion/, info/, skins/  likewise.
#include <QString>
#include <QStringList>
#include <array>
#include <cstdint>
#include <optional>
#include <utility>

#include "controls/Components.h"
#include "controls/CurrentDirectory.h"
#include "controls/Errors.h"
#include "controls/Form.h"
#include "shell/Form1Controls.h"
#include "shell/Form1Menus.h"
#include "shell/Module1.h"

namespace sonarium {

class TextFieldReader;
class FrmGeneral;
class Form2;
class FrmMiniPlayer;

// The genre texts by number, as the detail box and the grid's genre list show them.
const QStringList& genreTable();
// A year typed into a box as the tag's number; RuntimeError when it isn't a number.
std::int16_t yearNumber(const QString& text);

class Form1 : public Form, public Form1Controls, public Form1Menus {
public:
    Form1(Module1& m, Components& c, CurrentDirectory& current, DriveDirectories& drives, FrmGeneral& general,
          Form2& form2, FrmMiniPlayer& mini);

    Module1& M;
    Components& C;
    CurrentDirectory& currentDirectory;

    // One statement under the skip-on-error rule, its failure told to the program's reporter.
    bool tryStep(const std::function<void()>& statement) { return sonarium::tryStep(C.errors, statement); }
    FrmGeneral& frmGeneral;
    Form2& form2;
    FrmMiniPlayer& frmMiniPlayer;

    // ---- Shell: start-up and shutdown ----
    void Form_Load();
    void Form1Init();
    void CheckForSong();
    void Form_Activate();
    void Form_KeyDown(int& keyCode, int shift);
    void Form_QueryUnload(bool& cancel);
    void Form_Unload();
    void EndOnSignal();
    void mnuQuit_Click();
    void SQuit_Click();
    void mnuContents_Click();
    void mnuAbout_Click();
    // ---- Shell: Config.dat ----
    void LoadConfig();
    void SaveConfig();

    // ---- Procedures of the other subsystems that start-up and shutdown call ----
    void OpenMixerAtLoad();  // mixer component and ControlFound
    void OpenPeakMeter();    // VU meter's start-up steps, with their trace
    void InitGenre();
    void MakeDatabase(const QString& file);
    void InitCD();
    void LoadMixer();
    void SaveMixer();
    // Saves the mixer and empties the queue list for conversion jobs; the listener's queue is
    // kept aside, and every save until UnparkQueue writes it in the jobs' place.
    void ParkQueue();
    void UnparkQueue() { queueParked_ = false; }
    void PlaceSliders();
    void SendToneToMixer();
    void Drive1_Change();
    void Dir1_Change();
    void Dir1_LostFocus();
    void Dir1_MouseDown(int button, int shift, double x, double y);
    // ---- Library: the database ----
    void mnuCreateDatabase_Click();
    void mnuDefaultDatabase_Click();
    void mnuDatabase_Click();  // also the library button and the panel's close button
    QString SqlSelect, SqlOrder;
    std::int16_t OrderColumn = 0, MenuColumn = 0;
    bool FilterOn = false;
    std::int32_t RecordTotal = 0;
    // ---- Library: grid, order, filter and search ----
    void wireGrid();
    void AlignButtons();
    void Timer2_Timer();
    void imgDown_Click(int index);
    void mnuFilter_Click();
    void mnuSearch_Click();
    // Back to the whole library in its order; the column buttons are the caller's.
    void FilterOff();
    // The song in the player may not be edited while the queue has a selected row: says so.
    bool EditLocked();
    void DBGrid1_KeyPress(int& keyAscii);
    void DBGrid1_AfterColUpdate(int colIndex);
    void DBGrid1_ButtonClick(int colIndex);
    void DBGrid1_RowColChange();
    void ListGen_Click();
    void cmdDeleteLine_Click();
    void CmdDeleteFile_Click();
    void cmdClearAll_Click();
    // ---- end of grid ----
    // ---- Library: scanner and manual add ----
    void wireScanner();
    void cmdSearch_Click();  // also the scan's cancel button
    void DoSearch();
    // One directory of the walk, its sub-directories first; true when the walk is to stop.
    bool ScanDirectory(QString& newPath, std::int32_t& dirCount, QString& backUp);
    void CmdDataAdd_Click();
    // FrmGeneral's add and scan faces: its lists start from this window's and give their
    // choice back to them; cmdAdd adds or updates one file.
    void FrmGeneral_Activate();
    void FrmGeneral_cmdOK_Click();
    void FrmGeneral_cmdCancel_Click();
    void FrmGeneral_CmdClose_Click();
    void FrmGeneral_cmdAdd_Click();
    void FrmGeneral_Drive1_Change();
    void FrmGeneral_Dir1_Change();
    std::int32_t NewTitles = 0;                       // records added by the present scan
    std::shared_ptr<class KnownPathList> KnownPaths;  // library/KnownPaths.h
    QStringList ScanTrail;  // real paths of the directories the walk is in, below its first level
    // ---- end of scanner ----
    // ---- Library: Auto-Queue criteria (the lines live in frmGeneral.List1) ----
    void wireCriteria();
    void AddCriterion(const QString& kind);  // "Where" for mnuAdd, "And Not" for mnuExclude
    void mnuClearCriteria_Click();
    void mnuViewCriteria_Click();
    void FrmGeneral_List1_DblClick();
    QString JoinCriteria();
    void mnuFilterAutoSet_Click();
    void cmdAutoSet_Click();
    void CreateFilter() {}  // has no effect; the name is all that is left of it
    // ---- Library: tags ----
    void UpdateTag();
    static void LimitTyping(const TextBox& box, int limit, int& keyAscii);
    // ---- Library: song sets ----
    void mnuSaveSongSet_Click();
    void mnuLoadSongSet_Click();
    void mnuSongSets_Click();
    void mnuSongInfo_Click();  // the pane's other faces, in library/SongDetails.cpp
    void mnuPhoto_Click();
    void lstSongSets_DblClick();
    void GetSongSetsFromMini();
    // The song sets in the current directory, by name without their extension, in its order.
    QStringList SongSetNames() const;
    void ReadQueue(TextFieldReader& in);  // fills the queue from a Mixer.dat or song set
    void SelectDrive(int drive);
    void GetTitles();
    void LoadSkin();
    // The pictures and colours of the skin files in `dir`, without the check that it is a
    // skin; also how the built-in look is put on. Throws at the first failing step.
    void ApplySkinFiles(const QString& dir);
    static inline const QString BuiltInSkin = QStringLiteral(":/skins/Default");
    void mnuSelectSkin_Click();
    void AskSkinDirectory();
    // The picture-clip sheet that both skins cut from: the last Buttons.bmp that loaded.
    Picture Clip1;
    void LoadSkinMini();
    // The mini player's skin files in `dir`, without the check that it is a skin.
    void ApplyMiniSkinFiles(const QString& dir);
    void ApplyMiniDigits(std::int32_t x, std::int32_t y, std::int32_t w, std::int32_t h, std::int32_t left,
                         std::int32_t top);
    static inline const QString BuiltInMiniSkin = QStringLiteral(":/zipdeck/Default");
    void mnuSelectSkinPlayer_Click();
    void cmdLoadSkin_Click();
    // ---- Window modes ----
    void StickOnly();
    void FullScreen();
    void imgSize_Click();
    void imgStick_MouseDown(int button, int shift, double x, double y);
    void imgStick_MouseMove(int button, int shift, double x, double y);
    void mnuFullScreen_Click();
    void mnuMiniPlayer_Click();
    void wireWindowModes();
    bool StickDragging = false;
    // ---- The mini player's calls ----
    void PlayFromMini();
    void StopFromMini();
    void PauseFromMini();
    void imgButon_Click(int index);
    void UpdateRecordCount();
    void lstSongs_Click();

    // ---- Playback: song loading ----
    bool GetSong(std::int16_t& index);
    void GetTotTime();
    void LoadTB();
    // The caption the window takes for a song, with the alarm's suffix when the alarm is on.
    QString CaptionWithAlarm(const QString& text) const;
    // Rows 0 to 500 have a directory; any other row fails, so each step that needs it is skipped.
    const QString& SongPathOf(int row) const;
    QString& SongPathOf(int row) { return const_cast<QString&>(std::as_const(*this).SongPathOf(row)); }
    // The six photo files of a row, folder's then song's, each GIF, BMP, JPG: each one that
    // loads replaces the one before.
    void TryPhotos(Image& photo, int row);
    void SizePhoto();

    // ---- Playback: transport ----
    void BtnPlay_MouseDown(int button, int shift, double x, double y);
    void BtnPlay_MouseUp(int button, int shift, double x, double y);
    void BtnPause_MouseDown(int button, int shift, double x, double y);
    void BtnPause_MouseUp(int button, int shift, double x, double y);
    void BtnStop_MouseDown(int button, int shift, double x, double y);
    void BtnStop_MouseUp(int button, int shift, double x, double y);
    void BtnFade_MouseDown(int button, int shift, double x, double y);
    void BtnFade_MouseUp(int button, int shift, double x, double y);
    void MP3_StreamEnd();
    void SongFollows();  // what the end of a song leads to
    // A picture of ImageListB on a control; an index the list lacks skips the statement.
    void ShowButtonImage(Image& button, int index);
    void chkLoop_Click();
    void mnuLoopOff_Click();
    void mnuLoopSongSet_Click();
    void mnuLoopSong_Click();
    void mnuStopAfterSong_Click();
    void StartFade();
    void PlaceVolumeSlider(double value);

    // ---- Playback: queue and title pane ----
    void FillTitles();
    void cmdUp_Click();
    void cmdDown_Click();
    void Title_DblClick(int index);
    void cmdAddAll_Click();
    void cmdAddToQueue_Click();
    void cmdDelete_Click();
    void cmdDeleteAll_Click();
    void cmdShuffle_Click();
    void Shuffle();
    void mnuOrdered_Click();
    // Appends a row and its directory, as every way of filling the queue does.
    void AddToQueue(const QString& name, const QString& dir);

    // ---- Playback: fade, position and speed ----
    void Timer1_Timer();
    void FrameNotify(std::int32_t frame);
    void imgButtonSong_MouseDown(int button, int shift, double x, double y);
    void imgButtonSong_MouseMove(int button, int shift, double x, double y);
    void imgButtonSong_MouseUp(int button, int shift, double x, double y);
    void cmdSpeedUp_Click();
    void cmdSpeedDown_Click();

    // ---- Playback: mixer and per-song tone ----
    void ControlFound(const QString& name, std::int32_t id0, std::int32_t id1);
    void SaveTB();
    // The three sliders of the window: which value each drives and where its travel lies.
    enum class ToneSlider { Volume, Treble, Bass };
    void ToneSlider_MouseDown(ToneSlider which);
    void ToneSlider_MouseMove(ToneSlider which, double y);  // y in the slider, in twips
    void ToneSlider_MouseUp(ToneSlider which);
    void cmdSaveTB_Click();
    void cmdSaveTBDefaults_Click();

    // ---- Playback: alarm ----
    void tmrAlarm_Timer();
    void mnuSetAlarmTime_Click();
    void mnuAlarmOnOff_Click();
    void cmdSetTimeOK_Click();
    void cmdSetTimeCancel_Click();

    // ---- Procedures of later work that loading and the transport call ----
    void LoadRTF(const QString& file);  // info pages
    void ClearRTF();                    // empties the info viewer
    void GetRTF();                      // the directory's info pages
    // ---- Info viewer ----
    void ShowPageNumber();
    void ShowInfoPage();
    void cmdInfoLeft_Click();
    void cmdInfoRight_Click();
    void tmrInfo_Timer();
    void ShowNamedPage(const QString& name);
    void cmdCurrentSongInfo_Click();
    void mnuTimerOn_Click();
    void mnuSetTimer_Click();
    void SizeForInfo(bool viewer);
    void SizeWithoutInfo();
    void mnuInfo_Click();
    void ToggleInfoPanel(bool editor);
    void cmdCloseInfoViewer_Click();
    void mnuEdit_Click();
    void designToolbar();
    void Toolbar_ButtonClick(const QString& key);
    void ToolbarCommand(const QString& key);
    QString AskRichTextFile(bool save);
    Color AskColour();
    void ArmKaraoke();
    void cmdPrint_Click();
    void PlacePhoto(int width);
    // The title pane's panel, which the info panel takes the place of.
    Control& PanelTitles() { return PicTitleBoxes; }
    void LoadKaraoke(const QString& file);  // karaoke timings of the song
    void WriteKaraoke();                    // ends a karaoke recording
    void KaraokeFrame(std::int32_t frame);  // records and follows karaoke points
    void FindText();                        // selects the word at the caret
    void RT_Click();
    void CheckForBlade();     // the external encoder's stop question
    bool Mp3ToWavTargetOk();  // the overwrite question of MP3 to WAV

    // ---- Conversion: modes ----
    void mnuCDtoMP3_Click();
    void mnuCdToWav_Click();
    void mnuWavToMp3_Click();
    void mnuMP3ToWav_Click();
    void mnuInternal_Click();
    void mnuBlade_Click();
    void mnuCDOpen_Click();
    void mnuCDClose_Click();
    void cboBitRate_Click();
    void imgQuitEncoder_Click();
    void cmdSetPunchInOut_Click();
    void ChooseEncoder(std::int16_t choice);
    void ChooseBladeWindow(bool invisible);
    // Mode 0 CD to WAV, 1 CD to MP3: enters the mode and lists the CD, or leaves the mode.
    void GetAudioTracks(int mode);
    void GetDriveList();
    void EnterMode();
    void LeaveMode();
    void ShowConversionPanel();
    void SetRateListsVisible(bool visible);
    void SetPunchControlsVisible(bool visible);
    std::vector<Control*> PlayerOnlyControls();

    // ---- Conversion: runs ----
    void ConversionPlay();  // Play in the CD and WAV conversion modes
    void WavToMp3Play();
    void CdPlay();
    // False when the encoder refused the job, which ends the run.
    bool StartInternalEncoder(const QString& wav, const QString& mp3);
    void EncodeBlade(const QString& dir, QString& srcFile, const QString& dstFile);
    void TimerEnc_Timer();
    void RemoveEncoderCopy();
    void RestoreBladeNames();
    void EncodingShown();
    // Selects the next row and starts its job, unless the run was stopped or this was the last.
    bool SelectNextRow();
    void EndOfEncodingRun();
    void ReleaseEncoderFiles();   // the encoder's call with "rem.wav", its "no job"
    void WriteEncoderSettings();  // the bit rate and sample rate lists' numbers
    void DeleteTemporaryWav();
    void ACD_ExtractProgress(std::int32_t perMille);
    void ACD_ExtractFinished();
    void Mp3Enc_EncodeProgress(std::int32_t done);
    void Mp3Enc_EncodeFinished();
    void ShowLamp(bool working);
    double ClockSeconds() const;
    // CurrentDir & title & track number "00" & extension.
    QString TrackFileName(const QString& extension) const;
    // The mini player's share of loading and the transport.
    void MiniShowSongLength();
    void MiniShowChannels(std::int16_t channelMode);
    void MiniShowPlaying();
    void MiniHideChannels();
    void MiniShowStopped();
    void MiniStopMeterTimer();
    void MiniClearElapsed();
    void MiniResetKnob();
    void MiniSongFollows();
    void MiniGetSongs();
    void MiniSelectRow(int row);
    void MiniShowLoop(bool on);
    void MiniShowElapsed(std::int32_t minutes, std::int32_t seconds);

    // ---- Form-level state ----
    bool StopRequested = false;
    bool Fading = false;
    std::int16_t SavedVolume = 0;
    std::int32_t SongLength = 0, TotalFrames = 0, FramesPerSecond = 0;
    QString SongLengthText;
    std::int16_t PhotoWidth = 0;
    std::int16_t InfoPage = 0, InfoPageCount = 0, RTIndex = 0;
    // The file and colour dialog's state: whether a Cancel ends the command (set by the first
    // save, for good) and the colour it last gave.
    bool CancelError = false;
    Color DialogColour;
    QString CurrentDir;
    QString LastDir;
    std::int32_t BarWidth = 0;
    std::int16_t CurrentTrack = 0, ReadRetries = 0;
    double ExtractStart = 0, BladeStart = 0;
    std::int64_t BladeProcess = 0;
    std::int32_t EncodeStep = 0;
    bool ExtractRunning = false, EncodeRunning = false;  // a job started and not yet finished
    bool SearchRunning = false;
    QStringList Titles;  // 0-based here; entry i is the label text source of Titles(i + 1)
    std::int16_t TitleCount = 0, TitleTop = 0;
    bool SliderDragging = false;
    std::int16_t LastSongStep = 0, LastMiniStep = 0;
    std::int32_t LastFrame = 0;  // the frame of the last notification, for the desktop's position
    std::array<std::int32_t, 2> VUMeterControl{};
    bool AlarmDone = false;
    std::int32_t PeakMaximum = 0, LampStep = 0, PeakValue = 0;
    void mnuVU_Click();
    void TimerMix_Timer();
    int DatabaseAttached = 0;  // the focus handler's own flag
    bool closing_ = false;
    // Directory (none past the directory store) and name of each row.
    QList<std::pair<std::optional<QString>, QString>> parkedQueue_;
    bool queueParked_ = false;

    // The start-up trace, Debug.dat in the current directory.
    void traceOpen();
    void trace(const char* word, int step);
    void traceClose();

private:
    void wireHandlers();
    void wireInfo();
    void wireEditor();
    void design();
    QString traceText_;
    bool traceIsOpen_ = false;
};

}  // namespace sonarium
