#pragma once
// The visible entries of directories, each read once and read again only when the directory
// has changed since. A scan goes back to a parent after each of its sub-directories, and the
// lists follow the disk on every such move: without this a folder of thousands of albums would
// be read once per album, and the walk would grow with the square of their number.
//
// A listing is trusted while the directory's identity, change times and link count are what
// they were, and only when it was read well after the directory's last change: a change in
// the same tick of the file system's clock as the read would leave the times as they were.
#include <QHash>
#include <QString>
#include <QStringList>
#include <cstdint>
#include <list>

namespace sonarium {

class DirectoryListing {
public:
    // The full paths of the visible (non-dot) sub-directories of `dir` (symlinks to
    // directories included), sorted as folder lists show them, and the names of its visible
    // regular files (symlinks to them included) in the order read. A directory that cannot be read has
    // neither. Resource paths (":/...") are listed too, never kept.
    struct Entries {
        QStringList dirs;
        QStringList files;
        // Every entry, hidden ones and those of any type included, by its case-folded name;
        // of names that differ only in case, the smallest in exact order.
        QHash<QString, QString> byFoldedName;
        std::uint64_t read = 0;  // which read of this object made them: a new one, new entries
    };
    const Entries& read(const QString& dir);

private:
    struct Stamp {
        std::uint64_t dev = 0, ino = 0, nlink = 0;
        std::int64_t mtime = 0, ctime = 0;  // nanoseconds
        bool operator==(const Stamp&) const = default;
    };
    struct Listing {
        QString dir;
        Stamp stamp;
        std::int64_t readAt = 0;  // nanoseconds, the clock the file system's times use
        Entries entries;
    };
    static constexpr std::size_t kKept = 64;  // a walk's ancestors, and then some

    std::list<Listing> kept_;  // most recently used first
    std::uint64_t reads_ = 0;
    Entries none_;  // what a directory that isn't kept lists
};

}  // namespace sonarium
