#pragma once
// A small in-memory stand-in for the data control: it keeps the three settings, records
// Refresh, Close, executed statements and created databases in the call log, and holds the
// SongData rows that the test seeds. It does not read SQL: the record set is every row in the
// order added, whatever the record source says. FindFirst understands only
// "Column = 'value'" (case-insensitive); other criteria throw.
//
// Kept from the real engine, because the library relies on it: RecordCount counts the rows
// visited (plus one per AddNew and Update), AbsolutePosition is -1 without a current row, and
// Update fails on a null or duplicate [Path\File] and on a value wider than its column.
#include <QVariantMap>
#include <memory>
#include <vector>

#include "CallLog.h"
#include "controls/DataControl.h"

namespace sonarium {

class FakeDataControl : public DataControl, public CallLog {
public:
    FakeDataControl();
    ~FakeDataControl() override;

    // --- Set-up (tests) ---
    // Adds a SongData row; columns by name, missing ones null.
    void addRecord(const QVariantMap& values);
    // While set, Refresh throws RuntimeError with this engine text ("" clears it).
    void setRefreshError(const QString& text) { refreshError_ = text; }

    // --- Looking in (tests) ---
    const std::vector<QVariantMap>& records() const;
    // The statements executed on any database, in order.
    QStringList statements() const;

    // --- DataControl ---
    QString DatabaseName() const override { return databaseName_; }
    void setDatabaseName(const QString& file) override;
    QString Connect() const override { return connect_; }
    void setConnect(const QString& connect) override;
    QString RecordSource() const override { return recordSource_; }
    void setRecordSource(const QString& source) override;
    void Refresh() override;
    Database& database() override;
    Recordset& recordset() override;
    std::unique_ptr<Database> CreateDatabase(const QString& file, const QString& locale) override;

private:
    class Records;
    class LoggingDatabase;
    friend class Records;
    friend class LoggingDatabase;

    // Empty at first: the starting properties are the form's to set, as for the real one.
    QString databaseName_, connect_, recordSource_;
    QString refreshError_;
    QStringList statements_;
    std::unique_ptr<Records> records_;
    std::unique_ptr<LoggingDatabase> database_;
};

}  // namespace sonarium
