#pragma once
// A control array: controls of one name told apart by index (Title(0) to Title(11)).
// An index that has no element fails, as it does on the platform.
#include <QString>
#include <memory>
#include <vector>

#include "controls/Errors.h"

namespace sonarium {

template <typename T>
class ControlArray {
public:
    template <typename... Args>
    ControlArray(const QString& name, int count, Args&&... args) {
        for (int i = 0; i < count; ++i) items_.push_back(std::make_unique<T>(name, i, args...));
    }
    T& operator[](int i) const {
        if (i < 0 || i >= int(items_.size()))
            throw RuntimeError(RuntimeError::SubscriptOutOfRange,
                               QStringLiteral("Control array element '%1' doesn't exist").arg(i));
        return *items_[std::size_t(i)];
    }
    int size() const { return int(items_.size()); }
    auto begin() const { return items_.begin(); }
    auto end() const { return items_.end(); }

private:
    std::vector<std::unique_ptr<T>> items_;
};

}  // namespace sonarium
