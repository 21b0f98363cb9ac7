#pragma once
// The main window's menus: the bar (File, View, Setup, Convert, CD Tray, Help) and the popups
// opened by buttons (loop, shuffle, stick, criteria, photo size).
#include <vector>

#include "controls/Menu.h"

namespace sonarium {

struct Form1Menus {
    Form1Menus();
    Form1Menus(const Form1Menus&) = delete;

    // File
    MenuItem mnuFile{"mnuFile", "&File"};
    MenuItem mnuLoadSongSet{"mnuLoadSongSet", "Load Song Set", &mnuFile};
    MenuItem mnuSaveSongSet{"mnuSaveSongSet", "Save Song Set", &mnuFile};
    MenuItem mnuFileSep1{"mnuFileSep1", "-", &mnuFile};
    MenuItem mnuCreateDatabase{"mnuCreateDatabase", "Create New Database", &mnuFile};
    MenuItem mnuDefaultDatabase{"mnuDefaultDatabase", "Set Default Database", &mnuFile};
    MenuItem mnuFileSep2{"mnuFileSep2", "-", &mnuFile};
    MenuItem mnuQuit{"mnuQuit", "&Quit", &mnuFile};

    // View
    MenuItem mnuView{"mnuView", "View"};
    MenuItem mnuSongInfo{"mnuSongInfo", "&Song Details", &mnuView};
    MenuItem mnuPhoto{"mnuPhoto", "&Photo", &mnuView};
    MenuItem mnuSongSets{"mnuSongSets", "S&ong Sets", &mnuView};
    MenuItem mnuFullScreen{"mnuFullScreen", "FullScreen", &mnuView};
    MenuItem mnuInfo{"mnuInfo", "Info", &mnuView};
    MenuItem mnuDatabase{"mnuDatabase", "Database", &mnuView};
    MenuItem mnuVU{"mnuVU", "VU Meter", &mnuView};
    MenuItem mnuMiniPlayer{"mnuMiniPlayer", "Zipdeck", &mnuView};
    MenuItem mnuViewStick{"mnuViewStick", "Play Bar Only", &mnuView};
    MenuItem mnuMinimize{"mnuMinimize", "Minimize", &mnuView};

    // Setup
    MenuItem mnuSetup{"mnuSetup", "&Setup"};
    MenuItem mnuSelectSkin{"mnuSelectSkin", "Select Skin", &mnuSetup};
    MenuItem mnuSelectSkinPlayer{"mnuSelectSkinPlayer", "Select Zipdeck Skin", &mnuSetup};
    MenuItem mnuSetupSep1{"mnuSetupSep1", "-", &mnuSetup};
    MenuItem mnuSetAlarmTime{"mnuSetAlarmTime", "Set Alarm Time", &mnuSetup};
    MenuItem mnuAlarmOnOff{"mnuAlarmOnOff", "Alarm On/Off", &mnuSetup};
    MenuItem mnuSetupSep2{"mnuSetupSep2", "-", &mnuSetup};
    MenuItem mnuEdit{"mnuEdit", "Edit Info", &mnuSetup};
    MenuItem mnuTimerOn{"mnuTimerOn", "Info Timer On", &mnuSetup};
    MenuItem mnuSetTimer{"mnuSetTimer", "Set Info Timer", &mnuSetup};
    MenuItem mnuPrinterSetup{"mnuPrinterSetup", "Printer Setup", &mnuSetup};
    MenuItem mnuSetupSep3{"mnuSetupSep3", "-", &mnuSetup};
    MenuItem mnuBladeInvisible{"mnuBladeInvisible", "Blade Invisible", &mnuSetup};
    MenuItem mnuBladeMinimised{"mnuBladeMinimised", "Blade Minimised", &mnuSetup};

    // Convert
    MenuItem mnuConvert{"mnuConvert", "Convert"};
    MenuItem mnuCDtoMP3{"mnuCDtoMP3", "CD to MP3", &mnuConvert};
    MenuItem mnuCdToWav{"mnuCdToWav", "CD to WAV", &mnuConvert};
    MenuItem mnuWavToMp3{"mnuWavToMp3", "WAV to MP3", &mnuConvert};
    MenuItem mnuMP3ToWav{"mnuMP3ToWav", "MP3 to WAV", &mnuConvert};
    MenuItem mnuConvertSep1{"mnuConvertSep1", "-", &mnuConvert};
    MenuItem mnuInternal{"mnuInternal", "Use Internal Encoder", &mnuConvert};
    MenuItem mnuBlade{"mnuBlade", "Use Blade Encoder", &mnuConvert};

    // CD
    MenuItem mnuCD{"mnuCD", "CD Tray"};
    MenuItem mnuCDOpen{"mnuCDOpen", "Open", &mnuCD};
    MenuItem mnuCDClose{"mnuCDClose", "Close", &mnuCD};

    // Help
    MenuItem mnuHelp{"mnuHelp", "&Help"};
    MenuItem mnuContents{"mnuContents", "Contents and Index", &mnuHelp};
    MenuItem mnuAbout{"mnuAbout", "About Sonarium", &mnuHelp};

    // Popups: hidden in the bar, opened by their buttons.
    MenuItem mnuLoop{"mnuLoop", "Loop"};
    MenuItem mnuLoopSongSet{"mnuLoopSongSet", "Loop Song Set", &mnuLoop};
    MenuItem mnuLoopSong{"mnuLoopSong", "Loop Song", &mnuLoop};
    MenuItem mnuLoopOff{"mnuLoopOff", "Loop Off", &mnuLoop};
    MenuItem mnuLoopSep1{"mnuLoopSep1", "-", &mnuLoop};
    MenuItem mnuStopAfterSong{"mnuStopAfterSong", "Stop After Song", &mnuLoop};

    MenuItem mnuShuffle{"mnuShuffle", "Shuffle"};
    MenuItem mnuOrdered{"mnuOrdered", "Ordered", &mnuShuffle};
    MenuItem mnuRandom{"mnuRandom", "Random", &mnuShuffle};
    MenuItem mnuCancelShuffle{"mnuCancelShuffle", "Cancel", &mnuShuffle};

    MenuItem mnuStick{"mnuStick", "StickMenu"};
    MenuItem mnuMaximize{"mnuMaximize", "Maximize", &mnuStick};
    MenuItem SQuit{"SQuit", "Quit", &mnuStick};

    MenuItem mnuCriteria{"mnuCriteria", "Criteria"};
    MenuItem mnuFilter{"mnuFilter", "Filter", &mnuCriteria};
    MenuItem mnuFilterAutoSet{"mnuFilterAutoSet", "Filter using 'Auto-Queue' criteria", &mnuCriteria};
    MenuItem mnuAdd{"mnuAdd", "Add selected field to criteria", &mnuCriteria};
    MenuItem mnuExclude{"mnuExclude", "Exclude from criteria", &mnuCriteria};
    MenuItem mnuClearCriteria{"mnuClearCriteria", "Clear 'Auto-Queue' criteria", &mnuCriteria};
    MenuItem mnuViewCriteria{"mnuViewCriteria", "View 'Auto-Queue' criteria", &mnuCriteria};
    MenuItem mnuCriteriaSep1{"mnuCriteriaSep1", "-", &mnuCriteria};
    MenuItem mnuSearch{"mnuSearch", "Search", &mnuCriteria};

    MenuItem mnuPhotosize{"mnuPhotosize", "Photo Size"};
    MenuItem mnuPhotoSquare{"mnuPhotoSquare", "128*128", &mnuPhotosize};
    MenuItem mnuPhotoRectangle{"mnuPhotoRectangle", "230*128", &mnuPhotosize};

    // The menu bar, in order (popups are not part of it).
    std::vector<MenuItem*> menuBar() const {
        return {const_cast<MenuItem*>(&mnuFile),  const_cast<MenuItem*>(&mnuView),
                const_cast<MenuItem*>(&mnuSetup), const_cast<MenuItem*>(&mnuConvert),
                const_cast<MenuItem*>(&mnuCD),    const_cast<MenuItem*>(&mnuHelp)};
    }
};

}  // namespace sonarium
