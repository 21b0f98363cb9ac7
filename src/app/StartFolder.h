#pragma once
// Where the program keeps its own files, and the song it was given, whatever folder it was
// started from: a desktop menu, a file manager or a terminal. Its settings, trace and library
// live in its start directory, so the program makes that directory its own before it starts.
#include <QString>
#include <QStringList>

namespace sonarium {

// The folder the program starts in: `sonariumHome` (the SONARIUM_HOME variable) if set,
// relative to `launchDir`; else "Sonarium" in the user's home folder.
QString startFolderFor(const QString& sonariumHome, const QString& userHome, const QString& launchDir);

// Makes `folder` if it is missing and makes it the process's current directory. Returns an
// empty string on success, else what went wrong, for the user.
QString enterStartFolder(const QString& folder);

// The command line as the program takes it: the arguments after the program's name, joined
// by single blanks. A relative name is made absolute against `launchDir`, the folder the
// program was launched from, since the program runs in its own folder.
QString commandLineOf(const QStringList& arguments, const QString& launchDir);

// A file the program ships (the help page, the skins), found from the program's own place:
// <prefix>/bin/sonarium finds <prefix>/share/sonarium/<name>; the build tree is laid out alike.
QString sharedFile(const QString& name);

}  // namespace sonarium
