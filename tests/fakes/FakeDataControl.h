#pragma once
// The data control as the shell sees it: it keeps the three settings and records Refresh,
// Close, executed statements and created databases in the call log. Its record set is empty,
// with no current record; the library's own tests use the real SQLite engine on temporary
// files instead of a second, imitated one.
#include <memory>

#include "CallLog.h"
#include "controls/DataControl.h"

namespace sonarium {

class FakeDataControl : public DataControl, public CallLog {
public:
    FakeDataControl();
    ~FakeDataControl() override;

    // While set, Refresh throws RuntimeError with this engine text ("" clears it).
    void setRefreshError(const QString& text) { refreshError_ = text; }
    // The statements executed on any database, in order.
    QStringList statements() const { return statements_; }

    QString DatabaseName() const override { return databaseName_; }
    void setDatabaseName(const QString& file) override;
    QString Connect() const override { return connect_; }
    void setConnect(const QString& connect) override;
    QString RecordSource() const override { return recordSource_; }
    void setRecordSource(const QString& source) override;
    void Refresh() override;
    Database& database() override { return *database_; }
    Recordset& recordset() override { return *records_; }
    std::unique_ptr<Database> CreateDatabase(const QString& file, const QString& locale) override;

private:
    class LoggingDatabase;
    class EmptyRecords;

    // Empty at first: the starting properties are the form's to set, as for the real one.
    QString databaseName_, connect_, recordSource_;
    QString refreshError_;
    QStringList statements_;
    std::unique_ptr<Database> database_;
    std::unique_ptr<Recordset> records_;
};

}  // namespace sonarium
