// Song sets: a saved queue in a .EST file, two lines a row (directory, then title), offered by
// name in the program's directory.

#include "controls/Errors.h"
#include "controls/FileNames.h"
#include "shell/Form1.h"
#include "shell/TextFields.h"

namespace sonarium {

namespace {
// The extension is the only test of a set's kind; "Best" counts as having it.
bool hasSetExtension(const QString& name) { return name.right(3).toUpper() == QLatin1String("EST"); }

FileDialogRequest setDialog(const QString& appDir) {
    FileDialogRequest request;
    request.filter = QStringLiteral("Song Set (*.EST)|*.EST");
    request.initDir = appDir;
    return request;
}
}  // namespace

void Form1::mnuSaveSongSet_Click() {
    if (lstSongs.ListCount() == 0) {
        C.dialogs.msgBox(QStringLiteral("Song Queue Empty!"), MsgButtons::OK, MsgIcon::Critical,
                         QStringLiteral("Save"));
        return;
    }
    QString name = C.dialogs.saveFile(setDialog(M.AppDir));
    currentDirectory.change(M.AppDir);
    if (name.isEmpty()) return;
    name = currentDirectory.filePath(name);
    // The overwrite question is asked for the name as typed; with ".EST" appended below, an
    // existing set of that name is replaced unasked.
    if (fileExists(name) &&
        C.dialogs.msgBox(QStringLiteral("File already exists, overwrite?"), MsgButtons::YesNo,
                         MsgIcon::Exclamation, QStringLiteral("Save")) == MsgResult::No)
        return;
    if (!hasSetExtension(name)) name += QStringLiteral(".EST");
    TextFieldWriter out;
    for (int i = 0; i < lstSongs.ListCount(); ++i) {
        tryStep([&] { out.writeString(SongPathOf(i)); });
        out.writeString(lstSongs.List(i));
    }
    tryStep([&] { out.save(resolveFileName(name)); });
}

void Form1::mnuLoadSongSet_Click() {
    const QString name = C.dialogs.openFile(setDialog(M.AppDir));
    currentDirectory.change(M.AppDir);
    if (name.isEmpty()) return;
    if (!hasSetExtension(name)) {
        C.dialogs.msgBox(QStringLiteral("This is not a song set file"), MsgButtons::OK, MsgIcon::Critical,
                         QStringLiteral("Load"));
        return;
    }
    tryStep([&] {
        TextFieldReader in = TextFieldReader::open(resolveFileName(currentDirectory.filePath(name)));
        ReadQueue(in);
    });
    tryStep([&] { GetTotTime(); });
}

void Form1::mnuSongSets_Click() {
    tryStep([&] { PanelPhoto.setVisible(false); });
    tryStep([&] { PanelSongInfo.setVisible(false); });
    tryStep([&] { lstSongSets.setVisible(true); });
    tryStep([&] { lblDoubleClick.setVisible(true); });
    tryStep([&] { lstSongSets.Clear(); });
    for (const QString& name : SongSetNames()) tryStep([&] { lstSongSets.AddItem(name); });
}

QStringList Form1::SongSetNames() const {
    QStringList names;
    for (const QString& file : matchFiles(currentDirectory.path(), QStringLiteral("*.EST")))
        names << file.chopped(4);
    return names;
}

// Unlike the menu's load, this selects the first row, whose click loads the first song.
void Form1::lstSongSets_DblClick() {
    tryStep([&] {
        TextFieldReader in = TextFieldReader::open(
            resolveFileName(currentDirectory.filePath(lstSongSets.Text() + QStringLiteral(".EST"))));
        ReadQueue(in);
    });
    tryStep([&] { lstSongs.setListIndex(0); });
}

void Form1::GetSongSetsFromMini() { lstSongSets_DblClick(); }

// The queue as Mixer.dat and song sets store it: directory and title by turns, read by the
// field rule. A title not read keeps the one before, so an odd value count repeats it. Past the
// last directory slot the directory isn't read at all, and the value goes to the title instead.
void Form1::ReadQueue(TextFieldReader& in) {
    tryStep([&] { lstSongs.Clear(); });
    QString title;
    for (int i = 0; !in.atEnd(); ++i) {
        if (!in.atEnd())
            tryStep([&] {
                QString& slot = SongPathOf(i);
                slot = in.readString();
            });
        if (!in.atEnd()) tryStep([&] { title = in.readString(); });
        tryStep([&] { lstSongs.AddItem(title); });
    }
}

}  // namespace sonarium
