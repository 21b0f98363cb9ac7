#include "controls/DirectoryListing.h"

#include <dirent.h>
#include <sys/stat.h>

#include <QDir>
#include <QFile>
#include <algorithm>
#include <cstring>
#include <ctime>

#include "controls/FileNames.h"

namespace sonarium {
namespace {

// A change within the same tick of the file system's clock as the directory's last one leaves
// its time as it was, so a listing read within a tick of that time may have missed it. File
// systems that keep fractions of a second tick with the kernel's coarse clock (a few ms); those
// whose times are whole seconds (FAT keeps two) tick that slowly.
constexpr std::int64_t kFineTickNs = 50'000'000;
constexpr std::int64_t kCoarseTickNs = 2'000'000'000;

std::int64_t ns(const timespec& t) { return std::int64_t(t.tv_sec) * 1'000'000'000 + t.tv_nsec; }

bool stampOf(const QByteArray& dir, std::uint64_t& dev, std::uint64_t& ino, std::uint64_t& nlink,
             std::int64_t& mtime, std::int64_t& ctime) {
    struct stat st;
    if (::stat(dir.constData(), &st) != 0 || !S_ISDIR(st.st_mode)) return false;
    dev = st.st_dev, ino = st.st_ino, nlink = st.st_nlink;
    mtime = ns(st.st_mtim), ctime = ns(st.st_ctim);
    return true;
}

std::int64_t nowNs() {
    timespec t{};
    ::clock_gettime(CLOCK_REALTIME, &t);
    return ns(t);
}

}  // namespace

const DirectoryListing::Entries& DirectoryListing::read(const QString& dir) {
    // The program's own resources (the built-in skin) are no directory of the system's.
    if (dir.startsWith(u':')) {
        const QDir qdir(dir);
        for (const QString& name : qdir.entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Unsorted))
            none_.dirs << childPath(dir, name);
        std::sort(none_.dirs.begin(), none_.dirs.end(), lessIgnoringCase);
        none_.files = qdir.entryList(QDir::Files, QDir::Unsorted);
        for (const QString& name : qdir.entryList(QDir::AllEntries | QDir::NoDotAndDotDot, QDir::Unsorted))
            none_.byFoldedName.insert(name.toCaseFolded(), name);
        none_.read = ++reads_;
        return none_;
    }
    none_ = {};
    none_.read = ++reads_;
    const QByteArray path = QFile::encodeName(dir.isEmpty() ? QStringLiteral(".") : dir);
    Stamp stamp;
    if (!stampOf(path, stamp.dev, stamp.ino, stamp.nlink, stamp.mtime, stamp.ctime)) return none_;

    for (auto it = kept_.begin(); it != kept_.end(); ++it) {
        if (it->dir != dir) continue;
        // Entries that come or go move the modification time; the change time (which a
        // change of times or permissions moves too) only has to stay as it was.
        const std::int64_t tick = stamp.mtime % 1'000'000'000 != 0 ? kFineTickNs : kCoarseTickNs;
        if (it->stamp == stamp && it->readAt - stamp.mtime > tick) {
            kept_.splice(kept_.begin(), kept_, it);
            return kept_.front().entries;
        }
        kept_.erase(it);
        break;
    }

    Listing listing{dir, stamp, nowNs(), {}};
    listing.entries.read = ++reads_;
    if (DIR* d = ::opendir(path.constData())) {
        const int fd = ::dirfd(d);
        while (const dirent* e = ::readdir(d)) {
            if (std::strcmp(e->d_name, ".") == 0 || std::strcmp(e->d_name, "..") == 0) continue;
            const QString name = QFile::decodeName(e->d_name);
            QString& named = listing.entries.byFoldedName[name.toCaseFolded()];
            if (named.isEmpty() || name < named) named = name;
            if (e->d_name[0] == '.') continue;  // hidden
            // The entry's type from the directory itself where it says; a symlink or an
            // unknown type costs one stat, which follows the link but never further.
            bool isDir = e->d_type == DT_DIR, isFile = e->d_type == DT_REG;
            if (e->d_type == DT_LNK || e->d_type == DT_UNKNOWN) {
                struct stat st;
                if (::fstatat(fd, e->d_name, &st, 0) == 0)
                    isDir = S_ISDIR(st.st_mode), isFile = S_ISREG(st.st_mode);
            }
            if (isDir) listing.entries.dirs << childPath(dir, name);
            if (isFile) listing.entries.files << name;
        }
        ::closedir(d);
    }
    std::sort(listing.entries.dirs.begin(), listing.entries.dirs.end(), lessIgnoringCase);
    kept_.push_front(std::move(listing));
    if (kept_.size() > kKept) kept_.pop_back();
    return kept_.front().entries;
}

}  // namespace sonarium
