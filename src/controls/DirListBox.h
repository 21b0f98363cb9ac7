#pragma once
// The directory list: `Path` is the directory shown, its subdirectories are the rows.
//
// Path has no closing slash except at "/". Setting Path to a drive's text (a volume's mount
// point exactly as the drive list gives it) moves to that drive's current directory, which
// each volume keeps for itself: its mount point until setDriveDirectory says otherwise. It does
// not follow Path: the program's scan sets Path to a drive and relies on landing in the drive's
// own current directory, not wherever the list was last on that drive.
//
// Any other text is a directory, relative ones taken from Path, found without regard to case.
// A directory that doesn't exist throws RuntimeError PathNotFound, one on a volume that isn't
// ready throws DeviceUnavailable; either leaves Path and the rows as they were and raises no
// change. onChange is raised only when Path really changes.
//
// Rows are full paths of the visible (non-dot) subdirectories, sorted without regard to case.
// Directories the user cannot read are listed all the same. Only one level is ever read, so
// symlinks that loop cost nothing.
#include <QString>
#include <QStringList>
#include <functional>
#include <map>

#include "controls/RowList.h"
#include "controls/Volumes.h"

namespace sonarium {

class DirListBox : public RowList {
public:
    // Starts in the process's current directory.
    DirListBox(QString name, Volumes& volumes);

    const QString& Path() const { return path_; }
    void setPath(const QString& path);

    // Row i from 0 is a subdirectory. From -1 down the rows are the directory itself and its
    // parents: List(-1) is Path, List(-2) its parent, and so on up to "/". Otherwise "".
    // The highlighted row (ListIndex): -1 is the directory itself. Highlighting does not move Path.
    QString List(int i) const override;

    // Reads the subdirectories of Path again; the highlight goes back to -1.
    void Refresh();

    // The current directory of the drive that holds `dir`, which setting Path to that drive's
    // text then moves to. A directory on no known volume is ignored.
    void setDriveDirectory(const QString& dir);
    // The current directory of the drive whose text is `root`: its mount point unless set.
    QString driveDirectory(const QString& root) const;

    std::function<void()> onChange;

private:
    QString absolute(const QString& path) const;
    void readRows();

    Volumes& volumes_;
    QString path_;
    std::map<QString, QString> driveDirs_;  // volume root -> its current directory
};

}  // namespace sonarium
