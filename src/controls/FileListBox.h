#pragma once
// The file list: the bare names of the files of `Path` that match `Pattern`, alphabetically
// without regard to case, the order the program's lists of files rely on.
// Patterns match names without regard to case; several are separated by ";".
#include <QString>
#include <QStringList>

#include "controls/DirectoryListing.h"
#include "controls/RowList.h"

namespace sonarium {

class FileListBox : public RowList {
public:
    // Starts in `startDir`, the program's current directory, with the pattern "*.MP3".
    FileListBox(QString name, const QString& startDir);

    const QString& Path() const { return path_; }
    // A directory, relative ones taken from Path, found without regard to case. The files are
    // read again even when the path is the same. A directory that doesn't exist throws
    // RuntimeError PathNotFound and changes nothing.
    void setPath(const QString& path);

    const QString& Pattern() const { return pattern_; }
    void setPattern(const QString& pattern);

    // Rows are bare file names; a new Path or Pattern clears the selection.
    // The selected name, or "" when none is selected.
    QString FileName() const { return List(index_); }

    // Reads the files of Path again.
    void Refresh();

private:
    void readRows();

    QString path_;
    QString pattern_ = QStringLiteral("*.MP3");
    DirectoryListing listing_;
    std::uint64_t rowsRead_ = 0;  // the listing and pattern the rows were made from
    QString rowsPattern_;
};

}  // namespace sonarium
