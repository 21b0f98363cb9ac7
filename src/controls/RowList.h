#pragma once
// What every list control shares: rows of text and a selected row (-1 for none). Selecting
// another row fires the click, as a user's click does; an index outside -1..ListCount-1 fails.
#include <QStringList>

#include "controls/Control.h"

namespace sonarium {

class RowList : public Control {
public:
    using Control::Control;

    int ListCount() const { return int(rows_.size()); }
    // A row outside the list reads as an empty text, as the platform's lists do.
    virtual QString List(int i) const { return (i >= 0 && i < rows_.size()) ? rows_[i] : QString(); }
    int ListIndex() const { return index_; }
    void setListIndex(int i);
    const QStringList& rows() const { return rows_; }

protected:
    QStringList rows_;
    int index_ = -1;
};

}  // namespace sonarium
