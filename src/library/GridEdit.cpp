// Editing the library in the grid: the typing rules, the tag of the file following a cell, and
// the genre list that stands in for typing in the Genre column.
#include "controls/Errors.h"
#include "shell/Form1.h"

namespace sonarium {

namespace {
enum ColumnNumber {
    PathColumn = 0,
    TitleColumn = 2,
    ArtistColumn = 3,
    AlbumColumn = 4,
    CommentColumn = 5,
    GenreColumn = 6,
    YearColumn = 8,
    InfoColumn = 15
};
constexpr int Backspace = 8;

QString keyOf(Recordset& records) { return records.Fields(QStringLiteral("Path\\File")).Value().toString(); }
}  // namespace

// Only while the queue has a selected row: without one, the song in the player is editable.
bool Form1::EditLocked() {
    bool locked = false;
    tryStep([&] {
        locked = !lstSongs.Text().isEmpty() && keyOf(C.data.recordset()).toUpper() == M.SongFile.toUpper();
    });
    if (locked)
        C.dialogs.msgBox(QStringLiteral("Cannot edit song selected in song queue"), MsgButtons::OK,
                         MsgIcon::Information, QStringLiteral("Edit"));
    return locked;
}

// A full cell takes no more characters (Info, a memo, has no width); Path and Genre take none.
void Form1::DBGrid1_KeyPress(int& keyAscii) {
    if (EditLocked()) {
        keyAscii = 0;
        return;
    }
    tryStep([&] {
        const int col = DBGrid1.Col();
        const int max = C.data.recordset().Fields(DBGrid1.Column(col).field).Size();
        if (DBGrid1.Text().size() >= max && col != InfoColumn && keyAscii != Backspace) keyAscii = 0;
    });
    tryStep([&] {
        if (DBGrid1.Col() == GenreColumn || DBGrid1.Col() == PathColumn) keyAscii = 0;
    });
}

// The tag columns write through the second player. An empty cell leaves the tag alone. A step
// that fails shows its text in the window's caption and the next one runs.
void Form1::DBGrid1_AfterColUpdate(int colIndex) {
    const QString text = DBGrid1.ColumnText(colIndex);
    if (text.isEmpty()) return;
    Mp3Player& mp32 = C.mp32;
    std::function<void()> setter;
    switch (colIndex) {
    case TitleColumn: setter = [&] { mp32.SetTagTitle(text); }; break;
    case ArtistColumn: setter = [&] { mp32.SetTagArtist(text); }; break;
    case AlbumColumn: setter = [&] { mp32.SetTagAlbum(text); }; break;
    case CommentColumn: setter = [&] { mp32.SetTagComment(text); }; break;
    case YearColumn: setter = [&] { mp32.SetTagYear(yearNumber(text)); }; break;
    default: return;
    }
    auto step = [this](const std::function<void()>& statement) {
        try {
            statement();
        } catch (const RuntimeError& e) {
            setCaption(e.text());
        } catch (const std::exception& e) {
            setCaption(QString::fromLocal8Bit(e.what()));
        }
    };
    step([&] { mp32.Close(); });
    step([&] { mp32.Open(keyOf(C.data.recordset()), QString()); });
    step(setter);
    step([&] { mp32.Close(); });
    step([&] { mp32.WriteTag(); });
}

// The genre list opens upward from the current row, over the grid; a second press closes it.
void Form1::DBGrid1_ButtonClick(int colIndex) {
    if (EditLocked()) return;
    if (ListGen.Visible()) {
        ListGen.setVisible(false);
        return;
    }
    tryStep([&] { ListGen.setWidth(DBGrid1.Column(colIndex).width); });
    tryStep([&] { ListGen.setLeft(DBGrid1.ColumnLeft(colIndex) + DBGrid1.Left()); });
    tryStep([&] { ListGen.setTop(DBGrid1.Top() + DBGrid1.RowTop(DBGrid1.Row()) - ListGen.Height()); });
    tryStep([&] { ListGen.setVisible(true); });
    tryStep([&] { ListGen.SetFocus(); });
}

// The genre goes into the cell as text and into the tag as its number, through the player that
// plays songs.
void Form1::ListGen_Click() {
    tryStep([&] { DBGrid1.setColumnText(DBGrid1.ColumnIndex(QStringLiteral("Genre")), ListGen.Text()); });
    tryStep([&] { C.mp3.Close(); });
    tryStep([&] { C.mp3.Open(keyOf(C.data.recordset()), QString()); });
    tryStep([&] { C.mp3.SetTagGenre(std::int16_t(ListGen.ListIndex())); });
    tryStep([&] { C.mp3.Close(); });
    tryStep([&] { C.mp3.WriteTag(); });
    tryStep([&] { ListGen.setVisible(false); });
}

}  // namespace sonarium
