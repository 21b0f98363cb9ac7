#include "engine/LinuxVolumes.h"

#include <unistd.h>

#include <QFile>
#include <QFileInfo>
#include <QList>
#include <algorithm>

namespace sonarium {
namespace {

// The mount table escapes blanks, tabs, newlines and backslashes in paths as \ooo.
QString unescape(const QByteArray& field) {
    QByteArray out;
    out.reserve(field.size());
    for (qsizetype i = 0; i < field.size(); ++i) {
        if (field[i] == '\\' && i + 3 < field.size()) {
            const QByteArray oct = field.mid(i + 1, 3);
            bool ok = true;
            for (char c : oct) ok = ok && c >= '0' && c <= '7';
            if (ok) {
                out += char(oct.toInt(nullptr, 8));
                i += 3;
                continue;
            }
        }
        out += field[i];
    }
    return QFile::decodeName(out);
}

bool isPseudo(const QByteArray& type) {
    static const QList<QByteArray> pseudo = {
        "proc",        "sysfs",         "tmpfs",      "devtmpfs",
        "devpts",      "ramfs",         "cgroup",     "cgroup2",
        "overlay",     "squashfs",      "securityfs", "debugfs",
        "tracefs",     "configfs",      "fusectl",    "pstore",
        "bpf",         "mqueue",        "hugetlbfs",  "autofs",
        "binfmt_misc", "efivarfs",      "rpc_pipefs", "nsfs",
        "selinuxfs",   "nfsd",          "aufs",       "fuse.gvfsd-fuse",
        "fuse.portal", "fuse.snapfuse", "fuse.lxcfs", "fuse.xdg-document-portal",
        "fuse.doc",    "zram"};
    return pseudo.contains(type);
}

bool under(const QString& path, const QString& dir) { return path == dir || path.startsWith(dir + u'/'); }

// Mount points the system keeps for itself; the user does not browse them for songs.
bool isSystemMount(const QString& mp) {
    if (under(mp, QStringLiteral("/run/media"))) return false;
    static const char* const system[] = {"/boot", "/efi", "/proc", "/sys", "/dev", "/run",
                                         "/snap", "/var", "/usr",  "/etc", "/tmp"};
    return std::any_of(std::begin(system), std::end(system),
                       [&](const char* d) { return under(mp, QString::fromLatin1(d)); });
}

bool isRemovable(const QString& mp) {
    return under(mp, QStringLiteral("/media")) || under(mp, QStringLiteral("/run/media")) ||
           under(mp, QStringLiteral("/mnt"));
}

QString labelFor(const QString& mountPoint, const QString& device) {
    const QString last = mountPoint.section(u'/', -1);
    if (!last.isEmpty()) return last;
    const QString dev = device.section(u'/', -1);
    return dev.isEmpty() ? mountPoint : dev;
}

}  // namespace

LinuxVolumes::LinuxVolumes(QString mountTable) : mountTable_(std::move(mountTable)) {}

std::vector<Volume> LinuxVolumes::fromMountTable(const QByteArray& table) {
    // A later line for the same mount point is mounted over the earlier one and hides it.
    struct Mount {
        QString device, point;
        QByteArray type;
    };
    std::vector<Mount> mounts;
    for (const QByteArray& line : table.split('\n')) {
        const QList<QByteArray> f = line.simplified().split(' ');
        if (f.size() < 3) continue;
        Mount m{unescape(f[0]), unescape(f[1]), f[2]};
        if (!m.point.startsWith(u'/')) continue;
        auto same =
            std::find_if(mounts.begin(), mounts.end(), [&](const Mount& x) { return x.point == m.point; });
        if (same != mounts.end()) mounts.erase(same);
        mounts.push_back(std::move(m));
    }

    Volume root{QStringLiteral("/"), QStringLiteral("/")};
    std::vector<Volume> removable, other;
    for (const Mount& m : mounts) {
        if (m.point == u"/") {
            root.label = labelFor(m.point, m.device);
            continue;
        }
        if (isPseudo(m.type) || isSystemMount(m.point)) continue;
        (isRemovable(m.point) ? removable : other).push_back({m.point, labelFor(m.point, m.device)});
    }
    auto byPoint = [](const Volume& a, const Volume& b) {
        const int c = QString::compare(a.root, b.root, Qt::CaseInsensitive);
        return c != 0 ? c < 0 : a.root < b.root;
    };
    std::sort(removable.begin(), removable.end(), byPoint);
    std::sort(other.begin(), other.end(), byPoint);

    std::vector<Volume> result{root};
    result.insert(result.end(), removable.begin(), removable.end());
    result.insert(result.end(), other.begin(), other.end());
    return result;
}

std::vector<Volume> LinuxVolumes::list() {
    QFile f(mountTable_);
    // /proc files report no size: read them to the end rather than by their length.
    QByteArray table;
    if (f.open(QIODevice::ReadOnly)) table = f.readAll();
    return fromMountTable(table);
}

bool LinuxVolumes::ready(const QString& root) {
    if (root != u"/") {
        const std::vector<Volume> mounted = list();
        if (std::none_of(mounted.begin(), mounted.end(), [&](const Volume& v) { return v.root == root; }))
            return false;
    }
    return QFileInfo(root).isDir() && ::access(QFile::encodeName(root).constData(), R_OK | X_OK) == 0;
}

}  // namespace sonarium
