// Adding the library's record to the queue and taking rows out of it.
#include "controls/Errors.h"
#include "shell/Form1.h"

namespace sonarium {

// The library keeps directories without their closing slash.
void Form1::cmdAddToQueue_Click() {
    tryStep([&] { lstSongs.AddItem(C.data.recordset().Fields(QStringLiteral("File")).Value().toString()); });
    tryStep([&] {
        SongPathOf(lstSongs.ListCount() - 1) =
            C.data.recordset().Fields(QStringLiteral("Path")).Value().toString() + u'/';
    });
    tryStep([&] { GetTotTime(); });
}

// Selecting the neighbour runs the list's click before the directories move up, so with a song
// in play the neighbour starts from the deleted row's directory. The punch sections move only up
// to the new count, leaving the former last row's section one place too far down.
void Form1::cmdDelete_Click() {
    if (lstSongs.ListIndex() < 0) {
        C.dialogs.msgBox(QStringLiteral("Song not selected, click on a song in the song queue"),
                         MsgButtons::OK, MsgIcon::Exclamation, QStringLiteral("Delete"));
        return;
    }
    const int r = lstSongs.ListIndex();
    tryStep([&] { lstSongs.RemoveItem(r); });
    tryStep([&] { lstSongs.setListIndex(r < 1 ? 0 : r - 1); });
    const int count = lstSongs.ListCount();
    for (int i = r + 1; i <= count - 1; ++i) {
        tryStep([&] { M.PunchStart.at(std::size_t(i - 1)) = M.PunchStart.at(std::size_t(i)); });
        tryStep([&] { M.PunchEnd.at(std::size_t(i - 1)) = M.PunchEnd.at(std::size_t(i)); });
        tryStep([&] { M.PunchActive.at(std::size_t(i - 1)) = M.PunchActive.at(std::size_t(i)); });
    }
    for (int i = r; i <= count - 1; ++i) tryStep([&] { SongPathOf(i) = SongPathOf(i + 1); });
    tryStep([&] { GetTotTime(); });
}

// The song in play goes on; CurrentSong keeps its value. The punch arrays start afresh with two
// empty elements.
void Form1::cmdDeleteAll_Click() {
    tryStep([&] { lstSongs.Clear(); });
    tryStep([&] { lblTotTime.setCaption(QString()); });
    M.PunchStart.assign(2, 0);
    M.PunchEnd.assign(2, 0);
    M.PunchActive.assign(2, 0);
}

}  // namespace sonarium
