// Closing the main window, the Quit command and the stick menu's immediate quit.
#include "controls/Errors.h"
#include "shell/Form1.h"
#include "shell/Form2.h"
#include "shell/FrmGeneral.h"
#include "shell/FrmMiniPlayer.h"

namespace sonarium {

// The window's close request. The whole close runs here, waiting for the song to end; a
// second request while this one waits is ignored.
void Form1::Form_QueryUnload(bool& cancel) {
    cancel = true;  // the procedure below ends the process itself
    if (closing_) return;
    closing_ = true;
    Form_Unload();
}

void Form1::Form_Unload() {
    tryStep([&] { BtnStop_MouseUp(LeftButton, 0, 0, 0); });
    // A paused song is not stopped by Stop, so this wait lasts until the user resumes it and
    // it ends: the window stays alive meanwhile.
    tryStep([&] { C.loop.waitUntil([this] { return !M.SongPlaying; }); });
    tryStep([&] { C.mp3.Close(); });
    tryStep([&] { C.peak.Free(); });
    tryStep([&] { SaveConfig(); });
    tryStep([&] { SaveMixer(); });
    tryStep([&] { setVisible(false); });
    tryStep([&] { frmGeneral.Unload(); });
    tryStep([&] { form2.Unload(); });
    tryStep([&] { frmMiniPlayer.Unload(); });
    C.desktop.quit(0);
}

// A logout, a shutdown or a kill is no window close: whatever the program is doing (a paused
// song, an open dialog, the mini player) it saves both settings files and asks to end at once,
// without waiting for the song. The volume saved is the listener's, as after a normal stop.
void Form1::EndOnSignal() {
    if (M.SongPlaying) M.Volume = SavedVolume;
    tryStep([&] { C.mp3.Close(); });
    tryStep([&] { SaveConfig(); });
    tryStep([&] { SaveMixer(); });
    C.desktop.quit(0);
}

// The next start opens the main window, whatever mode this one was in.
void Form1::mnuQuit_Click() {
    M.MiniMode = 0;
    bool cancel = false;
    Form_QueryUnload(cancel);
}

// Ends at once: no stop, no wait, nothing saved.
void Form1::SQuit_Click() { C.desktop.quit(0); }

}  // namespace sonarium
