#pragma once
// The mounted volumes that stand for drives: "/" first, then removable media and other mounts.
#include <QString>
#include <vector>

namespace sonarium {

struct Volume {
    QString root;   // mount point, e.g. "/" or "/media/user/USB"
    QString label;  // what the drive list shows beside the root
};

class Volumes {
public:
    virtual ~Volumes() = default;
    virtual std::vector<Volume> list() = 0;
    // A volume that is not mounted or cannot be read is not ready.
    virtual bool ready(const QString& root) = 0;
};

}  // namespace sonarium
