#include "controls/FileListBox.h"

#include <QDir>
#include <QFileInfo>

#include "controls/Errors.h"
#include "controls/FileNames.h"

namespace sonarium {

FileListBox::FileListBox(QString name, const QString& startDir)
    : RowList(std::move(name)), path_(QDir::cleanPath(startDir)) {
    readRows();
}

void FileListBox::setPath(const QString& path) {
    const QString abs = QDir::cleanPath(path.startsWith(u'/') ? path : path_ + u'/' + path);
    const QString target = resolveFileName(abs);
    if (path.isEmpty() || !QFileInfo(target).isDir())
        throw RuntimeError(RuntimeError::PathNotFound, QStringLiteral("Path not found"));
    path_ = target;
    Refresh();
}

void FileListBox::setPattern(const QString& pattern) {
    pattern_ = pattern;
    Refresh();
}

void FileListBox::Refresh() {
    readRows();
    index_ = -1;
    notify();
}

void FileListBox::readRows() {
    const DirectoryListing::Entries& entries = listing_.read(path_);
    if (entries.read == rowsRead_ && pattern_ == rowsPattern_) return;  // nothing new to match
    rowsRead_ = entries.read;
    rowsPattern_ = pattern_;
    rows_ = matchNames(entries.files, pattern_);
}

}  // namespace sonarium
