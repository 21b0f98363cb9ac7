#pragma once
// One open SQLite database file, shared by the data control's database and record set. It is
// opened read-only when the file or its folder can't be written (a file left on its
// write-ahead log too, as long as no log stands beside it), never created by an open, and
// nothing is written on opening. Other copies of the program may have the file open: SQLite's
// locks keep it whole, and a write that finds it busy waits two seconds, then fails. SQLite's
// failures come out as the library's numbered errors. Each connection has the dialect's like()
// and refuses double-quoted literals, so an unknown name is an error instead of a silent string.
#include <QString>
#include <cstdint>
#include <map>
#include <memory>
#include <utility>
#include <vector>

#include "engine/data/SqliteStatement.h"

struct sqlite3;

namespace sonarium {

struct ColumnInfo {
    QString name;
    int width = 0;  // characters; 0 for a column without a width (a memo)
};

class SqliteConnection {
public:
    // An existing database. Throws when the file is missing or is not a readable database.
    static std::shared_ptr<SqliteConnection> open(const QString& file);
    // A new, empty database file. Throws when the file exists already.
    static std::shared_ptr<SqliteConnection> create(const QString& file);
    ~SqliteConnection();
    SqliteConnection(const SqliteConnection&) = delete;
    SqliteConnection& operator=(const SqliteConnection&) = delete;

    const QString& path() const { return path_; }  // absolute
    // True when `file` names the very file this connection has open: the same path, and not a
    // new file made under that name since (a library created over the one in use).
    bool opened(const QString& file) const;
    bool isOpen() const { return db_ != nullptr; }
    bool readOnly() const { return readOnly_; }
    // Lets go of the file; every later use fails with "Object invalid or no longer set."
    // A file that was written through the write-ahead log goes back to its plain journal first
    // when this is the last connection to it, so that no log is left beside it and any reader,
    // read-only ones too, can open it.
    void close();
    // Before a run of transactions: commits go to a write-ahead log and don't each wait for the
    // disk, while a crash or power loss still leaves the file whole (it may lose the last
    // commits). Only for a file that is being written anyway, so opening never changes one.
    void useWriteAheadLog();

    // `context` is the statement as the caller wrote it, shown in syntax errors.
    SqliteStatement prepare(const QString& sql, const QString& context = {});
    // A statement kept for reuse, reset and unbound.
    SqliteStatement& cached(const QString& sql);
    void execute(const QString& sql, const QString& context = {});

    // The columns of `table` in their order; empty when there is no such table.
    std::vector<ColumnInfo> columns(const QString& table);
    std::int64_t lastInsertRowid() const;
    int changes() const;
    std::int64_t totalChanges() const;

    // Throws the library's error for SQLite's result `rc` and the connection's last message.
    [[noreturn]] void raise(int rc, const QString& context) const;

private:
    SqliteConnection(sqlite3* db, QString path, QString shownName, bool readOnly);
    // `name` is the file name or URI as SQLite takes it, `path` the absolute file.
    static std::shared_ptr<SqliteConnection> connect(const QByteArray& name, int flags, const QString& path,
                                                     const QString& shownName, bool readOnly);
    static std::pair<std::uint64_t, std::uint64_t> identity(const QString& path);
    sqlite3* handle() const;
    void configure();

    sqlite3* db_;
    QString path_;
    QString shownName_;  // as the caller named the file, for messages
    bool readOnly_;
    bool writeAheadLog_ = false;
    std::pair<std::uint64_t, std::uint64_t> identity_;  // device and inode when opened
    std::map<QString, std::unique_ptr<SqliteStatement>> cache_;
};

}  // namespace sonarium
