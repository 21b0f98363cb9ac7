// The mini player's list: one page of MiniListRows rows, of the queue or of the song sets,
// and the buttons that walk it. In queue mode the page's selection is the song: selecting a
// row selects the main window's queue row, which loads it.
#include "shell/Form1.h"
#include "shell/FrmMiniPlayer.h"

namespace sonarium {

// The page from `top`: the names top + 1 to top + MiniListRows, stopping at `count`.
void FrmMiniPlayer::ShowPage(std::int16_t top, const std::vector<QString>& names, std::int16_t count) {
    lstSongSets.Clear();
    for (int i = top + 1; i <= top + M.MiniListRows && i <= count && i < int(names.size()); ++i)
        lstSongSets.AddItem(names[std::size_t(i)]);
}

// A copy of the queue's names; then the selection walks, page by page, down to the song.
void FrmMiniPlayer::GetSongs() {
    SongNames.assign(1, QString());
    ListBox& queue = F1->lstSongs;
    if (queue.ListIndex() == -1) return;
    const int current = queue.ListIndex();
    QueueTop = 0;
    M.QueueClickOff = true;
    lstSongSets.Clear();
    for (int i = 1; i <= queue.ListCount(); ++i) {
        tryStep([&] { queue.setListIndex(i - 1); });
        SongNames.push_back(queue.Text());
    }
    SongNameCount = std::int16_t(SongNames.size() - 1);
    ShowPage(0, SongNames, SongNameCount);
    tryStep([&] { queue.setListIndex(current); });
    tryStep([&] { lstSongSets.setListIndex(0); });
    for (int i = 0; i < current; ++i) tryStep([&] { ButtonForward_MouseUp(); });
    M.QueueClickOff = false;
}

// With no set found the page stays empty and the count keeps its value.
void FrmMiniPlayer::GetSongSets() {
    SetNames.assign(1, QString());
    SetTop = 0;
    lstSongSets.Clear();
    const QStringList names = F1->SongSetNames();
    SetNames.insert(SetNames.end(), names.begin(), names.end());
    if (!names.empty()) SetNameCount = std::int16_t(std::min<qsizetype>(names.size(), INT16_MAX));
    ShowPage(0, SetNames, std::int16_t(names.size()));
}

void FrmMiniPlayer::cmdListType_Click() {
    setMousePointer(Hourglass);
    if (M.MiniListType != 1) {
        M.MiniListType = 1;
        lblSongSets.setVisible(true);
        lblSongQueue.setVisible(false);
        GetSongSets();
    } else {
        M.MiniListType = 0;
        lblSongSets.setVisible(false);
        lblSongQueue.setVisible(true);
        GetSongs();
    }
    setMousePointer(DefaultPointer);
}

// Page down; the last page stays. The selection goes to SetTop's row in both modes, so a page
// turn in the queue loads the song it selects.
void FrmMiniPlayer::cmdDown_Click() {
    if (M.MiniListType != 1) {
        QueueTop = std::int16_t(QueueTop + M.MiniListRows);
        if (QueueTop >= SongNameCount) QueueTop = std::int16_t(QueueTop - M.MiniListRows);
        ShowPage(QueueTop, SongNames, SongNameCount);
    } else {
        SetTop = std::int16_t(SetTop + M.MiniListRows);
        if (SetTop >= SetNameCount) SetTop = std::int16_t(SetTop - M.MiniListRows);
        ShowPage(SetTop, SetNames, SetNameCount);
    }
    tryStep([&] { lstSongSets.setListIndex(SetTop); });
}

void FrmMiniPlayer::cmdUp_Click() {
    if (M.MiniListType != 1) {
        QueueTop = std::int16_t(std::max<std::int32_t>(0, QueueTop - M.MiniListRows));
        ShowPage(QueueTop, SongNames, SongNameCount);
        tryStep([&] { lstSongSets.setListIndex(M.MiniListRows - 1); });
    } else {
        SetTop = std::int16_t(std::max<std::int32_t>(0, SetTop - M.MiniListRows));
        ShowPage(SetTop, SetNames, SetNameCount);
    }
}

void FrmMiniPlayer::lstSongSets_Click() {
    setMousePointer(Hourglass);
    if (M.MiniListType != 1) {
        tryStep([&] { F1->lstSongs.setListIndex(lstSongSets.ListIndex() + QueueTop); });
    } else {
        tryStep([&] { F1->lstSongSets.setListIndex(lstSongSets.ListIndex() + SetTop); });
        tryStep([&] { F1->GetSongSetsFromMini(); });
    }
    if (M.SongPlaying) Timer1.setEnabled(true);
    setMousePointer(DefaultPointer);
}

// In set mode Back and Forward walk the queue behind the page, not the page.
void FrmMiniPlayer::ButtonBack_Click() {
    if (M.SongPaused) ButtonPause_Click();
    if (M.MiniListType != 1) {
        if (lstSongSets.ListIndex() + QueueTop == 0) return;
        if (lstSongSets.ListIndex() == 0)
            cmdUp_Click();
        else
            tryStep([&] { lstSongSets.setListIndex(lstSongSets.ListIndex() - 1); });
    } else {
        if (F1->lstSongs.ListIndex() == 0) return;
        tryStep([&] { F1->lstSongs.setListIndex(F1->lstSongs.ListIndex() - 1); });
    }
    if (M.SongPlaying) Timer1.setEnabled(true);
}

void FrmMiniPlayer::ButtonForward_MouseDown() {
    if (M.SongPaused) ButtonPause_Click();
    tryStep([&] { ButtonForward.setPicture(ButtonForwardPress.picture()); });
}

void FrmMiniPlayer::ButtonForward_MouseUp() {
    tryStep([&] { ButtonForward.setPicture(ImageButton[3].picture()); });
    if (M.MiniListType != 1) {
        if (lstSongSets.ListIndex() + 1 + QueueTop >= SongNameCount) return;
        if (lstSongSets.ListIndex() == M.MiniListRows - 1)
            cmdDown_Click();
        else
            tryStep([&] { lstSongSets.setListIndex(lstSongSets.ListIndex() + 1); });
    } else {
        if (F1->lstSongs.ListIndex() == F1->lstSongs.ListCount() - 1) return;
        tryStep([&] { F1->lstSongs.setListIndex(F1->lstSongs.ListIndex() + 1); });
    }
    if (M.SongPlaying) Timer1.setEnabled(true);
}

void FrmMiniPlayer::NextSong() { ButtonForward_MouseUp(); }

}  // namespace sonarium
