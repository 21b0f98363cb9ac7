// Writing the detail boxes back into the song's tag, and the limits on typing into them.
#include "controls/Errors.h"
#include "shell/Form1.h"
#include "shell/TextFields.h"

namespace sonarium {

// An empty box is left out, so this command cannot blank a field. Each setter is its own
// statement: a year that isn't a number loses only the year.
void Form1::UpdateTag() {
    if (M.SongPlaying) {
        C.dialogs.msgBox(QStringLiteral("Can't update whilst track is playing"), MsgButtons::OK,
                         MsgIcon::Information, QStringLiteral("Update"));
        return;
    }
    tryStep([&] { C.mp3.Close(); });
    tryStep([&] {
        C.mp3.Open(SongPathOf(M.CurrentSong) + lstSongs.List(M.CurrentSong) + QStringLiteral(".MP3"),
                   QString());
    });
    if (!txtTitle.Text().isEmpty()) tryStep([&] { C.mp3.SetTagTitle(txtTitle.Text()); });
    if (!txtYear.Text().isEmpty()) tryStep([&] { C.mp3.SetTagYear(yearNumber(txtYear.Text())); });
    if (!cboGenre.Text().isEmpty()) tryStep([&] { C.mp3.SetTagGenre(std::int16_t(cboGenre.ListIndex())); });
    if (!txtAlbum.Text().isEmpty()) tryStep([&] { C.mp3.SetTagAlbum(txtAlbum.Text()); });
    if (!txtArtist.Text().isEmpty()) tryStep([&] { C.mp3.SetTagArtist(txtArtist.Text()); });
    if (!txtComment.Text().isEmpty()) tryStep([&] { C.mp3.SetTagComment(txtComment.Text()); });
    tryStep([&] { C.mp3.Close(); });
    tryStep([&] { C.mp3.WriteTag(); });
    tryStep([&] { GetSong(M.CurrentSong); });
}

// A full box drops printable keys; control keys (13 and below) always pass. The selection isn't
// looked at, and pasting isn't limited.
void Form1::LimitTyping(const TextBox& box, int limit, int& keyAscii) {
    if (box.Text().size() >= limit && keyAscii > 13) keyAscii = 0;
}

// The year as the tag's 16-bit number: the text must be a number as a whole.
std::int16_t yearNumber(const QString& text) {
    bool ok = false;
    const double v = text.trimmed().toDouble(&ok);
    if (!ok) throw RuntimeError(RuntimeError::TypeMismatch, QStringLiteral("Type mismatch"));
    return toInt16(v);
}

}  // namespace sonarium
