// The queue's list click and its running time.
#include "controls/Errors.h"
#include "shell/Form1.h"
#include "shell/TextFields.h"

namespace sonarium {

// A click only prepares the row while nothing plays; during play it switches to it at once.
void Form1::lstSongs_Click() {
    if (M.QueueClickOff) return;
    const auto step = tryStep;
    step([&] { M.CurrentSong = std::int16_t(lstSongs.ListIndex()); });
    step([&] { setCaption(CaptionWithAlarm(lstSongs.Text())); });
    if (!M.SongPlaying) {
        if (!mnuCdToWav.Checked()) {
            step([&] { GetTotTime(); });
            step([&] { GetSong(M.CurrentSong); });
        }
    } else {
        step([&] { BtnStop_MouseUp(0, 0, 0, 0); });
        step([&] { GetSong(M.CurrentSong); });
        step([&] { BtnPlay_MouseUp(0, 0, 0, 0); });
    }
}

// The running time from the selected row to the end. The player can't be borrowed during
// play, and it is left open on the current song.
void Form1::GetTotTime() {
    const auto step = tryStep;
    if (M.SongPlaying) return;
    if (lstSongs.ListCount() == 0) {
        step([&] { lblTotTime.setCaption(QString()); });
        return;
    }
    const int start = std::max(lstSongs.ListIndex(), 0);
    std::int32_t total = 0;
    for (int i = start; i < lstSongs.ListCount(); ++i) {
        step([&] { C.mp3.Close(); });
        step([&] { C.mp3.Open(SongPathOf(i) + lstSongs.List(i) + QStringLiteral(".MP3"), QString()); });
        step([&] { total = toInt32(total + double(C.mp3.Length())); });
    }
    step([&] { C.mp3.Close(); });
    step([&] {
        C.mp3.Open(SongPathOf(M.CurrentSong) + lstSongs.List(M.CurrentSong) + QStringLiteral(".MP3"),
                   QString());
    });
    auto two = [](std::int32_t n) { return QStringLiteral("%1").arg(n, 2, 10, QLatin1Char('0')); };
    step([&] {
        lblTotTime.setCaption(two(total / 3600) + u':' + two(total % 3600 / 60) + u':' + two(total % 60));
    });
}

}  // namespace sonarium
