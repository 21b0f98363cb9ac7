// The mini player's share of song loading and the transport: the main window writes its
// digits, lamps, buttons, knob and list, and serves its commands with its own handlers.
#include "shell/Form1.h"
#include "shell/FrmMiniPlayer.h"

namespace sonarium {

namespace {
void showDigits(FrmMiniPlayer& f, int first, std::int32_t minutes, std::int32_t seconds) {
    const std::int32_t digits[] = {minutes / 10 % 10, minutes % 10, seconds / 10 % 10, seconds % 10};
    for (int i = 0; i < 4; ++i) f.Time[first + i].setPicture(f.Number[std::abs(digits[i])].picture());
}
}  // namespace

void Form1::PlayFromMini() { BtnPlay_MouseUp(0, 0, 0, 0); }
void Form1::StopFromMini() { BtnStop_MouseUp(0, 0, 0, 0); }
void Form1::PauseFromMini() { BtnPause_MouseUp(0, 0, 0, 0); }

void Form1::MiniShowSongLength() {
    showDigits(frmMiniPlayer, 0, SongLength / 60, SongLength % 60);
    MiniClearElapsed();
}

void Form1::MiniShowElapsed(std::int32_t minutes, std::int32_t seconds) {
    showDigits(frmMiniPlayer, 4, minutes, seconds);
}

void Form1::MiniClearElapsed() {
    for (int i = 4; i < 8; ++i) frmMiniPlayer.Time[i].setPicture(frmMiniPlayer.Number[0].picture());
}

void Form1::MiniShowChannels(std::int16_t channelMode) {
    frmMiniPlayer.Stereo.setVisible(channelMode == 0);
    frmMiniPlayer.Mono.setVisible(channelMode == 3);
}

void Form1::MiniHideChannels() {
    frmMiniPlayer.Mono.setVisible(false);
    frmMiniPlayer.Stereo.setVisible(false);
}

void Form1::MiniShowPlaying() {
    frmMiniPlayer.ButtonPlay.setPicture(frmMiniPlayer.ButtonPlayPress.picture());
}

void Form1::MiniShowStopped() {
    tryStep([&] { frmMiniPlayer.ButtonPlay.setPicture(frmMiniPlayer.ImageButton[1].picture()); });
    frmMiniPlayer.Timer1.setEnabled(false);
}

void Form1::MiniStopMeterTimer() { frmMiniPlayer.Timer1.setEnabled(false); }

void Form1::MiniResetKnob() { frmMiniPlayer.imgButtonSong.setLeft(frmMiniPlayer.imgSLiderSong.Left()); }

void Form1::MiniSongFollows() {
    frmMiniPlayer.Timer1.setEnabled(true);
    if (M.MiniListType != 1 && M.LoopMode != 2) frmMiniPlayer.NextSong();
}

void Form1::MiniGetSongs() { frmMiniPlayer.GetSongs(); }
void Form1::MiniSelectRow(int row) { frmMiniPlayer.lstSongSets.setListIndex(row); }

void Form1::MiniShowLoop(bool on) {
    frmMiniPlayer.cmdLoopOn.setVisible(on);
    frmMiniPlayer.cmdLoop.setVisible(!on);
}

}  // namespace sonarium
