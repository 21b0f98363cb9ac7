// The file browser's directory change: the directory's songs become the title pane, and its
// picture and info pages come up.
#include <QDir>

#include "controls/Errors.h"
#include "shell/Form1.h"
#include "shell/FrmMiniPlayer.h"

namespace sonarium {

namespace {
// The directory's own name, by which its picture is found. Just below a volume's root the name
// comes out one letter short ("/media/usb/Music" gives "Musi"), as the picture files expect; at
// a root it is empty.
QString lastDirName(const QString& dir, const QString& volumeRoot) {
    QString path = dir;
    if (path.size() > 1 && path.endsWith(u'/')) path.chop(1);
    if (path == volumeRoot || path.isEmpty() || path == QLatin1String("/")) return QString();
    const qsizetype slash = path.lastIndexOf(u'/');
    QString name = path.mid(slash + 1);
    QString parent = path.left(std::max<qsizetype>(slash, 1));
    if (parent == volumeRoot) name.chop(1);
    return name;
}
}  // namespace

void Form1::Dir1_Change() {
    tryStep([&] { Fillist.setPath(Dir1.Path()); });
    if (SearchRunning) return;
    tryStep([&] { CurrentDir = Dir1.Path().trimmed(); });
    tryStep([&] { LastDir = lastDirName(CurrentDir, Drive1.DriveOf(CurrentDir)); });
    tryStep([&] {
        if (!CurrentDir.endsWith(u'/')) CurrentDir += u'/';
    });
    if (!mnuEdit.Checked()) {
        tryStep([&] { ClearRTF(); });
        tryStep([&] { GetRTF(); });
    }
    if (mnuCDtoMP3.Checked()) return;
    tryStep([&] { GetTitles(); });
    tryStep([&] {
        Photo.setVisible(false);
        Photo.setStretch(false);
        Photo.setPicture(imgMpeg3.picture());
    });
    const QString base = CurrentDir + LastDir;
    const QStringList kinds = {QStringLiteral(".GIF"), QStringLiteral(".BMP"), QStringLiteral(".JPG")};
    for (const QString& kind : kinds) tryStep([&] { Photo.setPicture(C.pictures.load(base + kind)); });
    tryStep([&] { frmMiniPlayer.Photo.setPicture(Picture()); });
    for (const QString& kind : kinds)
        tryStep([&] { frmMiniPlayer.Photo.setPicture(C.pictures.load(base + kind)); });
    SizePhoto();
    setMousePointer(DefaultPointer);
}

// A scan moves the first level itself. Otherwise the directory list goes to the drive's current
// directory; a drive that isn't ready is asked about until the user gives up, and then the drive
// list goes back to the drive in use.
void Form1::Drive1_Change() {
    if (SearchRunning) {
        tryStep([&] { Dir1.setPath(Drive1.Drive()); });
        return;
    }
    const QString oldPath = Dir1.Path();
    setMousePointer(Hourglass);
    bool retry;
    do {
        retry = false;
        try {
            Dir1.setPath(Drive1.Drive());
        } catch (const RuntimeError&) {
            tryStep([&] { Dir1.setPath(oldPath); });
            if (C.dialogs.msgBox(QStringLiteral("Not ready reading Drive ") + Drive1.Drive().toUpper() +
                                     QStringLiteral(" Retry?"),
                                 MsgButtons::YesNo, MsgIcon::Exclamation,
                                 QStringLiteral("Change Drive")) == MsgResult::Yes) {
                retry = true;
            } else {
                tryStep([&] { Drive1.setDrive(Dir1.Path()); });
                setMousePointer(DefaultPointer);
            }
        }
    } while (retry);
}

// During a scan, a directory the user highlights takes effect when the list loses the focus.
void Form1::Dir1_LostFocus() {
    if (SearchRunning) tryStep([&] { Dir1.setPath(Dir1.List(Dir1.ListIndex())); });
}

// A right click offers a new directory below the one shown.
void Form1::Dir1_MouseDown(int button, int, double, double) {
    if (button != RightButton) return;
    try {
        const QString answer =
            C.dialogs.inputBox(QStringLiteral("Enter name of new directory"),
                               QStringLiteral("Add Directory to ") + Dir1.Path(), QString());
        if (answer.isEmpty()) return;
        const QString created =
            Dir1.Path() == QLatin1String("/") ? Dir1.Path() + answer : Dir1.Path() + u'/' + answer;
        if (C.dialogs.msgBox(QStringLiteral("Create directory - ") + created, MsgButtons::OKCancel,
                             MsgIcon::None, QStringLiteral("New Directory")) != MsgResult::OK)
            return;
        // One new directory, named by the user: a slash would make it a path elsewhere.
        if (answer.contains(u'/') || !QDir().mkdir(created))
            throw RuntimeError(RuntimeError::PathFileAccess, QStringLiteral("Path/File access error"));
        Dir1.setPath(created);
    } catch (const RuntimeError&) {
        C.dialogs.msgBox(QStringLiteral("Cannot create directory - Path/File access error"), MsgButtons::OK,
                         MsgIcon::Exclamation, QStringLiteral("Create directory"));
    }
}

}  // namespace sonarium
