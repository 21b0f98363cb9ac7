#include "library/KnownPaths.h"

#include <algorithm>

#include "controls/Errors.h"

namespace sonarium {

namespace {
[[noreturn]] void outOfRange() {
    throw RuntimeError(RuntimeError::SubscriptOutOfRange, QStringLiteral("Subscript out of range"));
}
}  // namespace

void KnownPathList::resize(int last) {
    const int size = std::max(last + 1, 0);
    for (int p = int(paths_.size()) - 1; p >= size; --p) unindex(p);
    paths_.resize(size_t(size));
}

const QString& KnownPathList::at(int position) const {
    if (position < 0 || position > last()) outOfRange();
    return paths_[size_t(position)];
}

void KnownPathList::set(int position, const QString& path) {
    if (position < 0 || position > last()) outOfRange();
    unindex(position);
    paths_[size_t(position)] = path;
    index(position);
}

bool KnownPathList::contains(const QString& path, int limit) const {
    const int bound = std::min(limit, last());
    if (path.isEmpty()) {
        for (int p = 1; p <= bound; ++p)
            if (paths_[size_t(p)].isEmpty()) return true;
        return false;
    }
    const auto it = positions_.constFind(path.toUpper());
    if (it == positions_.constEnd()) return false;
    const std::vector<int>& at = it.value();
    const auto first = std::lower_bound(at.begin(), at.end(), 1);
    return first != at.end() && *first <= bound;
}

void KnownPathList::index(int position) {
    const QString& path = paths_[size_t(position)];
    if (path.isEmpty()) return;
    std::vector<int>& at = positions_[path.toUpper()];
    at.insert(std::lower_bound(at.begin(), at.end(), position), position);
}

void KnownPathList::unindex(int position) {
    const QString& path = paths_[size_t(position)];
    if (path.isEmpty()) return;
    const auto it = positions_.find(path.toUpper());
    if (it == positions_.end()) return;
    std::vector<int>& at = it.value();
    at.erase(std::remove(at.begin(), at.end(), position), at.end());
    if (at.empty()) positions_.erase(it);
}

}  // namespace sonarium
