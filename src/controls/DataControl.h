#pragma once
// The data control and its record set, with the behaviour the library relies on: RecordCount
// counts the records visited, AbsolutePosition is negative without a current record, Update
// fails on a duplicate or null key and on a value wider than its column. Statements are in the
// Jet dialect; every failure throws RuntimeError with the engine's text.
// Writing a value wider than its column fails at once and the field keeps what it had, so a
// scan that skips the failed write stores the record with that field empty (or, for the key,
// fails at Update on the null key).
#include <QString>
#include <QVariant>
#include <cstdint>
#include <memory>

namespace sonarium {

class Field {
public:
    virtual ~Field() = default;
    virtual QVariant Value() const = 0;
    virtual void setValue(const QVariant& v) = 0;  // into the edit buffer; needs AddNew or Edit
    virtual QString Name() const = 0;
    virtual int Size() const = 0;  // column width; 0 for a memo
};

class Recordset {
public:
    virtual ~Recordset() = default;
    virtual std::int32_t RecordCount() = 0;
    virtual std::int32_t AbsolutePosition() = 0;
    virtual bool BOF() = 0;
    virtual bool EOF_() = 0;
    virtual void MoveFirst() = 0;
    virtual void MoveLast() = 0;
    virtual void MoveNext() = 0;
    virtual void MovePrevious() = 0;
    virtual void AddNew() = 0;
    virtual void Edit() = 0;
    virtual void Update() = 0;
    virtual void CancelUpdate() = 0;
    virtual void Delete() = 0;
    virtual void FindFirst(const QString& criteria) = 0;
    virtual bool NoMatch() = 0;
    virtual int FieldCount() = 0;
    virtual Field& Fields(int number) = 0;
    virtual Field& Fields(const QString& name) = 0;
};

class Database {
public:
    virtual ~Database() = default;
    virtual void Execute(const QString& statement) = 0;
    virtual void Close() = 0;
    // What is written between BeginTrans and CommitTrans reaches the disk together at the
    // commit, one wait for the disk instead of one per record. A statement that fails inside
    // fails alone; the others stay. A commit that fails rolls everything back, so no
    // transaction is left open.
    virtual void BeginTrans() = 0;
    virtual void CommitTrans() = 0;
    virtual void Rollback() = 0;
};

class DataControl {
public:
    virtual ~DataControl() = default;
    virtual QString DatabaseName() const = 0;
    virtual void setDatabaseName(const QString& file) = 0;
    virtual QString Connect() const = 0;
    virtual void setConnect(const QString& connect) = 0;
    virtual QString RecordSource() const = 0;
    virtual void setRecordSource(const QString& source) = 0;
    // Reopens the record set from the three settings.
    virtual void Refresh() = 0;
    virtual Database& database() = 0;
    virtual Recordset& recordset() = 0;
    // Creates an empty database file; the result takes Execute.
    virtual std::unique_ptr<Database> CreateDatabase(const QString& file, const QString& locale) = 0;
};

}  // namespace sonarium
