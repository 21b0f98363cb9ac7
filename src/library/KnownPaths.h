#pragma once
// The full names of songs that a scan knows: an array whose positions 1 up hold names
// (position 0 is never used), resized and overwritten by position as the scan goes.
//
// A name is known when some position from 1 to a limit holds it, both compared in upper case:
// the answer a walk over those positions gives. A hash of the upper-cased names with their
// positions gives it at once, so that a scan of many files stays linear.
#include <QHash>
#include <QString>
#include <vector>

namespace sonarium {

class KnownPathList {
public:
    // Positions 0 to `last`, keeping what the kept positions hold; new positions are empty.
    // A negative `last` leaves no position at all.
    void resize(int last);
    // The highest position; -1 when there is none.
    int last() const { return int(paths_.size()) - 1; }
    // RuntimeError SubscriptOutOfRange outside 0 to last().
    const QString& at(int position) const;
    void set(int position, const QString& path);

    // True when a position from 1 to `limit` holds `path` in any case. Positions past the
    // end don't match, as a walk that fails on each of them and goes on finds nothing there.
    bool contains(const QString& path, int limit) const;

private:
    void index(int position);
    void unindex(int position);

    std::vector<QString> paths_;
    // Upper-cased name to the positions holding it, in ascending order. Empty names are left
    // out: positions are made empty in bulk, and no file's name is empty.
    QHash<QString, std::vector<int>> positions_;
};

}  // namespace sonarium
