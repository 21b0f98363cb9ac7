#include "controls/DataGrid.h"

#include <algorithm>
#include <exception>

#include "controls/Errors.h"

namespace sonarium {

namespace {

int visitedOf(Recordset& records) {
    try {
        return records.RecordCount();
    } catch (const std::exception&) {
        return -1;
    }
}

bool closedOrEmpty(const RecordReader::Place& p) {
    return p.kind == RecordReader::Place::Closed || p.kind == RecordReader::Place::Empty;
}

}  // namespace

DataGrid::DataGrid(QString name, DataControl& data) : Control(std::move(name)), data_(data) {}

// ---- Columns and layout ----

void DataGrid::addColumn(const QString& caption, int field, int widthTwips) {
    columns_.push_back({caption, field, widthTwips});
    forgetRows();
    changed();
}

const GridColumn& DataGrid::Column(int c) const {
    if (c < 0 || c >= ColumnCount())
        throw RuntimeError(RuntimeError::SubscriptOutOfRange, QStringLiteral("Invalid column index"));
    return columns_[std::size_t(c)];
}

int DataGrid::ColumnIndex(const QString& caption) const {
    for (int c = 0; c < ColumnCount(); ++c)
        if (columns_[std::size_t(c)].caption.compare(caption, Qt::CaseInsensitive) == 0) return c;
    return -1;
}

int DataGrid::ColumnLeft(int c) const {
    Column(c);
    int left = selectorWidth_ - leftOffset_;
    for (int j = 0; j < c; ++j)
        if (columns_[std::size_t(j)].visible) left += columns_[std::size_t(j)].width;
    return left;
}

void DataGrid::setColumnWidth(int c, int twips) {
    Column(c);
    if (columns_[std::size_t(c)].width == twips) return;
    columns_[std::size_t(c)].width = twips;
    changed();
    if (onColResize) onColResize(c);
}

void DataGrid::setColumnButton(int c, bool on) {
    Column(c);
    columns_[std::size_t(c)].button = on;
    changed();
}

void DataGrid::setMetrics(int selectorWidth, int headerHeight, int rowHeight) {
    if (selectorWidth == selectorWidth_ && headerHeight == headerHeight_ && rowHeight == rowHeight_) return;
    selectorWidth_ = selectorWidth, headerHeight_ = headerHeight, rowHeight_ = rowHeight;
    changed();
}

void DataGrid::Scroll(int firstRow, int leftOffset) {
    if (firstRow == firstRow_ && leftOffset == leftOffset_) return;
    firstRow_ = firstRow, leftOffset_ = leftOffset;
    changed();
    if (onScroll) onScroll();
}

void DataGrid::LayoutChange() {
    if (onLayoutChange) onLayoutChange();
}

std::vector<int> DataGrid::fields() const {
    std::vector<int> f;
    for (const GridColumn& c : columns_) f.push_back(c.field);
    return f;
}

// ---- Rows ----

void DataGrid::forgetRows() {
    blocks_.clear();
    blockUse_.clear();
}

QString DataGrid::CellText(int row, int c) {
    if (row < 0 || row >= total_ || c < 0 || c >= ColumnCount()) return {};
    if (editing_ && row == editRow_ && c == editCol_) return editText_;
    const int block = row / BlockRows;
    auto it = blocks_.find(block);
    if (it == blocks_.end()) {
        Recordset& records = data_.recordset();
        const int visitedBefore = visitedOf(records);
        auto rows = RecordReader(records).read(block * BlockRows, BlockRows, fields(), total_);
        // The walk visits records; that is the grid's own doing, not a change to follow.
        if (visitedBefore == seen_.visited) seen_.visited = visitedOf(records);
        if (!rows) return {};
        it = blocks_.emplace(block, std::move(*rows)).first;
        blockUse_.push_front(block);
        if (blockUse_.size() > KeptBlocks) {
            blocks_.erase(blockUse_.back());
            blockUse_.pop_back();
        }
    } else if (blockUse_.front() != block) {
        blockUse_.remove(block);
        blockUse_.push_front(block);
    }
    const std::size_t index = std::size_t(row - block * BlockRows);
    return index < it->second.size() ? it->second[index].value(c) : QString();
}

int DataGrid::Row() const {
    const RecordReader::Place p = RecordReader(data_.recordset()).place();
    return p.kind == RecordReader::Place::Row ? p.row : -1;
}

void DataGrid::setCurrentCell(int row, int c) {
    if (needsSync()) sync();
    bool moved = false;
    if (row >= 0 && row != Row()) {
        commitEdit();
        if (!RecordReader(data_.recordset()).moveTo(row, total_)) return;
        moved = true;
    }
    if (c >= 0 && c < ColumnCount() && c != col_) {
        commitEdit();
        col_ = c;
        moved = true;
    }
    if (!moved) return;
    seen_ = look();
    changed();
    rowColChange();
}

void DataGrid::rowColChange() {
    if (onRowColChange) onRowColChange();
}

// ---- The current row's cells ----

QString DataGrid::ColumnText(int c) const {
    if (c < 0 || c >= ColumnCount()) return {};
    if (editing_ && c == editCol_ && Row() == editRow_) return editText_;
    try {
        return fieldText(data_.recordset().Fields(columns_[std::size_t(c)].field));
    } catch (const std::exception&) {
        return {};
    }
}

void DataGrid::setColumnText(int c, const QString& text) {
    Column(c);
    const int row = Row();
    writeCell(row, c, text);
    if (editing_ && editCol_ == c && editRow_ == row) {
        editText_ = text;
        dirty_ = false;
    }
}

void DataGrid::writeCell(int row, int c, const QString& text) {
    Recordset& records = data_.recordset();
    const bool following = look() == seen_;
    if (row >= 0 && Row() != row && !RecordReader(records).moveTo(row, total_))
        throw RuntimeError(RuntimeError::InvalidCall, QStringLiteral("No current record."));
    records.Edit();
    try {
        records.Fields(columns_[std::size_t(c)].field).setValue(text.isEmpty() ? QVariant() : QVariant(text));
        records.Update();
    } catch (...) {
        try {
            records.CancelUpdate();
        } catch (const std::exception&) {
        }
        throw;
    }
    const int block = row / BlockRows;
    if (auto it = blocks_.find(block);
        it != blocks_.end() && std::size_t(row % BlockRows) < it->second.size()) {
        QStringList& texts = it->second[std::size_t(row % BlockRows)];
        if (c < texts.size()) texts[c] = text;
    }
    ++valuesVersion_;
    // Only what the grid wrote itself is taken as seen; a change from elsewhere is still to follow.
    if (following) seen_ = look();
    changed();
}

// ---- Editing ----

int DataGrid::KeyPress(int keyAscii) {
    if (onKeyPress) onKeyPress(keyAscii);
    if (keyAscii == 0) return 0;
    if (keyAscii == 13) {
        commitEdit();
    } else if (keyAscii == 27) {
        cancelEdit();
    } else if (keyAscii == 8 || keyAscii >= 32) {
        if (!editing_ && Row() < 0) return keyAscii;
        QString text = editing_ ? editText_ : ColumnText(col_);
        if (keyAscii == 8)
            text.chop(1);
        else
            text += QChar(keyAscii);
        setEditText(text);
    }
    return keyAscii;
}

void DataGrid::setEditText(const QString& text) {
    if (!editing_) {
        editRow_ = Row();
        if (editRow_ < 0) return;
        editCol_ = col_;
        editText_ = ColumnText(col_);
        editing_ = true;
        dirty_ = false;
    }
    if (text == editText_) return;
    editText_ = text;
    dirty_ = true;
    changed();
}

void DataGrid::commitEdit() {
    if (!editing_) return;
    editing_ = false;
    if (!dirty_) {
        changed();
        return;
    }
    dirty_ = false;
    const int c = editCol_;
    try {
        writeCell(editRow_, c, editText_);
    } catch (const RuntimeError& e) {
        changed();
        if (!onError) throw;
        onError(e.text());
        return;
    }
    if (onAfterColUpdate) onAfterColUpdate(c);
}

void DataGrid::cancelEdit() {
    if (!editing_) return;
    editing_ = dirty_ = false;
    changed();
}

void DataGrid::ButtonClick(int c) {
    if (onButtonClick) onButtonClick(c);
}

// ---- Following the record set ----

DataGrid::Look DataGrid::look() const {
    Look l;
    l.database = data_.DatabaseName();
    l.source = data_.RecordSource();
    Recordset& records = data_.recordset();
    l.visited = visitedOf(records);
    l.place = RecordReader(records).place();
    if (l.place.kind == RecordReader::Place::Row) {
        for (int f : fields()) {
            try {
                l.current << fieldText(records.Fields(f));
            } catch (const std::exception&) {
                l.current << QString();
            }
        }
    }
    return l;
}

void DataGrid::sync() {
    const Look now = look();
    if (now == seen_) return;
    const bool reopened =
        now.database != seen_.database || now.source != seen_.source || now.visited != seen_.visited ||
        (now.place.kind != seen_.place.kind && (closedOrEmpty(now.place) || closedOrEmpty(seen_.place)));
    if (reopened) {
        if (std::optional<int> n = RecordReader(data_.recordset()).count())
            total_ = *n;
        else if (closedOrEmpty(now.place))
            total_ = 0;
        forgetRows();
        // The record under an edit may be gone or elsewhere now.
        editing_ = dirty_ = false;
        ++rowsVersion_;
    } else if (now.current != seen_.current) {
        forgetRows();
        ++valuesVersion_;
    }
    const bool moved = reopened || now.place != seen_.place;
    seen_ = look();
    changed();
    if (moved) rowColChange();
}

}  // namespace sonarium
