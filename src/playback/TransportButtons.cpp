// Pause, Stop and Fade. A mouse-down only changes the button's picture; the mouse-up acts.
// A paused song can only be resumed: Stop and Fade do nothing until Pause is pressed again.
#include "controls/Errors.h"
#include "shell/ButtonPictures.h"
#include "shell/Form1.h"

namespace sonarium {

using namespace buttons;

void Form1::BtnPause_MouseDown(int, int, double, double) {
    if (!M.SongPlaying) return;
    ShowButtonImage(BtnPause, M.SongPaused ? PausePressedWhilePaused : PausePressed);
}

void Form1::BtnPause_MouseUp(int, int, double, double) {
    if (!M.SongPlaying) return;
    if (M.SongPaused) {
        tryStep([&] { C.mp3.Play(); });
        ShowButtonImage(BtnPause, PauseAtRest);
        M.SongPaused = false;
    } else {
        ShowButtonImage(BtnPause, PauseWhilePaused);
        tryStep([&] { C.mp3.Pause(); });
        M.SongPaused = true;
    }
}

void Form1::BtnStop_MouseDown(int, int, double, double) {
    if (M.SongPaused) return;
    ShowButtonImage(BtnStop, StopPressed);
    tryStep([&] { CheckForBlade(); });
}

// Returns only when the song has ended: StreamEnd runs inside the wait, and StopRequested,
// set before Stop, keeps it from starting another song.
void Form1::BtnStop_MouseUp(int, int, double, double) {
    if (mnuCDtoMP3.Checked() || mnuWavToMp3.Checked() || mnuCdToWav.Checked()) {
        StopRequested = true;
        tryStep([&] { C.cd.StopExtract(); });
        tryStep([&] { C.encoder.StopEncoding(); });
        return;
    }
    if (M.SongPaused) return;
    ShowButtonImage(BtnStop, StopAtRest);
    StopRequested = true;
    tryStep([&] { C.mp3.Stop(); });
    tryStep([&] { C.loop.waitUntil([this] { return !M.SongPlaying; }); });
}

void Form1::BtnFade_MouseDown(int, int, double, double) {
    if (M.SongPaused || !M.SongPlaying) return;
    ShowButtonImage(BtnFade, FadePressed);
}

// A fade always ends the song on purpose, so no next song follows it; the volume comes back
// from SavedVolume at the end of the stream.
void Form1::BtnFade_MouseUp(int, int, double, double) {
    if (M.SongPaused || !M.SongPlaying) return;
    ShowButtonImage(BtnFade, FadeAtRest);
    Fading = true;
    StopRequested = true;
    SavedVolume = M.Volume;
    tryStep([&] { StartFade(); });
}

}  // namespace sonarium
