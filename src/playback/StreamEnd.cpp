// The end of a stream, whether the file ran out or Stop was called: the only place that
// clears SongPlaying, and the only place that starts the next song.
#include "controls/Errors.h"
#include "shell/Form1.h"
#include "shell/FrmMiniPlayer.h"

namespace sonarium {

namespace {
constexpr int PlayAtRest = 1;
constexpr int KnobRestLeft = 3705;
}  // namespace

void Form1::MP3_StreamEnd() {
    auto step = [](const std::function<void()>& s) { return tryStep(s); };
    step([&] { C.mp3.Close(); });
    step([&] { cmdShuffle.setVisible(true); });
    step([&] { imgMS.setPicture(Picture()); });
    step([&] { MiniHideChannels(); });
    step([&] { imgButtonSong.setLeft(KnobRestLeft); });
    step([&] { MiniShowStopped(); });
    step([&] { TimerMix.setEnabled(false); });
    if (frmMiniPlayer.Visible()) step([&] { MiniStopMeterTimer(); });
    for (auto& lamp : imgVU) step([&] { lamp->setPicture(imgVUPurple.picture()); });
    if (frmMiniPlayer.Visible()) {
        for (auto& lamp : frmMiniPlayer.imgVU)
            step([&] { lamp->setPicture(frmMiniPlayer.imgVUPurple.picture()); });
        step([&] { MiniClearElapsed(); });
    }
    if (M.KaraokeRecording) step([&] { WriteKaraoke(); });
    step([&] { Ball.setPicture(imgRedBall.picture()); });
    ShowButtonImage(BtnPlay, PlayAtRest);
    if (frmMiniPlayer.Visible()) step([&] { MiniResetKnob(); });
    M.SongPlaying = false;
    LastFrame = 0;
    Fading = false;
    // The listener's volume comes back after a fade before anything else can start.
    step([&] { PlaceVolumeSlider(SavedVolume); });
    step([&] { C.mp3.SetVolume(SavedVolume, SavedVolume); });
    M.Volume = SavedVolume;
    step([&] { SongFollows(); });
    StopRequested = false;
}

// "Stop After Song" is looked at only while more rows follow: in the last row a loop mode
// plays on whatever the check mark says. The Play handler runs nested in this event.
void Form1::SongFollows() {
    auto step = [](const std::function<void()>& s) { return tryStep(s); };
    const int last = lstSongs.ListCount() - 1;
    if (M.CurrentSong < last) {
        if (StopRequested) return;
        if (M.LoopMode != 2) ++M.CurrentSong;
        // Selecting another row runs the list's click, which loads the song.
        step([&] { lstSongs.setListIndex(M.CurrentSong); });
        if (frmMiniPlayer.Visible()) step([&] { MiniSongFollows(); });
        if (!mnuStopAfterSong.Checked()) step([&] { BtnPlay_MouseUp(0, 0, 0, 0); });
        return;
    }
    if (!StopRequested && M.LoopMode == 1) {
        M.CurrentSong = 0;
        step([&] { lstSongs.setListIndex(0); });
        step([&] { MiniGetSongs(); });
        step([&] { BtnPlay_MouseUp(0, 0, 0, 0); });
    } else if (!StopRequested && M.LoopMode == 2) {
        step([&] { lstSongs.setListIndex(M.CurrentSong); });
        step([&] { MiniSelectRow(M.CurrentSong); });
        step([&] { BtnPlay_MouseUp(0, 0, 0, 0); });
    }
}

}  // namespace sonarium
