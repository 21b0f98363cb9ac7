// The queue's two orders: random, and alphabetical through the hidden sorted list.
#include <random>

#include "controls/Errors.h"
#include "shell/Form1.h"
#include "shell/TextFields.h"

namespace sonarium {

void Form1::cmdShuffle_Click() {
    if (MenuItem* chosen = C.dialogs.popupMenu(mnuShuffle)) chosen->Click();
}

// Rejection sampling: draws until every row is taken, letting events run between draws. The
// draw is rounded half to even, so the first and last rows have half the others' chance at each
// try. CurrentSong, the punch sections and the running time stay as they were; no row is
// selected afterwards.
void Form1::Shuffle() {
    if (M.SongPlaying) {
        C.dialogs.msgBox(QStringLiteral("Cannot shuffle when playing"), MsgButtons::OK, MsgIcon::None,
                         QStringLiteral("Shuffle"));
        return;
    }
    if (lstSongs.ListCount() == 0) return;
    const auto ms = std::uint64_t(C.loop.wallClock().toMSecsSinceEpoch());
    std::seed_seq seed{std::uint32_t(ms), std::uint32_t(ms >> 32)};
    std::mt19937 random(seed);
    std::uniform_real_distribution<double> unit(0.0, 1.0);
    const int n = lstSongs.ListCount() - 1;
    std::vector<int> taken(std::size_t(n) + 1, -1);
    QStringList names, dirs;
    int count = 0;
    while (count <= n) {
        C.loop.doEvents();
        const int k = int(roundHalfEven(unit(random) * n));
        if (std::find(taken.begin(), taken.end(), k) != taken.end()) continue;
        taken[std::size_t(count)] = k;
        names << lstSongs.List(k);
        QString dir;
        tryStep([&] { dir = SongPathOf(k); });
        dirs << dir;
        ++count;
    }
    tryStep([&] { lstSongs.Clear(); });
    for (int i = 0; i <= n; ++i) {
        tryStep([&] { lstSongs.AddItem(names[i]); });
        tryStep([&] { SongPathOf(i) = dirs[i]; });
    }
}

// Sorts by row text through List1, which keeps itself sorted without regard to case. Rows of
// equal text both take the directory of the later one.
void Form1::mnuOrdered_Click() {
    if (lstSongs.ListCount() == 0) return;
    const int n = lstSongs.ListCount() - 1;
    tryStep([&] { List1.Clear(); });
    std::vector<QString> dirs;
    std::vector<int> map(std::size_t(n) + 1, -1);
    for (int i = 0; i <= n; ++i) {
        tryStep([&] { List1.AddItem(lstSongs.List(i)); });
        QString dir;
        tryStep([&] { dir = SongPathOf(i); });
        dirs.push_back(dir);
    }
    for (int i = 0; i <= n; ++i)
        for (int j = 0; j <= n; ++j)
            if (List1.List(j) == lstSongs.List(i)) map[std::size_t(j)] = i;
    tryStep([&] { lstSongs.Clear(); });
    for (int i = 0; i <= n; ++i) {
        tryStep([&] { lstSongs.AddItem(List1.List(i)); });
        tryStep([&] { SongPathOf(i) = dirs.at(std::size_t(map[std::size_t(i)])); });
    }
}

}  // namespace sonarium
