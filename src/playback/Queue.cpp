// The queue's list click and its running time.
#include "controls/Errors.h"
#include "shell/Form1.h"
#include "shell/TextFields.h"

namespace sonarium {

// A click only prepares the row while nothing plays; during play it switches to it at once.
void Form1::lstSongs_Click() {
    if (M.QueueClickOff) return;
    tryStep([&] { M.CurrentSong = std::int16_t(lstSongs.ListIndex()); });
    tryStep([&] { setCaption(CaptionWithAlarm(lstSongs.Text())); });
    if (!M.SongPlaying) {
        if (!mnuCdToWav.Checked()) {
            tryStep([&] { GetTotTime(); });
            tryStep([&] { GetSong(M.CurrentSong); });
        }
    } else {
        tryStep([&] { BtnStop_MouseUp(0, 0, 0, 0); });
        tryStep([&] { GetSong(M.CurrentSong); });
        tryStep([&] { BtnPlay_MouseUp(0, 0, 0, 0); });
    }
}

// The running time from the selected row to the end. The player can't be borrowed during
// play, and it is left open on the current song.
void Form1::GetTotTime() {
    if (M.SongPlaying) return;
    if (lstSongs.ListCount() == 0) {
        tryStep([&] { lblTotTime.setCaption(QString()); });
        return;
    }
    const int start = std::max(lstSongs.ListIndex(), 0);
    std::int32_t total = 0;
    for (int i = start; i < lstSongs.ListCount(); ++i) {
        tryStep([&] { C.mp3.Close(); });
        tryStep([&] { C.mp3.Open(SongPathOf(i) + lstSongs.List(i) + QStringLiteral(".MP3"), QString()); });
        tryStep([&] { total = toInt32(total + double(C.mp3.Length())); });
    }
    tryStep([&] { C.mp3.Close(); });
    tryStep([&] {
        C.mp3.Open(SongPathOf(M.CurrentSong) + lstSongs.List(M.CurrentSong) + QStringLiteral(".MP3"),
                   QString());
    });
    auto two = [](std::int32_t n) { return QStringLiteral("%1").arg(n, 2, 10, QLatin1Char('0')); };
    tryStep([&] {
        lblTotTime.setCaption(two(total / 3600) + u':' + two(total % 3600 / 60) + u':' + two(total % 60));
    });
}

}  // namespace sonarium
