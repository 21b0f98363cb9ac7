#pragma once
// A list box: rows of text, the selected row in ListIndex (-1 for none). Setting ListIndex to
// another row fires the click, as a user's click does; an index outside -1..ListCount-1 fails.
// A sorted list keeps its rows in alphabetical order without regard to case.
#include "controls/RowList.h"

namespace sonarium {

class ListBox : public RowList {
public:
    explicit ListBox(QString name, int index = -1) : RowList(std::move(name), index) {}

    void setList(int i, const QString& text);
    // Text of the selected row, or "" when none is selected.
    QString Text() const { return List(index_); }
    int NewIndex() const { return newIndex_; }
    int TopIndex() const { return topIndex_; }
    void setTopIndex(int i);

    bool Sorted() const { return sorted_; }
    void setSorted(bool s);

    void AddItem(const QString& text, int at = -1);
    void RemoveItem(int i);
    void Clear();

protected:
    int newIndex_ = -1;
    int topIndex_ = 0;
    bool sorted_ = false;
};

// Case-insensitive order of the sorted lists.
bool listLess(const QString& a, const QString& b);

}  // namespace sonarium
