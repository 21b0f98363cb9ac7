#pragma once
// The drives of the drive list, read from the kernel's mount table: "/" first, then removable
// media (under /media, /run/media, /mnt), then other real file systems the user works with,
// each group by mount point. Pseudo file systems (proc, sysfs, tmpfs, cgroup, snaps...) and
// the system's own mounts (/boot, /var, /run...) are left out.
#include <QByteArray>
#include <QString>

#include "controls/Volumes.h"

namespace sonarium {

class LinuxVolumes : public Volumes {
public:
    explicit LinuxVolumes(QString mountTable = QStringLiteral("/proc/self/mounts"));

    std::vector<Volume> list() override;
    // Ready = still mounted (or "/"), a directory, and readable and searchable by us.
    bool ready(const QString& root) override;

    // The volumes a mount table in the /proc/self/mounts format describes. "/" is always the
    // first, even when the table is empty or unreadable.
    static std::vector<Volume> fromMountTable(const QByteArray& table);

private:
    QString mountTable_;
};

}  // namespace sonarium
