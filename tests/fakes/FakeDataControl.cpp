#include "FakeDataControl.h"

#include "controls/Errors.h"

namespace sonarium {

class FakeDataControl::LoggingDatabase : public Database {
public:
    explicit LoggingDatabase(FakeDataControl& owner) : owner_(owner) {}
    void Execute(const QString& statement) override {
        owner_.record(QStringLiteral("Execute(%1)").arg(statement));
        owner_.statements_ << statement;
    }
    void Close() override { owner_.record(QStringLiteral("Close")); }
    void BeginTrans() override { owner_.record(QStringLiteral("BeginTrans")); }
    void CommitTrans() override { owner_.record(QStringLiteral("CommitTrans")); }
    void Rollback() override { owner_.record(QStringLiteral("Rollback")); }

private:
    FakeDataControl& owner_;
};

// No rows: every move or field access fails as the engine does without a current record.
class FakeDataControl::EmptyRecords : public Recordset {
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
    [[noreturn]] static void noRecord() { throw RuntimeError(3021, QStringLiteral("No current record.")); }
    [[noreturn]] static void noField() {
        throw RuntimeError(3265, QStringLiteral("Item not found in this collection."));
    }
};

FakeDataControl::FakeDataControl()
    : database_(std::make_unique<LoggingDatabase>(*this)), records_(std::make_unique<EmptyRecords>()) {}

FakeDataControl::~FakeDataControl() = default;

void FakeDataControl::setDatabaseName(const QString& file) {
    record(QStringLiteral("DatabaseName=%1").arg(file));
    databaseName_ = file;
}

void FakeDataControl::setConnect(const QString& connect) {
    record(QStringLiteral("Connect=%1").arg(connect));
    connect_ = connect;
}

void FakeDataControl::setRecordSource(const QString& source) {
    record(QStringLiteral("RecordSource=%1").arg(source));
    recordSource_ = source;
}

void FakeDataControl::Refresh() {
    record(QStringLiteral("Refresh"));
    if (!refreshError_.isEmpty()) throw RuntimeError(RuntimeError::ComponentFailed, refreshError_);
}

std::unique_ptr<Database> FakeDataControl::CreateDatabase(const QString& file, const QString& locale) {
    record(QStringLiteral("CreateDatabase(%1,%2)").arg(file, locale));
    return std::make_unique<LoggingDatabase>(*this);
}

}  // namespace sonarium
