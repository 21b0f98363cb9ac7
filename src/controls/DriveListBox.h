#pragma once
// The drive list: the mounted volumes, "/" first. A drive's text is driveText ("/ [sda2]",
// "/media/user/USB [USB]"); the current drive is `Drive`. Setting Drive to another drive raises
// onChange; a drive that is listed but not ready can still be chosen (it is Dir1 that fails
// on it), only a text that names no volume at all fails.
#include <QString>
#include <functional>
#include <vector>

#include "controls/Control.h"
#include "controls/Volumes.h"

namespace sonarium {

// The root of the volume of `volumes` that holds `path`: the longest mount point that is a
// prefix of it at a path boundary ("/media/usb" holds "/media/usb/x" but not "/media/usbx").
// "" when none does, such as for a relative path.
QString volumeRootOf(const std::vector<Volume>& volumes, const QString& path);

class DriveListBox : public Control {
public:
    // Starts on the drive that holds `startDir`, the program's current directory.
    DriveListBox(QString name, Volumes& volumes, const QString& startDir);

    // The current drive's text.
    const QString& Drive() const { return text_; }
    // Accepts a drive's text or any absolute path on it, which names the drive that holds it
    // (so the drive of a directory is `setDrive(dir)`). A text on no volume throws
    // RuntimeError DeviceUnavailable and changes nothing.
    void setDrive(const QString& text);

    int ListCount() const { return int(volumes_.size()); }
    // The drive text of row i; "" outside the list.
    QString List(int i) const;
    // The label shown beside row i (the volume's name); "" outside the list.
    QString Label(int i) const;
    // The row of the current drive; -1 when it is no longer mounted.
    int ListIndex() const { return index_; }
    // Choosing a row sets Drive, as a user's pick does.
    void setListIndex(int i);

    // Reads the volumes again (a medium came or went). The current drive stays as it is.
    void Refresh();
    // The drive (volume root) that holds `path`, among the volumes last read.
    QString DriveOf(const QString& path) const { return volumeRootOf(volumes_, path); }

    std::function<void()> onChange;

private:
    int rowOf(const QString& root) const;
    // The root of the volume a drive's text or a path names; "" when none does.
    QString rootOf(const QString& text) const;

    Volumes& source_;
    std::vector<Volume> volumes_;
    QString drive_;  // the current drive's root
    QString text_;   // and its text, kept when the volume goes
    int index_ = -1;
};

}  // namespace sonarium
