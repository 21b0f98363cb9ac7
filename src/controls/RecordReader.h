#pragma once
// Reads the rows of a record set by their position in its view, the way a bound grid does,
// without leaving the current record moved: it walks from the current record to the rows it
// wants and back again. The record set's own moves are the only way there, so a walk takes the
// shortest of three roads (from the first, from the last, from where it stands).
//
// What a walk leaves behind, as any walk over the records does: RecordCount grows to the
// records visited, and an edit in progress is dropped. So a reader is used only between
// events, never inside a procedure that has an AddNew or Edit open. A deleted record that is
// still current has no position to come back to: the reader then reads nothing.
#include <QStringList>
#include <optional>
#include <vector>

#include "controls/DataControl.h"

namespace sonarium {

// A field's value as a grid shows it: a null, or a value that can't be read now, is "".
QString fieldText(Field& field);

class RecordReader {
public:
    // Where the current record is.
    struct Place {
        enum Kind { Empty, Before, Row, After, Lost, Closed } kind = Closed;
        int row = -1;  // Row only
        bool operator==(const Place&) const = default;
    };

    explicit RecordReader(Recordset& records) : records_(records) {}

    Place place() const;
    // Records in the view; walks to the last one and back.
    std::optional<int> count();
    // Up to `n` rows from `first` (fewer at the end of the view), each as the texts of
    // `fields` (a null value reads as ""). `total` is the count of the view.
    std::optional<std::vector<QStringList>> read(int first, int n, const std::vector<int>& fields, int total);
    // Makes `row` the current record; false when the view has no such row or the walk failed.
    bool moveTo(int row, int total);

private:
    bool walkable(const Place& from) const;
    void walk(const Place& from, int to, int total);
    void restore(const Place& at, const Place& was, int total);

    Recordset& records_;
};

}  // namespace sonarium
