#include "engine/data/SqliteRecordset.h"

#include <algorithm>

#include "engine/data/DataErrors.h"
#include "engine/data/SqliteField.h"

namespace sonarium {

namespace {

std::vector<std::int64_t> rowidsOf(SqliteStatement statement) {
    std::vector<std::int64_t> rowids;
    while (statement.step()) rowids.push_back(statement.integer(0));
    return rowids;
}

std::vector<std::int64_t> sorted(std::vector<std::int64_t> rowids) {
    std::sort(rowids.begin(), rowids.end());
    return rowids;
}

}  // namespace

SqliteRecordset::SqliteRecordset() = default;
SqliteRecordset::~SqliteRecordset() = default;

void SqliteRecordset::open(std::shared_ptr<SqliteConnection> connection, const SelectQuery& query,
                           const QString& source) {
    const std::vector<ColumnInfo> all = connection->columns(query.table);
    if (all.empty()) throw dataerrors::noSuchTable(query.table);
    std::vector<ColumnInfo> columns;
    for (const QString& name : query.columns) {
        auto it = std::find_if(all.begin(), all.end(), [&](const ColumnInfo& c) {
            return c.name.compare(name, Qt::CaseInsensitive) == 0;
        });
        if (it == all.end()) throw dataerrors::unknownField(name);
        columns.push_back(*it);
    }
    if (query.columns.isEmpty()) columns = all;

    const QString table = sqlIdentifier(query.table);
    const QString everything = QStringLiteral("SELECT rowid FROM ") + table;
    std::vector<std::int64_t> rowids;
    if (query.where.isEmpty() || query.orderBy.isEmpty()) {
        QString list = everything;
        if (!query.where.isEmpty()) list += QStringLiteral(" WHERE ") + query.where;
        if (!query.orderBy.isEmpty()) list += QStringLiteral(" ORDER BY ") + query.orderBy;
        rowids = rowidsOf(connection->prepare(list, source));
    } else {
        // A filter and an order in one query let SQLite walk the order's index and read every
        // row for the filter. Two walks over indexes are much faster on a large library: the
        // rows that pass the filter, then the whole order, keeping those rows.
        const std::vector<std::int64_t> passing = sorted(
            rowidsOf(connection->prepare(everything + QStringLiteral(" WHERE ") + query.where, source)));
        for (std::int64_t id :
             rowidsOf(connection->prepare(everything + QStringLiteral(" ORDER BY ") + query.orderBy, source)))
            if (std::binary_search(passing.begin(), passing.end(), id)) rowids.push_back(id);
    }

    QStringList names, params, sets;
    for (size_t i = 0; i < columns.size(); ++i) {
        names << sqlIdentifier(columns[i].name);
        params << QStringLiteral("?%1").arg(i + 1);
        sets << names.last() + QStringLiteral(" = ") + params.last();
    }
    const QString last = QStringLiteral("?%1").arg(columns.size() + 1);

    // Nothing below can fail: the record set changes only now.
    connection_ = std::move(connection);
    columns_ = std::move(columns);
    rowids_ = std::move(rowids);
    table_ = table;
    fetchSql_ = QStringLiteral("SELECT %1 FROM %2 WHERE rowid = ?1").arg(names.join(u','), table);
    insertSql_ =
        QStringLiteral("INSERT INTO %1 (%2) VALUES (%3)").arg(table, names.join(u','), params.join(u','));
    updateSql_ = QStringLiteral("UPDATE %1 SET %2 WHERE rowid = %3").arg(table, sets.join(u','), last);
    deleteSql_ = QStringLiteral("DELETE FROM %1 WHERE rowid = ?1").arg(table);
    place_ = rowids_.empty() ? Place::After : Place::On;
    index_ = 0;
    deleted_ = false;
    visited_ = rowids_.empty() ? 0 : 1;
    noMatch_ = false;
    editing_ = Editing::None;
    cachedRowid_ = -1;
    while (fields_.size() < columns_.size())
        fields_.push_back(std::make_unique<SqliteField>(*this, static_cast<int>(fields_.size())));
}

SqliteConnection& SqliteRecordset::connection() const {
    if (!connection_ || !connection_->isOpen()) throw dataerrors::closed();
    return *connection_;
}

void SqliteRecordset::requireCurrent() const {
    if (rowids_.empty() && !deleted_) throw dataerrors::noCurrentRecord();
    if (place_ != Place::On) throw dataerrors::noCurrentRecord();
    if (deleted_) throw dataerrors::recordDeleted();
}

void SqliteRecordset::requireWritable() const {
    if (connection().readOnly()) throw dataerrors::readOnly();
}

void SqliteRecordset::arrive(int index) {
    place_ = Place::On;
    index_ = index;
    deleted_ = false;
    visited_ = std::max(visited_, index + 1);
}

std::int32_t SqliteRecordset::RecordCount() {
    connection();
    return std::min(visited_, size());
}

std::int32_t SqliteRecordset::AbsolutePosition() {
    connection();
    return place_ == Place::On && !deleted_ && index_ < size() ? index_ : -1;
}

bool SqliteRecordset::BOF() {
    connection();
    return rowids_.empty() || place_ == Place::Before;
}

bool SqliteRecordset::EOF_() {
    connection();
    return rowids_.empty() || place_ == Place::After;
}

void SqliteRecordset::MoveFirst() {
    connection();
    if (rowids_.empty()) throw dataerrors::noCurrentRecord();
    editing_ = Editing::None;
    arrive(0);
}

void SqliteRecordset::MoveLast() {
    connection();
    if (rowids_.empty()) throw dataerrors::noCurrentRecord();
    editing_ = Editing::None;
    arrive(size() - 1);
}

void SqliteRecordset::MoveNext() {
    connection();
    if (rowids_.empty() || place_ == Place::After) throw dataerrors::noCurrentRecord();
    editing_ = Editing::None;
    // After a Delete the record that followed the deleted one has taken its index.
    const int next = place_ == Place::Before ? 0 : deleted_ ? index_ : index_ + 1;
    if (next < size()) {
        arrive(next);
    } else {
        place_ = Place::After;
        deleted_ = false;
    }
}

void SqliteRecordset::MovePrevious() {
    connection();
    if (rowids_.empty() || place_ == Place::Before) throw dataerrors::noCurrentRecord();
    editing_ = Editing::None;
    const int previous = place_ == Place::After ? size() - 1 : index_ - 1;
    if (previous >= 0) {
        arrive(previous);
    } else {
        place_ = Place::Before;
        deleted_ = false;
    }
}

void SqliteRecordset::AddNew() {
    requireWritable();
    buffer_.assign(columns_.size(), QVariant());
    editing_ = Editing::New;
}

void SqliteRecordset::Edit() {
    requireWritable();
    requireCurrent();
    buffer_ = currentRow();
    editing_ = Editing::Current;
}

void SqliteRecordset::Update() {
    SqliteConnection& c = connection();
    if (editing_ == Editing::None) throw dataerrors::updateWithoutEdit();
    for (size_t i = 0; i < columns_.size(); ++i) checkWidth(static_cast<int>(i), buffer_[i]);
    const bool adding = editing_ == Editing::New;
    SqliteStatement& st = c.cached(adding ? insertSql_ : updateSql_);
    for (size_t i = 0; i < columns_.size(); ++i) st.bind(static_cast<int>(i) + 1, buffer_[i]);
    if (!adding) st.bind(static_cast<int>(columns_.size()) + 1, rowids_[index_]);
    st.run();
    if (adding) {
        rowids_.push_back(c.lastInsertRowid());
        ++visited_;
    } else if (c.changes() == 0) {
        editing_ = Editing::None;
        throw dataerrors::recordDeleted();  // someone else deleted it meanwhile
    }
    editing_ = Editing::None;
    cachedRowid_ = -1;
}

void SqliteRecordset::CancelUpdate() {
    connection();
    if (editing_ == Editing::None) throw dataerrors::updateWithoutEdit();
    editing_ = Editing::None;
}

void SqliteRecordset::Delete() {
    SqliteConnection& c = connection();
    requireWritable();
    requireCurrent();
    editing_ = Editing::None;
    SqliteStatement& st = c.cached(deleteSql_);
    st.bind(1, rowids_[index_]);
    st.run();
    rowids_.erase(rowids_.begin() + index_);
    deleted_ = true;
    visited_ = std::max(0, visited_ - 1);
    cachedRowid_ = -1;
}

void SqliteRecordset::FindFirst(const QString& criteria) {
    SqliteConnection& c = connection();
    const QString expression = translateCriteria(criteria);
    const std::vector<std::int64_t> hits = sorted(rowidsOf(
        c.prepare(QStringLiteral("SELECT rowid FROM %1 WHERE %2").arg(table_, expression), criteria)));
    editing_ = Editing::None;
    // The first hit in the view's own order, which may differ from the table's.
    for (int i = 0; i < size() && !hits.empty(); ++i) {
        if (std::binary_search(hits.begin(), hits.end(), rowids_[i])) {
            arrive(i);
            noMatch_ = false;
            return;
        }
    }
    visited_ = size();  // the whole view has been read
    noMatch_ = true;
}

bool SqliteRecordset::NoMatch() {
    connection();
    return noMatch_;
}

int SqliteRecordset::FieldCount() { return static_cast<int>(columns_.size()); }

Field& SqliteRecordset::Fields(int number) {
    column(number);
    return *fields_[number];
}

Field& SqliteRecordset::Fields(const QString& name) {
    for (size_t i = 0; i < columns_.size(); ++i)
        if (columns_[i].name.compare(name, Qt::CaseInsensitive) == 0) return *fields_[i];
    throw dataerrors::itemNotFound();
}

const ColumnInfo& SqliteRecordset::column(int number) const {
    if (number < 0 || number >= static_cast<int>(columns_.size())) throw dataerrors::itemNotFound();
    return columns_[number];
}

QVariant SqliteRecordset::fieldValue(int number) {
    connection();
    column(number);
    if (editing_ != Editing::None) return buffer_[number];
    requireCurrent();
    return currentRow()[number];
}

void SqliteRecordset::setFieldValue(int number, const QVariant& value) {
    connection();
    const ColumnInfo& info = column(number);
    if (editing_ == Editing::None) throw dataerrors::updateWithoutEdit();
    // A text column takes any value as its text, as numbers become text in the dialect.
    const QVariant stored = value.isNull() ? QVariant() : info.width > 0 ? QVariant(value.toString()) : value;
    checkWidth(number, stored);
    buffer_[number] = stored;
}

void SqliteRecordset::checkWidth(int number, const QVariant& value) const {
    const int width = columns_[number].width;
    if (width <= 0 || value.typeId() != QMetaType::QString) return;
    // Characters as SQLite's length() counts them, which the file's own width rule uses.
    int characters = 0;
    for (QChar c : value.toString()) characters += c.isLowSurrogate() ? 0 : 1;
    if (characters > width) throw dataerrors::fieldTooSmall();
}

const std::vector<QVariant>& SqliteRecordset::currentRow() {
    SqliteConnection& c = connection();
    const std::int64_t rowid = rowids_[index_];
    const std::int64_t changes = c.totalChanges();
    if (rowid != cachedRowid_ || changes != cachedChanges_) {
        SqliteStatement& st = c.cached(fetchSql_);
        st.bind(1, rowid);
        if (!st.step()) throw dataerrors::recordDeleted();  // gone from the table since the view was made
        std::vector<QVariant> row;
        for (size_t i = 0; i < columns_.size(); ++i) row.push_back(st.value(static_cast<int>(i)));
        st.reset();  // ends the read, so other programs may write
        cachedRow_ = std::move(row);
        cachedRowid_ = rowid;
        cachedChanges_ = changes;
    }
    return cachedRow_;
}

}  // namespace sonarium
