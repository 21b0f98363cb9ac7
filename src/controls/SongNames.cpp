#include "controls/SongNames.h"

namespace sonarium {

QString folderName(const QString& path) {
    if (path.isEmpty()) return {};
    const qsizetype before = path.size() >= 2 ? path.lastIndexOf(u'/', path.size() - 2) : -1;
    if (before < 0) return path.left(path.size() - 1);
    return path.mid(before + 1, path.size() - 2 - before);
}

}  // namespace sonarium
