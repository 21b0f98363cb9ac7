#include "controls/CurrentDirectory.h"

#include <QDir>

namespace sonarium {

CurrentDirectory::CurrentDirectory(const QString& start)
    : path_(QDir::cleanPath(start.isEmpty() ? QDir::currentPath() : start)) {}

void CurrentDirectory::change(const QString& dir) { path_ = filePath(dir); }

QString CurrentDirectory::filePath(const QString& name) const {
    return QDir::cleanPath(QDir(path_).filePath(name));
}

}  // namespace sonarium
