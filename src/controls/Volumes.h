#pragma once
// The mounted volumes that stand for drives: "/" first, then removable media and other mounts.
#include <QString>
#include <vector>

namespace sonarium {

struct Volume {
    QString root;   // mount point, e.g. "/" or "/media/user/USB"
    QString label;  // what the drive list shows beside the root
};

// The text by which the drive lists name a volume: its mount point with the volume's name in
// brackets ("/ [sda2]", "/media/user/USB [USB]"). It is never a folder's path, so a folder list
// given "/" or a mount point shows that folder, and only the drive's own text moves to the
// drive's current directory.
inline QString driveText(const Volume& v) {
    return v.root + QStringLiteral(" [") + (v.label.isEmpty() ? v.root : v.label) + u']';
}

class Volumes {
public:
    virtual ~Volumes() = default;
    virtual std::vector<Volume> list() = 0;
    // A volume that is not mounted or cannot be read is not ready.
    virtual bool ready(const QString& root) = 0;
};

}  // namespace sonarium
