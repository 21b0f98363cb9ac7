#pragma once
// Names of the program's own files, all found through AppDir.
#include <QString>

namespace sonarium {

// dir + "/" + name, without doubling the slash of a root directory.
inline QString joinPath(const QString& dir, const QString& name) {
    if (dir.endsWith(u'/')) return dir + name;
    return dir + u'/' + name;
}

}  // namespace sonarium
