#pragma once
// The file list: the bare names of the files of `Path` that match `Pattern`, in the order the
// file system delivers them (the program depends on that order, so it is never sorted).
// Patterns match names without regard to case; several are separated by ";".
#include <QString>
#include <QStringList>

#include "controls/Control.h"

namespace sonarium {

class FileListBox : public Control {
public:
    // Starts in the process's current directory, with the pattern "*.MP3".
    explicit FileListBox(QString name);

    const QString& Path() const { return path_; }
    // A directory, relative ones taken from Path, found without regard to case. The files are
    // read again even when the path is the same. A directory that doesn't exist throws
    // RuntimeError PathNotFound and changes nothing.
    void setPath(const QString& path);

    const QString& Pattern() const { return pattern_; }
    void setPattern(const QString& pattern);

    int ListCount() const { return int(rows_.size()); }
    // The name of row i; "" outside the list.
    QString List(int i) const { return (i >= 0 && i < rows_.size()) ? rows_[i] : QString(); }
    // The selected row, -1 for none; a new Path or Pattern clears it.
    int ListIndex() const { return index_; }
    void setListIndex(int i);
    // The selected name, or "" when none is selected.
    QString FileName() const { return List(index_); }

    // Reads the files of Path again.
    void Refresh();

private:
    void readRows();

    QString path_;
    QString pattern_ = QStringLiteral("*.MP3");
    QStringList rows_;
    int index_ = -1;
};

}  // namespace sonarium
