// The command line: one song name, taken whole, queued and played.
#include "controls/Errors.h"
#include "shell/Form1.h"

namespace sonarium {

// The command line is one string: no splitting and no removal of quotes, so a name that ends
// with a quote mark is not taken for a song.
void Form1::CheckForSong() {
    const QString cmd = C.commandLine;
    if (cmd.isEmpty()) return;
    if (cmd.right(3).toUpper() != QLatin1String("MP3")) return;

    // The last "/" splits directory from name; with none the name starts at the first
    // character and the directory is empty (the song opens relative to the current directory).
    const qsizetype i = cmd.lastIndexOf(u'/') + 1;  // position counted from 1, 0 if none
    const QString title = cmd.mid(i, cmd.size() - i - 4);
    const QString dir = cmd.left(i);

    tryStep([&] { lstSongs.AddItem(title); });
    tryStep([&] {
        const int row = lstSongs.NewIndex();
        if (row < 0 || row >= SongPathSize)
            throw RuntimeError(RuntimeError::SubscriptOutOfRange, QStringLiteral("Subscript out of range"));
        M.SongPath[std::size_t(row)] = dir;
    });
    tryStep([&] { lstSongs.setListIndex(lstSongs.NewIndex()); });
    tryStep([&] { BtnPlay_MouseUp(0, 0, 0, 0); });
}

}  // namespace sonarium
