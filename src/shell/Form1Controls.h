#pragma once
// The controls of the main window, as models. Their design-time places, sizes and captions
// are set in Form1Design.cpp; views mirror them, the logic drives them.
#include "controls/ControlArray.h"
#include "controls/DataGrid.h"
#include "controls/DirListBox.h"
#include "controls/DriveListBox.h"
#include "controls/FileListBox.h"
#include "controls/Timer.h"
#include "controls/Toolbar.h"
#include "controls/Widgets.h"
#include "info/RichTextBox.h"

namespace sonarium {

struct Components;

struct Form1Controls {
    Form1Controls(Components& c, DriveDirectories& drives, const QString& startDir);

    // Backgrounds cut from the skin's panel sheet.
    PictureBox imgStick{"imgStick"}, PicTopPanel{"PicTopPanel"}, PicView{"PicView"}, PicMixer{"PicMixer"},
        PicTitleBoxes{"PicTitleBoxes"}, PicRightPanel{"PicRightPanel"}, PicEncode{"PicEncode"},
        PicDatabase{"PicDatabase"};
    Image imgSize{"imgSize"};

    // Transport
    Image BtnPlay{"BtnPlay"}, BtnPause{"BtnPause"}, BtnStop{"BtnStop"}, BtnFade{"BtnFade"};
    CheckBox chkLoop{"chkLoop"};
    Image Ball{"Ball"}, imgRedBall{"imgRedBall"}, imgGreenBall{"imgGreenBall"}, lblRepeat{"lblRepeat"};
    ImageList ImageListB;

    // Queue and title pane
    ListBox lstSongs{"lstSongs"}, List1{"List1"}, lstSongSets{"lstSongSets"};
    ControlArray<Label> Title{"Title", 12};
    Image cmdUp{"cmdUp"}, cmdDown{"cmdDown"}, cmdAddAll{"cmdAddAll"}, cmdDeleteAll{"cmdDeleteAll"},
        cmdDelete{"cmdDelete"}, cmdShuffle{"cmdShuffle"};
    Label lblTotTime{"lblTotTime"}, lblSongQueue{"lblSongQueue"}, lblDoubleClick{"lblDoubleClick"};

    // Position and speed
    Label lblTime{"lblTime"}, lblSpeed{"lblSpeed"};
    Image imgSLiderSong{"imgSLiderSong"}, imgButtonSong{"imgButtonSong"}, cmdSpeedDown{"cmdSpeedDown"},
        cmdSpeedUp{"cmdSpeedUp"}, lblSpd{"lblSpd"};

    // Mixer and tone
    Image SLiderVolume{"SLiderVolume"}, SliderTreble{"SliderTreble"}, SliderBass{"SliderBass"},
        cmdSaveTB{"cmdSaveTB"}, cmdSaveTBDefaults{"cmdSaveTBDefaults"};

    // VU meter
    Panel PanelVU{"PanelVU"};
    ControlArray<Image> imgVU{"imgVU", 19};
    Image imgVUGreen{"imgVUGreen"}, imgVUAmber{"imgVUAmber"}, imgVURed{"imgVURed"},
        imgVUPurple{"imgVUPurple"};

    // Photo and song details
    Panel PanelPhoto{"PanelPhoto"}, PanelSongInfo{"PanelSongInfo"};
    Image Photo{"Photo"}, imgMpeg3{"imgMpeg3"}, Image8{"Image8"}, Image9{"Image9"}, imgMS{"imgMS"},
        cmdUpdateTag{"cmdUpdateTag"};
    TextBox txtTitle{"txtTitle"}, txtArtist{"txtArtist"}, txtAlbum{"txtAlbum"}, txtYear{"txtYear"},
        txtComment{"txtComment"};
    ComboBox cboGenre{"cboGenre"};
    Label lblSongTitile{"lblSongTitile"}, lblBitrate{"lblBitrate"}, lblFrequency{"lblFrequency"},
        lblSongDuration{"lblSongDuration"};

    // Conversion
    Panel PanelCdToMP3{"PanelCdToMP3"};
    ComboBox cboBitRate{"cboBitRate"}, cboSampleRate{"cboSampleRate"};
    Label lblBtRate{"lblBtRate"}, lblSampleRate{"lblSampleRate"}, Label11{"Label11"},
        lblTrackProgress{"lblTrackProgress"}, lblBladeEncTime{"lblBladeEncTime"};
    TextBox txtTrackTitle{"txtTrackTitle"};
    Panel ShapeBack{"ShapeBack"}, Shape1{"Shape1"};
    CheckBox chkUseInOut{"chkUseInOut"};
    Image cmdSetPunchInOut{"cmdSetPunchInOut"}, lblPunchInOut{"lblPunchInOut"}, imgEncoder{"imgEncoder"},
        imgQuitEncoder{"imgQuitEncoder"};

    // Library: the grid is bound to the data control.
    Panel PanelDatabase{"PanelDatabase"};
    DataGrid DBGrid1;
    ControlArray<Image> imgButon{"imgButon", 15}, imgDown{"imgDown", 15};
    Image Indent{"Indent"}, Button{"Button"}, ButtonBlue{"ButtonBlue"}, imgDataBase{"imgDataBase"},
        cmdAddToQueue{"cmdAddToQueue"}, CmdDataAdd{"CmdDataAdd"}, cmdSearch{"cmdSearch"},
        imgAutoUpdate{"imgAutoUpdate"}, cmdAutoSet{"cmdAutoSet"}, cmdClearAll{"cmdClearAll"},
        cmdDatabaseClose{"cmdDatabaseClose"}, CmdDeleteFile{"CmdDeleteFile"}, cmdDeleteLine{"cmdDeleteLine"},
        imgCancelSearch{"imgCancelSearch"};
    Label lblRecords{"lblRecords"}, lblFilter{"lblFilter"}, lblOrder{"lblOrder"};
    ListBox ListGen{"ListGen"};

    // File browser
    DriveListBox Drive1;
    DirListBox Dir1;
    FileListBox Fillist;

    // Info pages
    Panel InfoPanel{"InfoPanel"};
    Image imgViewInfo{"imgViewInfo"}, imgEditInfo{"imgEditInfo"}, cmdInfoLeft{"cmdInfoLeft"},
        cmdInfoRight{"cmdInfoRight"}, btnGigGuide{"btnGigGuide"}, btnContact{"btnContact"},
        cmdCurrentSongInfo{"cmdCurrentSongInfo"}, cmdPrint{"cmdPrint"},
        cmdCloseInfoViewer{"cmdCloseInfoViewer"};
    // The box of the pages; the program has one, RT(0), so RTIndex is always 0.
    RichTextBox RT{"RT", 0};
    Label lblInfoPageNumber{"lblInfoPageNumber"}, Label13{"Label13"};
    Panel PanelViewButtons{"PanelViewButtons"}, PanelControls{"PanelControls"};
    CommandButton cmdQuitEditor{"cmdQuitEditor"};
    sonarium::Toolbar Toolbar{"Toolbar"};
    ComboBox CboFontName{"CboFontName"}, CboFontSize{"CboFontSize"};

    // Alarm
    Panel PanelAlarm{"PanelAlarm"};
    Label lblAlarmHeading{"lblAlarmHeading"}, lblAlarmCaption{"lblAlarmCaption"},
        lblAlarmTime{"lblAlarmTime"}, lblHour{"lblHour"}, lblMinute{"lblMinute"};
    ListBox lstHour{"lstHour"}, lstMinute{"lstMinute"};
    CommandButton cmdSetTimeOK{"cmdSetTimeOK"}, cmdSetTimeCancel{"cmdSetTimeCancel"};

    // Timers
    Timer Timer1, Timer2, TimerMix, TimerEnc, tmrAlarm, tmrInfo;

    // Every control, for views and tests that walk them.
    std::vector<Control*> allControls() const;
};

}  // namespace sonarium
