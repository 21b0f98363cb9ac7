#include "engine/data/SqliteStatement.h"

#include <sqlite3.h>

#include "engine/data/SqliteConnection.h"

namespace sonarium {

SqliteStatement::SqliteStatement(SqliteConnection& connection, sqlite3_stmt* statement, QString context)
    : connection_(connection), statement_(statement), context_(std::move(context)) {}

SqliteStatement::SqliteStatement(SqliteStatement&& other) noexcept
    : connection_(other.connection_), statement_(other.statement_), context_(std::move(other.context_)) {
    other.statement_ = nullptr;
}

SqliteStatement::~SqliteStatement() { sqlite3_finalize(statement_); }

void SqliteStatement::reset() {
    sqlite3_reset(statement_);
    sqlite3_clear_bindings(statement_);
}

void SqliteStatement::bind(int index, const QVariant& value) {
    int rc = SQLITE_OK;
    if (value.isNull()) {
        rc = sqlite3_bind_null(statement_, index);
    } else if (value.typeId() == QMetaType::LongLong || value.typeId() == QMetaType::Int) {
        rc = sqlite3_bind_int64(statement_, index, value.toLongLong());
    } else if (value.typeId() == QMetaType::Double) {
        rc = sqlite3_bind_double(statement_, index, value.toDouble());
    } else {
        const QByteArray utf8 = value.toString().toUtf8();
        rc = sqlite3_bind_text(statement_, index, utf8.constData(), int(utf8.size()), SQLITE_TRANSIENT);
    }
    if (rc != SQLITE_OK) connection_.raise(rc, context_);
}

void SqliteStatement::bind(int index, std::int64_t value) {
    const int rc = sqlite3_bind_int64(statement_, index, value);
    if (rc != SQLITE_OK) connection_.raise(rc, context_);
}

bool SqliteStatement::step() {
    const int rc = sqlite3_step(statement_);
    if (rc == SQLITE_ROW) return true;
    if (rc == SQLITE_DONE) return false;
    sqlite3_reset(statement_);  // a failed write is rolled back before the error is reported
    connection_.raise(rc, context_);
}

void SqliteStatement::run() {
    while (step()) {
    }
}

QVariant SqliteStatement::value(int column) const {
    switch (sqlite3_column_type(statement_, column)) {
    case SQLITE_NULL: return {};
    case SQLITE_INTEGER: return QVariant::fromValue<qint64>(sqlite3_column_int64(statement_, column));
    case SQLITE_FLOAT: return sqlite3_column_double(statement_, column);
    case SQLITE_BLOB:
        return QByteArray(static_cast<const char*>(sqlite3_column_blob(statement_, column)),
                          sqlite3_column_bytes(statement_, column));
    default: {
        const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(statement_, column));
        return QString::fromUtf8(text, sqlite3_column_bytes(statement_, column));
    }
    }
}

std::int64_t SqliteStatement::integer(int column) const { return sqlite3_column_int64(statement_, column); }

}  // namespace sonarium
