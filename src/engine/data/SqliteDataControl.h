#pragma once
// The library's data control on an SQLite file. DatabaseName, Connect and RecordSource are
// plain settings until Refresh, which opens the file (when it is not the one open already)
// and the record source on it. A Refresh that fails leaves the control as it was, so a bad
// filter keeps the view it had. The record set and the database are the same objects for the
// control's whole life, so references to them stay valid across Refresh.
// The connect string and the locale of CreateDatabase are the old engine's affair (a password,
// a code page): text is stored as UTF-8 and compared without regard to case whatever they say.
#include "controls/DataControl.h"
#include "engine/data/SqliteDatabase.h"
#include "engine/data/SqliteRecordset.h"

namespace sonarium {

class SqliteDataControl : public DataControl {
public:
    SqliteDataControl();
    ~SqliteDataControl() override;

    QString DatabaseName() const override { return databaseName_; }
    void setDatabaseName(const QString& file) override { databaseName_ = file; }
    QString Connect() const override { return connect_; }
    void setConnect(const QString& connect) override { connect_ = connect; }
    QString RecordSource() const override { return recordSource_; }
    void setRecordSource(const QString& source) override { recordSource_ = source; }
    void Refresh() override;
    Database& database() override { return database_; }
    Recordset& recordset() override { return recordset_; }
    std::unique_ptr<Database> CreateDatabase(const QString& file, const QString& locale) override;

private:
    QString databaseName_, connect_, recordSource_;
    SqliteDatabase database_;
    SqliteRecordset recordset_;
};

}  // namespace sonarium
