#include "engine/id3/Id3v1Editor.h"

namespace sonarium {

void Id3v1Editor::open(const QString& path) {
    path_ = path;
    tag_ = readId3v1(path);
    changes_ = {};
}

void Id3v1Editor::open(const QString& path, const QByteArray& lastBytes) {
    path_ = path;
    tag_ = readId3v1(lastBytes);
    changes_ = {};
}

bool Id3v1Editor::writeTag() { return !path_.isEmpty() && writeId3v1(path_, changes_); }

}  // namespace sonarium
