#pragma once
// The directory list: `Path` is the directory shown, its subdirectories are the rows.
//
// Path has no closing slash except at "/". Setting Path to a drive's text exactly as the drive
// list gives it (driveText) moves to that drive's current directory (DriveDirectories), which
// every folder list moves on as it shows a folder. The program's scan sets Path to the drive
// and relies on landing where the list was last on that drive.
//
// Any other text is a directory, "/" and mount points included, relative ones taken from
// Path, found without regard to case.
// A directory that doesn't exist throws RuntimeError PathNotFound, one on a volume that isn't
// ready throws DeviceUnavailable; either leaves Path and the rows as they were and raises no
// change. onChange is raised only when Path really changes.
//
// Rows are full paths of the visible (non-dot) subdirectories, sorted without regard to case.
// Directories the user cannot read are listed all the same. Only one level is ever read, so
// symlinks that loop cost nothing, and a directory unchanged since it was last read is not
// read again (DirectoryListing).
#include <QString>
#include <QStringList>
#include <functional>

#include "controls/DirectoryListing.h"
#include "controls/DriveDirectories.h"
#include "controls/RowList.h"
#include "controls/Volumes.h"

namespace sonarium {

class DirListBox : public RowList {
public:
    // Starts in `startDir`, the program's current directory.
    DirListBox(QString name, Volumes& volumes, DriveDirectories& drives, const QString& startDir);

    const QString& Path() const { return path_; }
    void setPath(const QString& path);

    // Row i from 0 is a subdirectory. From -1 down the rows are the directory itself and its
    // parents: List(-1) is Path, List(-2) its parent, and so on up to "/". Otherwise "".
    // The highlighted row (ListIndex): -1 is the directory itself. Highlighting does not move Path.
    QString List(int i) const override;

    // Reads the subdirectories of Path again; the highlight goes back to -1.
    void Refresh();

    std::function<void()> onChange;

private:
    QString absolute(const QString& path) const;
    void readRows();

    Volumes& volumes_;
    DriveDirectories& drives_;
    DirectoryListing listing_;
    QString path_;
};

}  // namespace sonarium
