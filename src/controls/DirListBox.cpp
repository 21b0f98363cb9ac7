#include "controls/DirListBox.h"

#include <QDir>
#include <QFileInfo>
#include <algorithm>

#include "controls/DriveListBox.h"
#include "controls/Errors.h"
#include "controls/FileNames.h"

namespace sonarium {
namespace {

[[noreturn]] void pathNotFound() {
    throw RuntimeError(RuntimeError::PathNotFound, QStringLiteral("Path not found"));
}

[[noreturn]] void deviceUnavailable() {
    throw RuntimeError(RuntimeError::DeviceUnavailable, QStringLiteral("Device unavailable"));
}

}  // namespace

DirListBox::DirListBox(QString name, Volumes& volumes, DriveDirectories& drives, const QString& startDir)
    : RowList(std::move(name)), volumes_(volumes), drives_(drives), path_(QDir::cleanPath(startDir)) {
    readRows();
}

QString DirListBox::absolute(const QString& path) const {
    return QDir::cleanPath(path.startsWith(u'/') ? path : childPath(path_, path));
}

void DirListBox::setPath(const QString& path) {
    if (path.isEmpty()) pathNotFound();
    const std::vector<Volume> volumes = volumes_.list();
    const auto drive =
        std::find_if(volumes.begin(), volumes.end(), [&](const Volume& v) { return driveText(v) == path; });

    QString target;
    if (drive != volumes.end()) {
        if (!volumes_.ready(drive->root)) deviceUnavailable();
        target = drives_.of(drive->root);
        // The drive's directory may have been removed since: the drive's root still stands.
        if (!QFileInfo(target).isDir()) target = drive->root;
    } else {
        target = resolveFileName(absolute(path));
        const QString root = volumeRootOf(volumes, target);
        if (!root.isEmpty() && !volumes_.ready(root)) deviceUnavailable();
    }
    if (!QFileInfo(target).isDir()) pathNotFound();
    drives_.shown(volumeRootOf(volumes, target), target);

    if (target == path_) {
        // The same directory: follow the disk, but nothing changed for the handlers.
        readRows();
        if (index_ >= ListCount()) index_ = -1;
        notify();
        return;
    }
    path_ = target;
    readRows();
    index_ = -1;
    notify();
    if (onChange) onChange();
}

QString DirListBox::List(int i) const {
    if (i >= 0) return i < ListCount() ? rows_[i] : QString();
    QString dir = path_;
    for (int up = -1 - i; up > 0; --up) {
        if (dir == u"/") return QString();
        dir = QFileInfo(dir).path();
    }
    return dir;
}

void DirListBox::Refresh() {
    readRows();
    index_ = -1;
    notify();
}

void DirListBox::readRows() {
    // One level only, and the type comes from the directory entry or one stat of it, so a
    // symlink that loops is at worst one entry that is not a directory.
    // A listing kept unchanged keeps its rows too: a walk comes back to a parent of thousands
    // of folders once per folder.
    rows_ = listing_.read(path_).dirs;  // shared, not copied
}

}  // namespace sonarium
