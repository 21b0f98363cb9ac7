#pragma once
// A grid bound to a data control: one row per record of the view, in the view's order, and
// the grid's current row is the record set's current record. Rows are read lazily, a block at
// a time, through a RecordReader, so a large library costs only the rows that are looked at.
//
// The record set tells nobody when it changes, so the grid looks at it (sync) between events:
// a new database or record source, a change of the records visited (a count, an added or
// deleted record), a move of the current record, or new values in the current record. What
// changed is then read again, the views follow, and a move raises RowColChange as a pick does.
//
// Geometry is in twips: a record selector column at the left, a header row at the top, then
// the columns side by side. Column Left is measured from the grid's left edge and takes the
// horizontal scroll into account, so a column scrolled out to the left has a Left of 0 or less.
//
// Editing: a typed key goes to the key press handler first (which may change or drop it), then
// edits the current cell's text. Committing writes the text into the record (Edit, the field,
// Update) and raises AfterColUpdate with the column. An empty text stores a null.
#include <QString>
#include <QStringList>
#include <functional>
#include <list>
#include <map>
#include <vector>

#include "controls/Control.h"
#include "controls/DataControl.h"
#include "controls/RecordReader.h"

namespace sonarium {

struct GridColumn {
    QString caption;
    int field = 0;  // field number in the record set
    int width = 0;  // twips
    bool visible = true;
    bool button = false;  // a cell button in the current row
};

class DataGrid : public Control {
public:
    DataGrid(QString name, DataControl& data);

    DataControl& DataSource() const { return data_; }

    // ---- Columns ----
    void addColumn(const QString& caption, int field, int widthTwips);
    int ColumnCount() const { return int(columns_.size()); }
    // Throws RuntimeError for a column the grid doesn't have.
    const GridColumn& Column(int c) const;
    // The column with that caption, ignoring case; -1 when there is none.
    int ColumnIndex(const QString& caption) const;
    int ColumnLeft(int c) const;
    void setColumnWidth(int c, int twips);  // raises ColResize when it changes
    void setColumnButton(int c, bool on);

    // ---- Layout (twips) ----
    int SelectorWidth() const { return selectorWidth_; }
    int HeaderHeight() const { return headerHeight_; }
    int RowHeight() const { return rowHeight_; }
    void setMetrics(int selectorWidth, int headerHeight, int rowHeight);
    int FirstRow() const { return firstRow_; }
    int LeftOffset() const { return leftOffset_; }
    // The user scrolled: raises Scroll when the place changed.
    void Scroll(int firstRow, int leftOffset);
    // The top of `row`, from the grid's top edge.
    int RowTop(int row) const { return headerHeight_ + (row - firstRow_) * rowHeight_; }
    // The grid's size or the layout of its columns changed on screen.
    void LayoutChange();

    // ---- Rows ----
    int RowCount() const { return total_; }
    // The text of a cell as the record holds it; "" where the row can't be read now.
    QString CellText(int row, int c);
    // The current row: the record set's current record, -1 when there is none.
    int Row() const;
    int Col() const { return col_; }
    // A pick of the user: moves the current record and raises RowColChange.
    void setCurrentCell(int row, int c);
    void setCol(int c) { setCurrentCell(Row(), c); }

    // ---- The current row's cells ----
    // The text of column `c` in the current row, with an edit in progress; "" with no row.
    QString ColumnText(int c) const;
    // The current cell's text.
    QString Text() const { return ColumnText(col_); }
    // Writes `text` into column `c` of the current record at once. Throws on failure.
    void setColumnText(int c, const QString& text);

    // ---- Editing the current cell ----
    bool Editing() const { return editing_; }
    // A key typed into the current cell: the handler first, then the key edits the text
    // (8 takes the last character away, 32 and up are added, 13 commits, 27 cancels).
    // Returns the key as the handler left it.
    int KeyPress(int keyAscii);
    // An edit that is not a typed key (a paste, a cut, a key inside the text).
    void setEditText(const QString& text);
    // Writes a changed cell into the record and raises AfterColUpdate. A failed write is given
    // to the error handler (or thrown without one) and the cell keeps the record's value.
    void commitEdit();
    void cancelEdit();

    // The cell button of column `c` was pressed.
    void ButtonClick(int c);

    // ---- Following the record set ----
    // True when the record set changed since the grid last looked; reads only.
    bool needsSync() const { return look() != seen_; }
    void sync();
    // Counters that grow when the rows must be read again (all of them, or only their values).
    int rowsVersion() const { return rowsVersion_; }
    int valuesVersion() const { return valuesVersion_; }

    // ---- Events ----
    std::function<void(int& keyAscii)> onKeyPress;
    std::function<void(int c)> onAfterColUpdate, onButtonClick, onColResize;
    std::function<void()> onRowColChange, onScroll, onLayoutChange;
    std::function<void(const QString& text)> onError;

private:
    struct Look {
        QString database, source;
        int visited = -1;
        RecordReader::Place place;
        QStringList current;  // the current record's texts, for edits made elsewhere
        bool operator==(const Look&) const = default;
    };
    Look look() const;
    std::vector<int> fields() const;
    void forgetRows();
    void writeCell(int row, int c, const QString& text);
    void rowColChange();

    static constexpr int BlockRows = 64;
    static constexpr std::size_t KeptBlocks = 48;

    DataControl& data_;
    std::vector<GridColumn> columns_;
    int selectorWidth_ = 180, headerHeight_ = 255, rowHeight_ = 240;
    int firstRow_ = 0, leftOffset_ = 0;
    int col_ = 0;
    int total_ = 0;
    Look seen_;
    int rowsVersion_ = 0, valuesVersion_ = 0;
    std::map<int, std::vector<QStringList>> blocks_;
    std::list<int> blockUse_;  // most recent first

    bool editing_ = false, dirty_ = false;
    int editRow_ = -1, editCol_ = -1;
    QString editText_;
};

}  // namespace sonarium
