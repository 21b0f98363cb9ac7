// The loop modes and "Stop After Song". LoopMode starts at 0 on every run and is not saved.
#include "controls/Errors.h"
#include "shell/Form1.h"

namespace sonarium {

// The popup runs the chosen entry's click before it returns.
void Form1::chkLoop_Click() {
    tryStep([&] {
        if (MenuItem* chosen = C.dialogs.popupMenu(mnuLoop)) chosen->Click();
    });
}

void Form1::mnuLoopOff_Click() {
    M.LoopMode = 0;
    mnuLoopSongSet.setChecked(false);
    mnuLoopSong.setChecked(false);
    tryStep([&] { chkLoop.setPicture(imgRedBall.picture()); });
    tryStep([&] { MiniShowLoop(false); });
}

void Form1::mnuLoopSongSet_Click() {
    M.LoopMode = 1;
    mnuLoopSongSet.setChecked(true);
    mnuLoopSong.setChecked(false);
    tryStep([&] { chkLoop.setPicture(imgGreenBall.picture()); });
    tryStep([&] { MiniShowLoop(true); });
}

void Form1::mnuLoopSong_Click() {
    M.LoopMode = 2;
    mnuLoopSongSet.setChecked(false);
    mnuLoopSong.setChecked(true);
    tryStep([&] { chkLoop.setPicture(imgGreenBall.picture()); });
    tryStep([&] { MiniShowLoop(true); });
}

void Form1::mnuStopAfterSong_Click() { mnuStopAfterSong.setChecked(!mnuStopAfterSong.Checked()); }

}  // namespace sonarium
