#pragma once
// Volumes a test makes up: usually directories of a temporary tree standing in for mounts, each
// ready unless the test says otherwise, so that a drive that isn't ready can be tried.
#include <QSet>
#include <QString>
#include <algorithm>
#include <vector>

#include "controls/Volumes.h"

namespace sonarium {

class FakeVolumes : public Volumes {
public:
    // Appends a volume to the list; list() keeps the order of adding.
    void add(const QString& root, const QString& label = {}) {
        volumes_.push_back({root, label.isEmpty() ? root.section(u'/', -1) : label});
    }
    void remove(const QString& root) {
        std::erase_if(volumes_, [&](const Volume& v) { return v.root == root; });
        notReady_.remove(root);
    }
    void setReady(const QString& root, bool ready) {
        if (ready)
            notReady_.remove(root);
        else
            notReady_.insert(root);
    }

    std::vector<Volume> list() override { return volumes_; }
    bool ready(const QString& root) override {
        return !notReady_.contains(root) &&
               std::any_of(volumes_.begin(), volumes_.end(), [&](const Volume& v) { return v.root == root; });
    }

private:
    std::vector<Volume> volumes_;
    QSet<QString> notReady_;
};

}  // namespace sonarium
