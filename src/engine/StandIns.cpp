#include "engine/StandIns.h"

#include <cstdio>

#include "controls/Errors.h"

namespace sonarium {

namespace {

void announce(const char* component) {
    std::fprintf(stderr, "sonarium: %s is not available in this build (stand-in)\n", component);
}

[[noreturn]] void noEngine() {
    throw RuntimeError(RuntimeError::ComponentFailed, QStringLiteral("No database engine yet"));
}

[[noreturn]] void noCurrentRecord() {
    throw RuntimeError(3021, QStringLiteral("No current record."));
}

class NoDatabase : public Database {
public:
    void Execute(const QString&) override { noEngine(); }
    void Close() override {}  // closing what was never open is harmless
};

class EmptyRecordset : public Recordset {
public:
    std::int32_t RecordCount() override { return 0; }
    std::int32_t AbsolutePosition() override { return -1; }
    bool BOF() override { return true; }
    bool EOF_() override { return true; }
    void MoveFirst() override { noCurrentRecord(); }
    void MoveLast() override { noCurrentRecord(); }
    void MoveNext() override { noCurrentRecord(); }
    void MovePrevious() override { noCurrentRecord(); }
    void AddNew() override { noEngine(); }
    void Edit() override { noCurrentRecord(); }
    void Update() override { noEngine(); }
    void CancelUpdate() override {}
    void Delete() override { noCurrentRecord(); }
    void FindFirst(const QString&) override { noEngine(); }
    bool NoMatch() override { return true; }
    int FieldCount() override { return 0; }
    Field& Fields(int) override { noEngine(); }
    Field& Fields(const QString&) override { noEngine(); }
};

}  // namespace

StandInEncoder::StandInEncoder() { announce("the MP3 encoder"); }
StandInCdReader::StandInCdReader() { announce("the CD reader"); }
StandInProcesses::StandInProcesses() { announce("starting outside programs"); }

StandInDataControl::StandInDataControl()
    : database_(std::make_unique<NoDatabase>()), recordset_(std::make_unique<EmptyRecordset>()) {
    announce("the database engine");
}

StandInDataControl::~StandInDataControl() = default;

void StandInDataControl::Refresh() { noEngine(); }
Database& StandInDataControl::database() { return *database_; }
Recordset& StandInDataControl::recordset() { return *recordset_; }
std::unique_ptr<Database> StandInDataControl::CreateDatabase(const QString&, const QString&) { noEngine(); }

}  // namespace sonarium
