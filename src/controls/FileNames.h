#pragma once
// File names as the program sees them: case-insensitive, as on the system it was made for.
// A name the program gives is looked up in its directory without regard to case when the exact
// spelling does not exist ("Song.mp3" answers for "Song.MP3"); a file that does not exist yet
// keeps the spelling the program gives it.
#include <QString>
#include <QStringList>

namespace sonarium {

// The existing entry that `path` names, found case-insensitively component by component.
// The exact spelling, when it exists, is returned untouched after a single lstat. Where a
// component matches nothing the rest keeps the given spelling (resolved directories before it
// are still used), so a new file lands in the existing directory under the given name.
QString resolveFileName(const QString& path);

// True when `path`, resolved as above, is an existing entry that is not a directory.
bool fileExists(const QString& path);

// True when `path`, resolved as above, is an existing directory (following symlinks).
bool dirExists(const QString& path);

// One wildcard pattern against one name, without regard to case: `*` any run of characters,
// `?` exactly one. "*.*" matches every name, with or without a dot.
bool wildcardMatch(const QString& pattern, const QString& name);

// The bare names of the visible (non-dot) regular files of `dir` that match `patterns`
// (several separated by ";"; empty means all), alphabetically without regard to case: the
// program's lists of titles, sets and pages rely on that order, which Linux file systems do
// not give by themselves. A directory that cannot be read gives an
// empty list.
QStringList matchFiles(const QString& dir, const QString& patterns);
// The names of `names` that match `patterns`, in that order.
QStringList matchNames(const QStringList& names, const QString& patterns);

// The order of names in file and directory lists: alphabetical without regard to case, names
// that differ only in case in their exact order.
bool lessIgnoringCase(const QString& a, const QString& b);

// `name` inside directory `dir`: one slash between them, also after the root "/".
inline QString childPath(const QString& dir, const QString& name) {
    return dir.endsWith(u'/') ? dir + name : dir + u'/' + name;
}

}  // namespace sonarium
