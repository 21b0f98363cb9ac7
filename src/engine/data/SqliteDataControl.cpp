#include "engine/data/SqliteDataControl.h"

#include "engine/data/JetTranslator.h"

namespace sonarium {

SqliteDataControl::SqliteDataControl() = default;
SqliteDataControl::~SqliteDataControl() = default;

void SqliteDataControl::Refresh() {
    std::shared_ptr<SqliteConnection> connection = database_.connection();
    if (!connection || !connection->opened(databaseName_)) connection = SqliteConnection::open(databaseName_);
    const SelectQuery query = translateRecordSource(recordSource_);
    recordset_.open(connection, query, recordSource_);
    database_.attach(std::move(connection));
}

std::unique_ptr<Database> SqliteDataControl::CreateDatabase(const QString& file, const QString&) {
    return std::make_unique<SqliteDatabase>(SqliteConnection::create(file));
}

}  // namespace sonarium
