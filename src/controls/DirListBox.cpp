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

QString childPath(const QString& dir, const QString& name) {
    return dir.endsWith(u'/') ? dir + name : dir + u'/' + name;
}

}  // namespace

DirListBox::DirListBox(QString name, Volumes& volumes)
    : RowList(std::move(name)), volumes_(volumes), path_(QDir::cleanPath(QDir::currentPath())) {
    // The process's current directory is its drive's current directory, where choosing that
    // drive leads.
    setDriveDirectory(path_);
    readRows();
}

QString DirListBox::absolute(const QString& path) const {
    return QDir::cleanPath(path.startsWith(u'/') ? path : childPath(path_, path));
}

void DirListBox::setPath(const QString& path) {
    if (path.isEmpty()) pathNotFound();
    const std::vector<Volume> volumes = volumes_.list();
    const bool namesDrive =
        std::any_of(volumes.begin(), volumes.end(), [&](const Volume& v) { return v.root == path; });

    QString target;
    if (namesDrive) {
        if (!volumes_.ready(path)) deviceUnavailable();
        target = driveDirectory(path);
        // The drive's directory may have been removed since: the drive's root still stands.
        if (!QFileInfo(target).isDir()) target = path;
    } else {
        target = resolveFileName(absolute(path));
        const QString root = volumeRootOf(volumes, target);
        if (!root.isEmpty() && !volumes_.ready(root)) deviceUnavailable();
    }
    if (!QFileInfo(target).isDir()) pathNotFound();

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
    const QStringList names = QDir(path_).entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Unsorted);
    rows_.clear();
    for (const QString& n : names) rows_ << childPath(path_, n);
    std::sort(rows_.begin(), rows_.end(), lessIgnoringCase);
}

void DirListBox::setDriveDirectory(const QString& dir) {
    const QString abs = absolute(dir);
    const QString root = volumeRootOf(volumes_.list(), abs);
    if (!root.isEmpty()) driveDirs_[root] = abs;
}

QString DirListBox::driveDirectory(const QString& root) const {
    auto it = driveDirs_.find(root);
    return it != driveDirs_.end() ? it->second : root;
}

}  // namespace sonarium
