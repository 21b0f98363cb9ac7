#include "controls/DriveListBox.h"

#include <QDir>

#include "controls/Errors.h"

namespace sonarium {

QString volumeRootOf(const std::vector<Volume>& volumes, const QString& path) {
    QString best;
    for (const Volume& v : volumes) {
        const QString& root = v.root;
        if (root.isEmpty() || !path.startsWith(root)) continue;
        // A prefix counts only up to a path boundary: the end, a slash after it, or a root
        // that ends in its own slash ("/").
        const bool boundary = path.size() == root.size() || root.endsWith(u'/') || path[root.size()] == u'/';
        if (boundary && root.size() > best.size()) best = root;
    }
    return best;
}

DriveListBox::DriveListBox(QString name, Volumes& volumes, const QString& startDir)
    : Control(std::move(name)), source_(volumes) {
    volumes_ = source_.list();
    // The drive in use is the one of the current directory.
    drive_ = volumeRootOf(volumes_, QDir::cleanPath(startDir));
    if (drive_.isEmpty() && !volumes_.empty()) drive_ = volumes_.front().root;
    index_ = rowOf(drive_);
    text_ = List(index_);
}

QString DriveListBox::List(int i) const {
    return (i >= 0 && i < ListCount()) ? driveText(volumes_[i]) : QString();
}

QString DriveListBox::Label(int i) const {
    return (i >= 0 && i < ListCount()) ? volumes_[i].label : QString();
}

int DriveListBox::rowOf(const QString& root) const {
    for (int i = 0; i < ListCount(); ++i)
        if (volumes_[i].root == root) return i;
    return -1;
}

QString DriveListBox::rootOf(const QString& text) const {
    for (const Volume& v : volumes_)
        if (driveText(v) == text) return v.root;
    return DriveOf(text);
}

void DriveListBox::setDrive(const QString& text) {
    QString root = rootOf(text);
    if (root.isEmpty()) {
        // Perhaps a medium arrived since the list was read.
        Refresh();
        root = rootOf(text);
    }
    if (root.isEmpty())
        throw RuntimeError(RuntimeError::DeviceUnavailable, QStringLiteral("Device unavailable"));
    if (root == drive_) return;
    drive_ = root;
    index_ = rowOf(root);
    text_ = List(index_);
    notify();
    if (onChange) onChange();
}

void DriveListBox::setListIndex(int i) {
    if (i < 0 || i >= ListCount())
        throw RuntimeError(RuntimeError::InvalidPropertyValue, QStringLiteral("Invalid property value"));
    setDrive(List(i));
}

void DriveListBox::Refresh() {
    volumes_ = source_.list();
    index_ = rowOf(drive_);
    if (index_ >= 0) text_ = List(index_);
    notify();
}

}  // namespace sonarium
