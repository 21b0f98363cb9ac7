#pragma once
// The data control as the shell sees it: it keeps the three settings and records them, Refresh,
// created databases and the calls to its own database (itself) in the call log. Its record set is empty,
// with no current record; the library's own tests use the real SQLite engine on temporary
// files instead of a second, imitated one.
#include <memory>

#include "CallLog.h"
#include "controls/DataControl.h"
#include "controls/Errors.h"

namespace sonarium {

class FakeDataControl : public DataControl, public Database, public CallLog {
public:
    QString DatabaseName() const override { return databaseName_; }
    void setDatabaseName(const QString& file) override { set("DatabaseName", databaseName_, file); }
    QString Connect() const override { return connect_; }
    void setConnect(const QString& connect) override { set("Connect", connect_, connect); }
    QString RecordSource() const override { return recordSource_; }
    void setRecordSource(const QString& source) override { set("RecordSource", recordSource_, source); }
    void Refresh() override { record("Refresh"); }
    Database& database() override { return *this; }
    Recordset& recordset() override { return records_; }
    std::unique_ptr<Database> CreateDatabase(const QString& file, const QString& locale) override {
        record("CreateDatabase", file, locale);
        return std::make_unique<FakeDataControl>();  // a fake of its own, whose log nobody reads
    }
    void Execute(const QString& statement) override { record("Execute", statement); }
    void Close() override { record("Close"); }
    void BeginTrans() override { record("BeginTrans"); }
    void CommitTrans() override { record("CommitTrans"); }
    void Rollback() override { record("Rollback"); }

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

    void set(const char* name, QString& property, const QString& value) {
        record(QLatin1String(name) + u'=' + value);
        property = value;
    }

    // Empty at first: the starting properties are the form's to set, as for the real one.
    QString databaseName_, connect_, recordSource_;
    EmptyRecords records_;
};

}  // namespace sonarium
