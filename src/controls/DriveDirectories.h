#pragma once
// Each drive's current directory, where setting a folder list to the drive's text leads: the
// last folder a folder list showed on that drive. At first it is the start folder for the drive
// that holds it and the mount point for the others. One object serves every folder list of
// the program, so a folder chosen in a dialog is where the main window's list finds the drive.
#include <QString>
#include <map>

#include "controls/Volumes.h"

namespace sonarium {

class DriveDirectories {
public:
    DriveDirectories(Volumes& volumes, const QString& startDir);

    // A folder list shows `dir` (absolute and clean) on the volume whose root is `root`: it
    // becomes that drive's current directory. An empty root (no known volume) is ignored.
    void shown(const QString& root, const QString& dir);
    // The current directory of the drive whose root is `root`.
    QString of(const QString& root) const;

private:
    std::map<QString, QString> dirs_;  // volume root -> its current directory
};

}  // namespace sonarium
