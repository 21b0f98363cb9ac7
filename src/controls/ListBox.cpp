#include "controls/ListBox.h"

#include <algorithm>

#include "controls/Errors.h"

namespace sonarium {

bool listLess(const QString& a, const QString& b) {
    int c = QString::compare(a, b, Qt::CaseInsensitive);
    return c < 0;
}

void ListBox::setList(int i, const QString& text) {
    if (i < 0 || i >= rows_.size())
        throw RuntimeError(RuntimeError::InvalidPropertyIndex,
                           QStringLiteral("Invalid property array index"));
    rows_[i] = text;
    notify();
}

void ListBox::setTopIndex(int i) { set(topIndex_, std::clamp(i, 0, std::max(0, int(rows_.size()) - 1))); }

void ListBox::setSorted(bool s) {
    sorted_ = s;
    if (s) std::stable_sort(rows_.begin(), rows_.end(), listLess);
    notify();
}

void ListBox::AddItem(const QString& text, int at) {
    int pos;
    if (sorted_) {
        pos = int(std::upper_bound(rows_.begin(), rows_.end(), text, listLess) - rows_.begin());
    } else if (at < 0) {
        pos = int(rows_.size());
    } else {
        if (at > rows_.size())
            throw RuntimeError(RuntimeError::InvalidCall,
                               QStringLiteral("Invalid procedure call or argument"));
        pos = at;
    }
    rows_.insert(pos, text);
    if (index_ >= pos) ++index_;  // the selected row stays selected
    newIndex_ = pos;
    notify();
}

void ListBox::RemoveItem(int i) {
    if (i < 0 || i >= rows_.size())
        throw RuntimeError(RuntimeError::InvalidCall, QStringLiteral("Invalid procedure call or argument"));
    rows_.removeAt(i);
    if (index_ == i)
        index_ = -1;
    else if (index_ > i)
        --index_;
    if (topIndex_ >= rows_.size()) topIndex_ = std::max(0, int(rows_.size()) - 1);
    notify();
}

void ListBox::Clear() {
    rows_.clear();
    index_ = -1;
    newIndex_ = -1;
    topIndex_ = 0;
    notify();
}

}  // namespace sonarium
