// The end of a stream, whether the file ran out or Stop was called: the only place that
// clears SongPlaying, and the only place that starts the next song.
#include "controls/Errors.h"
#include "shell/ButtonPictures.h"
#include "shell/Form1.h"
#include "shell/FrmMiniPlayer.h"

namespace sonarium {

using namespace buttons;

namespace {
constexpr int KnobRestLeft = 3705;
}  // namespace

void Form1::MP3_StreamEnd() {
    tryStep([&] { C.mp3.Close(); });
    tryStep([&] { cmdShuffle.setVisible(true); });
    tryStep([&] { imgMS.setPicture(Picture()); });
    tryStep([&] { MiniHideChannels(); });
    tryStep([&] { imgButtonSong.setLeft(KnobRestLeft); });
    tryStep([&] { MiniShowStopped(); });
    tryStep([&] { TimerMix.setEnabled(false); });
    if (frmMiniPlayer.Visible()) tryStep([&] { MiniStopMeterTimer(); });
    for (auto& lamp : imgVU) tryStep([&] { lamp->setPicture(imgVUPurple.picture()); });
    if (frmMiniPlayer.Visible()) {
        for (auto& lamp : frmMiniPlayer.imgVU)
            tryStep([&] { lamp->setPicture(frmMiniPlayer.imgVUPurple.picture()); });
        tryStep([&] { MiniClearElapsed(); });
    }
    if (M.KaraokeRecording) tryStep([&] { WriteKaraoke(); });
    tryStep([&] { Ball.setPicture(imgRedBall.picture()); });
    ShowButtonImage(BtnPlay, PlayAtRest);
    if (frmMiniPlayer.Visible()) tryStep([&] { MiniResetKnob(); });
    M.SongPlaying = false;
    LastFrame = 0;
    Fading = false;
    // The listener's volume comes back after a fade before anything else can start.
    tryStep([&] { PlaceVolumeSlider(SavedVolume); });
    tryStep([&] { C.mp3.SetVolume(SavedVolume, SavedVolume); });
    M.Volume = SavedVolume;
    tryStep([&] { SongFollows(); });
    StopRequested = false;
}

// "Stop After Song" is looked at only while more rows follow: in the last row a loop mode
// plays on whatever the check mark says. The Play handler runs nested in this event.
void Form1::SongFollows() {
    const int last = lstSongs.ListCount() - 1;
    if (M.CurrentSong < last) {
        if (StopRequested) return;
        if (M.LoopMode != 2) ++M.CurrentSong;
        // Selecting another row runs the list's click, which loads the song.
        tryStep([&] { lstSongs.setListIndex(M.CurrentSong); });
        if (frmMiniPlayer.Visible()) tryStep([&] { MiniSongFollows(); });
        if (!mnuStopAfterSong.Checked()) tryStep([&] { BtnPlay_MouseUp(0, 0, 0, 0); });
        return;
    }
    if (!StopRequested && M.LoopMode == 1) {
        M.CurrentSong = 0;
        tryStep([&] { lstSongs.setListIndex(0); });
        tryStep([&] { MiniGetSongs(); });
        tryStep([&] { BtnPlay_MouseUp(0, 0, 0, 0); });
    } else if (!StopRequested && M.LoopMode == 2) {
        tryStep([&] { lstSongs.setListIndex(M.CurrentSong); });
        tryStep([&] { MiniSelectRow(M.CurrentSong); });
        tryStep([&] { BtnPlay_MouseUp(0, 0, 0, 0); });
    }
}

}  // namespace sonarium
