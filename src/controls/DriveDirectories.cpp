#include "controls/DriveDirectories.h"

#include <QDir>

#include "controls/DriveListBox.h"

namespace sonarium {

DriveDirectories::DriveDirectories(Volumes& volumes, const QString& startDir) {
    const QString dir = QDir::cleanPath(startDir);
    shown(volumeRootOf(volumes.list(), dir), dir);
}

void DriveDirectories::shown(const QString& root, const QString& dir) {
    if (!root.isEmpty()) dirs_[root] = dir;
}

QString DriveDirectories::of(const QString& root) const {
    auto it = dirs_.find(root);
    return it != dirs_.end() ? it->second : root;
}

}  // namespace sonarium
