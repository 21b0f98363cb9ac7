// The Play button. Every start goes through its mouse-up handler: the button, F4, a click on
// a queue row during play, the end of the song before, the alarm and the mini player.
#include "controls/Errors.h"
#include "controls/FileNames.h"
#include "shell/ButtonPictures.h"
#include "shell/Form1.h"
#include "shell/FrmMiniPlayer.h"

namespace sonarium {

using namespace buttons;

void Form1::ShowButtonImage(Image& button, int index) {
    tryStep([&] { button.setPicture(ImageListB.ListImage(index)); });
}

void Form1::BtnPlay_MouseDown(int, int, double, double) {
    if (M.SongPlaying || M.SongPaused) return;
    ShowButtonImage(BtnPlay, PlayPressed);
    StopRequested = false;
}

void Form1::BtnPlay_MouseUp(int, int, double, double) {
    tryStep([&] { M.KaraokeIndex = 1, M.KaraokeCount = 0; });
    tryStep([&] { lblBladeEncTime.setVisible(false); });
    if (mnuWavToMp3.Checked() || mnuCDtoMP3.Checked() || mnuCdToWav.Checked()) {
        tryStep([&] { ConversionPlay(); });
        return;
    }
    ShowButtonImage(BtnPlay, PlayAtRest);
    // A running or paused song is left alone.
    if (M.SongPlaying || M.SongPaused) return;

    tryStep([&] { C.mp3.Stop(); });
    tryStep([&] { C.loop.waitUntil([this] { return !M.SongPlaying; }); });
    if (mnuMP3ToWav.Checked() && !Mp3ToWavTargetOk()) return;

    if (lstSongs.ListCount() == 0) {
        const QString where =
            PanelDatabase.Visible()
                ? QStringLiteral("Select a title in the database, and click the 'Add to queue' button")
                : QStringLiteral("Click on a song title to add it to the song queue");
        C.dialogs.msgBox(QStringLiteral("Nothing in song queue - ") + where, MsgButtons::OK,
                         MsgIcon::Information, QStringLiteral("Play"));
        return;
    }
    // Selecting runs the list's click, which sets CurrentSong.
    if (lstSongs.ListIndex() == -1) tryStep([&] { lstSongs.setListIndex(0); });

    tryStep([&] {
        const QString timings =
            SongPathOf(M.CurrentSong) + lstSongs.List(M.CurrentSong) + QStringLiteral(".KAK");
        if (fileExists(timings) && !M.KaraokeRecording)
            LoadKaraoke(timings);
        else
            M.KaraokePlaying = false;
    });
    tryStep([&] { GetTotTime(); });
    // A song that can't be opened ends the chain here: the machine stays idle.
    if (!GetSong(M.CurrentSong)) return;

    tryStep([&] {
        const std::int16_t mode = C.mp3.ChannelMode();
        if (mode == 0) {
            ShowButtonImage(imgMS, StereoPicture);
            MiniShowChannels(mode);
        } else if (mode == 3) {
            ShowButtonImage(imgMS, MonoPicture);
            MiniShowChannels(mode);
        }
    });
    tryStep([&] { cmdShuffle.setVisible(false); });
    tryStep([&] { SavedVolume = M.Volume; });
    tryStep([&] { C.mp3.SetVolume(M.Volume, M.Volume); });
    tryStep([&] { setCaption(CaptionWithAlarm(lstSongs.Text())); });
    ShowButtonImage(BtnPlay, PlayPlaying);
    tryStep([&] { MiniShowPlaying(); });
    // Playing is set before the player starts: its events may come at any moment after.
    M.SongPlaying = true;
    tryStep([&] { Ball.setPicture(imgGreenBall.picture()); });
    // With a punch section on and no decoding, nothing starts: playing, silent.
    tryStep([&] {
        if (chkUseInOut.Value() == 0) {
            C.mp3.Play();
        } else if (mnuMP3ToWav.Checked()) {
            const auto row = std::size_t(M.CurrentSong);
            C.mp3.PlayRange(M.PunchStart.at(row), M.PunchEnd.at(row) - 80);
        }
    });
    tryStep([&] { TimerMix.setEnabled(true); });
}

}  // namespace sonarium
