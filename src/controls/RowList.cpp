#include "controls/RowList.h"

#include "controls/Errors.h"

namespace sonarium {

void RowList::setListIndex(int i) {
    if (i < -1 || i >= rows_.size())
        throw RuntimeError(RuntimeError::InvalidPropertyValue, QStringLiteral("Invalid property value"));
    if (i == index_) return;
    index_ = i;
    notify();
    Click();
}

}  // namespace sonarium
