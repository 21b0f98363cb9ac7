#include "FakeVolumes.h"

#include <algorithm>

namespace sonarium {

void FakeVolumes::add(const QString& root, const QString& label, bool ready) {
    entries_.push_back({{root, label.isEmpty() ? root.section(u'/', -1) : label}, ready});
}

void FakeVolumes::remove(const QString& root) {
    std::erase_if(entries_, [&](const Entry& e) { return e.volume.root == root; });
}

void FakeVolumes::setReady(const QString& root, bool ready) {
    for (Entry& e : entries_)
        if (e.volume.root == root) e.ready = ready;
}

std::vector<Volume> FakeVolumes::list() {
    ++listCalls;
    std::vector<Volume> out;
    for (const Entry& e : entries_) out.push_back(e.volume);
    return out;
}

bool FakeVolumes::ready(const QString& root) {
    return std::any_of(entries_.begin(), entries_.end(),
                       [&](const Entry& e) { return e.volume.root == root && e.ready; });
}

}  // namespace sonarium
