#pragma once
// The data control as the shell sees it: it keeps the three settings, and its database (itself)
// takes every statement. Its record set is empty, with no current record; the library's own tests
// use the real SQLite engine on temporary files instead of a second, imitated one.
#include <memory>

#include "controls/DataControl.h"
#include "controls/Errors.h"

namespace sonarium {

class FakeDataControl : public DataControl, public Database {
public:
    QString DatabaseName() const override { return databaseName_; }
    void setDatabaseName(const QString& file) override { databaseName_ = file; }
    QString Connect() const override { return connect_; }
    void setConnect(const QString& connect) override { connect_ = connect; }
    QString RecordSource() const override { return recordSource_; }
    void setRecordSource(const QString& source) override { recordSource_ = source; }
    void Refresh() override {}
    Database& database() override { return *this; }
    Recordset& recordset() override { return records_; }
    std::unique_ptr<Database> CreateDatabase(const QString&, const QString&) override {
        return std::make_unique<FakeDataControl>();
    }
    void Execute(const QString&) override {}
    void Close() override {}
    void BeginTrans() override {}
    void CommitTrans() override {}
    void Rollback() override {}

private:
    // No rows: every move or field access fails as the engine does without a current record.
    class EmptyRecords : public Recordset {
    public:
        std::int32_t RecordCount() override { return 0; }
        std::int32_t AbsolutePosition() override { return -1; }
        bool BOF() override { return true; }
        bool EOF_() override { return true; }
        void MoveFirst() override { noRecord(); }
        void MoveLast() override { noRecord(); }
        void MoveNext() override { noRecord(); }
        void MovePrevious() override { noRecord(); }
        void AddNew() override { noRecord(); }
        void Edit() override { noRecord(); }
        void Update() override { noRecord(); }
        void CancelUpdate() override {}
        void Delete() override { noRecord(); }
        void FindFirst(const QString&) override {}
        bool NoMatch() override { return true; }
        int FieldCount() override { return 0; }
        Field& Fields(int) override { noField(); }
        Field& Fields(const QString&) override { noField(); }

    private:
        [[noreturn]] static void noRecord() {
            throw RuntimeError(3021, QStringLiteral("No current record."));
        }
        [[noreturn]] static void noField() {
            throw RuntimeError(3265, QStringLiteral("Item not found in this collection."));
        }
    };

    // Empty at first: the starting properties are the form's to set, as for the real one.
    QString databaseName_, connect_, recordSource_;
    EmptyRecords records_;
};

}  // namespace sonarium
