#include "engine/data/SqliteDatabase.h"

#include "engine/data/DataErrors.h"
#include "engine/data/JetTranslator.h"

namespace sonarium {

void SqliteDatabase::Execute(const QString& statement) {
    if (!connection_ || !connection_->isOpen()) throw dataerrors::closed();
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

void SqliteDatabase::Close() {
    if (connection_) connection_->close();
}

}  // namespace sonarium
