#include "engine/data/SqliteDatabase.h"

#include "engine/data/DataErrors.h"
#include "engine/data/JetTranslator.h"

namespace sonarium {

SqliteConnection& SqliteDatabase::open() const {
    if (!connection_ || !connection_->isOpen()) throw dataerrors::closed();
    return *connection_;
}

void SqliteDatabase::Execute(const QString& statement) {
    open();
    const QStringList sql = translateStatement(statement);
    if (connection_->readOnly()) throw dataerrors::readOnly();
    if (sql.size() == 1) return connection_->execute(sql.front(), statement);
    connection_->execute(QStringLiteral("SAVEPOINT execute"));
    try {
        for (const QString& s : sql) connection_->execute(s, statement);
    } catch (...) {
        connection_->execute(QStringLiteral("ROLLBACK TO execute"));
        connection_->execute(QStringLiteral("RELEASE execute"));
        throw;
    }
    connection_->execute(QStringLiteral("RELEASE execute"));
}

// Transactions come in runs (a scan commits once per directory), so they go through the
// write-ahead log: a commit then costs no wait for the disk.
void SqliteDatabase::BeginTrans() {
    SqliteConnection& c = open();
    c.useWriteAheadLog();
    c.execute(QStringLiteral("BEGIN"));
}

void SqliteDatabase::CommitTrans() {
    SqliteConnection& c = open();
    try {
        c.execute(QStringLiteral("COMMIT"));
    } catch (...) {
        // The engine may have rolled back already, after a full disk; then there is nothing
        // left to roll back, and the commit's own error is the one to report.
        try {
            c.execute(QStringLiteral("ROLLBACK"));
        } catch (...) {
        }
        throw;
    }
}

void SqliteDatabase::Rollback() { open().execute(QStringLiteral("ROLLBACK")); }

void SqliteDatabase::Close() {
    if (connection_) connection_->close();
}

}  // namespace sonarium
