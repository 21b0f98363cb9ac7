#pragma once
// The program's current directory: where the program's own files are found by a bare name
// (Config.dat, Debug.dat, the song sets), where the folder lists start, and what the file
// dialogs' commands set back. It starts as the directory the program was started in. The
// program changes only this object, never the process's own directory, so no other part of
// the process (a dialog, a library, a test running beside it) depends on it or disturbs it.
// An outside program that must run in a folder is started there by its own working directory.
#include <QString>

namespace sonarium {

class CurrentDirectory {
public:
    // `start` empty means the process's directory as it is now.
    explicit CurrentDirectory(const QString& start);

    const QString& path() const { return path_; }
    // Makes `dir` current; relative names are taken from the current directory.
    void change(const QString& dir);
    // `name` as the current directory resolves it: relative names under it, absolute ones as given.
    QString filePath(const QString& name) const;

private:
    QString path_;
};

}  // namespace sonarium
