#pragma once
// One prepared SQLite statement, owned: bind, step, read the columns of the row. Failures are
// turned into the library's numbered errors by the connection that made it.
#include <QString>
#include <QVariant>
#include <cstdint>

struct sqlite3_stmt;

namespace sonarium {

class SqliteConnection;

class SqliteStatement {
public:
    SqliteStatement(SqliteConnection& connection, sqlite3_stmt* statement, QString context);
    SqliteStatement(SqliteStatement&& other) noexcept;
    SqliteStatement& operator=(SqliteStatement&&) = delete;
    SqliteStatement(const SqliteStatement&) = delete;
    ~SqliteStatement();

    // Ready to run again, with no values bound.
    void reset();
    // Parameters count from 1. A null QVariant binds NULL; text binds as UTF-8.
    void bind(int index, const QVariant& value);
    void bind(int index, std::int64_t value);
    // True while there is a row to read; false when the statement has run to its end.
    bool step();
    // Runs to the end, ignoring any rows.
    void run();

    QVariant value(int column) const;
    std::int64_t integer(int column) const;

private:
    SqliteConnection& connection_;
    sqlite3_stmt* statement_;
    QString context_;  // the statement as the caller wrote it, for messages
};

}  // namespace sonarium
