#pragma once
// Volumes a test makes up: usually directories of a temporary tree standing in for mounts, each
// with a ready flag so that a drive that isn't ready can be tried.
#include <QString>
#include <algorithm>
#include <vector>

#include "controls/Volumes.h"

namespace sonarium {

class FakeVolumes : public Volumes {
public:
    // Appends a volume to the list; list() keeps the order of adding.
    void add(const QString& root, const QString& label = {}, bool ready = true) {
        entries_.push_back({{root, label.isEmpty() ? root.section(u'/', -1) : label}, ready});
    }
    void remove(const QString& root) {
        std::erase_if(entries_, [&](const Entry& e) { return e.volume.root == root; });
    }
    void setReady(const QString& root, bool ready) {
        for (Entry& e : entries_)
            if (e.volume.root == root) e.ready = ready;
    }

    std::vector<Volume> list() override {
        std::vector<Volume> out;
        for (const Entry& e : entries_) out.push_back(e.volume);
        return out;
    }
    bool ready(const QString& root) override {
        return std::any_of(entries_.begin(), entries_.end(),
                           [&](const Entry& e) { return e.volume.root == root && e.ready; });
    }

private:
    struct Entry {
        Volume volume;
        bool ready;
    };
    std::vector<Entry> entries_;
};

}  // namespace sonarium
