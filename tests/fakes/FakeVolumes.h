#pragma once
// Volumes a test makes up: usually directories of a temporary tree standing in for mounts, each
// with a ready flag so that a drive that isn't ready can be tried.
#include <QString>
#include <vector>

#include "controls/Volumes.h"

namespace sonarium {

class FakeVolumes : public Volumes {
public:
    // Appends a volume to the list; list() keeps the order of adding.
    void add(const QString& root, const QString& label = {}, bool ready = true);
    void remove(const QString& root);
    void setReady(const QString& root, bool ready);

    std::vector<Volume> list() override;
    bool ready(const QString& root) override;

    int listCalls = 0;

private:
    struct Entry {
        Volume volume;
        bool ready;
    };
    std::vector<Entry> entries_;
};

}  // namespace sonarium
