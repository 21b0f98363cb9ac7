// The file browser's directory change: the directory's songs become the title pane, and its
// picture and info pages come up.
#include "controls/Errors.h"
#include "shell/Form1.h"
#include "skins/FrmMiniPlayer.h"

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
    tryStep([&] { if (!CurrentDir.endsWith(u'/')) CurrentDir += u'/'; });
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
    for (const QString& kind : kinds) tryStep([&] { frmMiniPlayer.Photo.setPicture(C.pictures.load(base + kind)); });
    SizePhoto();
    setMousePointer(DefaultPointer);
}

}  // namespace sonarium
