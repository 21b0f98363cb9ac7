#pragma once
// Turns statements of the Jet dialect, as the library builds them, into SQLite's. Every token
// is rebuilt, never copied: [Bracketed Names] and bare names become double-quoted identifiers,
// literals in double or single quotes become single-quoted SQLite literals, so the text of a
// literal can never become part of the statement. `Like` patterns keep the dialect's wildcards
// (* ? # [list]); the connection's own like() reads them. Text columns are created with a
// case-insensitive collation, as the dialect compares text without regard to case.
// Each function throws RuntimeError with the dialect's syntax error on what it can't read.
#include <QString>
#include <QStringList>

namespace sonarium {

// A record source reduced to what the record set needs to list its rows in order.
struct SelectQuery {
    QString table;        // as named in the source
    QStringList columns;  // empty: every column of the table
    QString where;        // an SQLite expression; empty for every row
    QString orderBy;      // SQLite order terms; empty for the table's own order
};

// A table name, or "Select * | names From table [Where ...] [Order By ...]".
SelectQuery translateRecordSource(const QString& source);

// A statement without a result (Delete, Insert, Update, Drop, Create Table, Create Index).
// One statement may need several in SQLite; they belong together and run as one.
QStringList translateStatement(const QString& statement);

// The criteria of a find: one expression.
QString translateCriteria(const QString& criteria);

QString sqlIdentifier(const QString& name);
QString sqlText(const QString& value);

}  // namespace sonarium
