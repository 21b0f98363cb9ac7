#pragma once
// The names a song's companion files are formed from. `path` is a row's directory with its
// closing slash, `title` the row text.
#include <QString>

namespace sonarium {

// path + title: the song's file name without extension.
inline QString songBase(const QString& path, const QString& title) { return path + title; }

// The last directory of `path`: what lies between the slash before the closing one and the
// closing one; with no slash before it, all of `path` but its last character (so the root
// "/" gives "").
QString folderName(const QString& path);

// path + folderName(path): companion files of a whole directory, such as an album cover.
inline QString folderBase(const QString& path) { return path + folderName(path); }

}  // namespace sonarium
