#pragma once
// The record set over one table as the library has always seen it. Opening lists only the
// row ids of the view, in its order; a row's values are read when a field asks for them.
// - RecordCount counts the records visited so far (the first on opening, all after MoveLast);
//   it grows by one with each added record and drops by one with each deleted one.
// - An added record joins the end of the view; the current record stays where it was.
// - A deleted record stays current but unreadable until a move; MoveNext goes to the record
//   that followed it.
// - Writing a field needs AddNew or Edit first; a value wider than its column fails at once
//   and leaves the field as it was. Update checks again, and on a duplicate or null key it
//   fails with the database unchanged and the edit still pending. A move drops the edit.
// - FindFirst searches the view from its top; without a match the current record stays.
#include <QVariant>
#include <memory>
#include <vector>

#include "controls/DataControl.h"
#include "engine/data/JetTranslator.h"
#include "engine/data/SqliteConnection.h"

namespace sonarium {

class SqliteField;

class SqliteRecordset : public Recordset {
public:
    // Closed: every operation fails with "Object invalid or no longer set." until open().
    SqliteRecordset();
    ~SqliteRecordset() override;

    // (Re)opens on `query` (written as `source`, for messages). On failure the record set
    // stays as it was.
    void open(std::shared_ptr<SqliteConnection> connection, const SelectQuery& query, const QString& source);

    std::int32_t RecordCount() override;
    std::int32_t AbsolutePosition() override;
    bool BOF() override;
    bool EOF_() override;
    void MoveFirst() override;
    void MoveLast() override;
    void MoveNext() override;
    void MovePrevious() override;
    void AddNew() override;
    void Edit() override;
    void Update() override;
    void CancelUpdate() override;
    void Delete() override;
    void FindFirst(const QString& criteria) override;
    bool NoMatch() override;
    int FieldCount() override;
    Field& Fields(int number) override;
    Field& Fields(const QString& name) override;

    // What the fields ask for.
    const ColumnInfo& column(int number) const;
    QVariant fieldValue(int number);
    void setFieldValue(int number, const QVariant& value);

private:
    enum class Place { Before, On, After };
    enum class Editing { None, New, Current };

    SqliteConnection& connection() const;
    int size() const { return static_cast<int>(rowids_.size()); }
    void requireCurrent() const;
    void requireWritable() const;
    void arrive(int index);
    void checkWidth(int number, const QVariant& value) const;
    const std::vector<QVariant>& currentRow();

    std::shared_ptr<SqliteConnection> connection_;
    std::vector<ColumnInfo> columns_;
    std::vector<std::int64_t> rowids_;
    QString table_, fetchSql_, insertSql_, updateSql_, deleteSql_;

    Place place_ = Place::After;
    int index_ = 0;
    bool deleted_ = false;
    int visited_ = 0;
    bool noMatch_ = false;

    Editing editing_ = Editing::None;
    std::vector<QVariant> buffer_;

    std::int64_t cachedRowid_ = -1;
    std::int64_t cachedChanges_ = -1;
    std::vector<QVariant> cachedRow_;

    std::vector<std::unique_ptr<SqliteField>> fields_;  // only grows, so a Field& stays valid
};

}  // namespace sonarium
