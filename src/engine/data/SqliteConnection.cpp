#include "engine/data/SqliteConnection.h"

#include <sqlite3.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QUrl>

#include "controls/FileNames.h"
#include "engine/data/DataErrors.h"
#include "engine/data/JetLikePattern.h"

namespace sonarium {

namespace {

// like(pattern, value[, escape]) with the dialect's wildcards. The compiled pattern is kept
// with the statement while the pattern argument stays the same, so a filter compiles it once.
void likeFunction(sqlite3_context* ctx, int argc, sqlite3_value** argv) {
    for (int i = 0; i < argc; ++i) {
        if (sqlite3_value_type(argv[i]) == SQLITE_NULL) return sqlite3_result_null(ctx);
    }
    char32_t escape = 0;
    if (argc == 3) {
        const QString e = QString::fromUtf8(reinterpret_cast<const char*>(sqlite3_value_text(argv[2])));
        if (e.toUcs4().size() != 1) return sqlite3_result_error(ctx, "ESCAPE must be a single character", -1);
        escape = e.toUcs4().front();
    }
    auto* pattern = static_cast<JetLikePattern*>(sqlite3_get_auxdata(ctx, 0));
    if (!pattern || pattern->escape() != escape) {
        const auto* text = reinterpret_cast<const char*>(sqlite3_value_text(argv[0]));
        auto compiled = JetLikePattern::compile({text, size_t(sqlite3_value_bytes(argv[0]))}, escape);
        if (!compiled) return sqlite3_result_error(ctx, dataerrors::kInvalidPatternText, -1);
        sqlite3_set_auxdata(ctx, 0, new JetLikePattern(std::move(*compiled)),
                            [](void* p) { delete static_cast<JetLikePattern*>(p); });
        pattern = static_cast<JetLikePattern*>(sqlite3_get_auxdata(ctx, 0));
        if (!pattern) return sqlite3_result_error_nomem(ctx);
    }
    const auto* value = reinterpret_cast<const char*>(sqlite3_value_text(argv[1]));
    sqlite3_result_int(ctx, pattern->matches({value, size_t(sqlite3_value_bytes(argv[1]))}) ? 1 : 0);
}

QByteArray encoded(const QString& path) { return QFile::encodeName(path); }

// The width in a declared type such as "TEXT(80)"; 0 when it has none.
int widthOf(const QString& type) {
    static const QRegularExpression width(QStringLiteral("\\(\\s*(\\d+)\\s*\\)"));
    const auto m = width.match(type);
    return m.hasMatch() ? m.captured(1).toInt() : 0;
}

QString after(const QString& message, const QString& prefix) { return message.mid(prefix.size()); }

}  // namespace

SqliteConnection::SqliteConnection(sqlite3* db, QString path, QString shownName, bool readOnly)
    : db_(db),
      path_(std::move(path)),
      shownName_(std::move(shownName)),
      readOnly_(readOnly),
      identity_(identity(path_)) {}

std::pair<std::uint64_t, std::uint64_t> SqliteConnection::identity(const QString& path) {
    struct stat st {};
    if (::stat(encoded(path).constData(), &st) != 0) return {0, 0};
    return {std::uint64_t(st.st_dev), std::uint64_t(st.st_ino)};
}

bool SqliteConnection::opened(const QString& file) const {
    if (!db_ || file.isEmpty()) return false;
    const QString path = QFileInfo(resolveFileName(file)).absoluteFilePath();
    return path == path_ && identity(path) == identity_;
}

SqliteConnection::~SqliteConnection() { close(); }

std::shared_ptr<SqliteConnection> SqliteConnection::connect(const QByteArray& name, int flags,
                                                            const QString& path, const QString& shownName,
                                                            bool readOnly) {
    sqlite3* db = nullptr;
    const int rc = sqlite3_open_v2(name.constData(), &db, flags, nullptr);
    std::shared_ptr<SqliteConnection> c(new SqliteConnection(db, path, shownName, readOnly));
    if (rc != SQLITE_OK) c->raise(rc, {});
    c->configure();
    return c;
}

std::shared_ptr<SqliteConnection> SqliteConnection::open(const QString& file) {
    const QFileInfo info(file.isEmpty() ? QString() : resolveFileName(file));
    if (file.isEmpty() || !info.exists() || info.isDir()) throw dataerrors::fileNotFound(file);
    const QString path = info.absoluteFilePath();
    // A file marked read-only stays unchanged even for a user who could write it anyway. SQLite
    // writes a journal beside the file, so a folder that can't be written makes the database
    // read-only as surely as the file's own permissions.
    const auto writeBits = QFile::WriteOwner | QFile::WriteGroup | QFile::WriteOther;
    const bool writable = (info.permissions() & writeBits) &&
                          ::access(encoded(path).constData(), W_OK) == 0 &&
                          ::access(encoded(info.absolutePath()).constData(), W_OK) == 0;
    auto c = connect(encoded(path), writable ? SQLITE_OPEN_READWRITE : SQLITE_OPEN_READONLY, path, file,
                     !writable);
    // The first read of the file: it tells a database from anything else, and a damaged
    // first page from a good one.
    const QString firstRead = QStringLiteral("SELECT count(*) FROM sqlite_master");
    try {
        c->execute(firstRead);
    } catch (const RuntimeError&) {
        // A file left on its write-ahead log (by a copy of the program that closed while
        // another had it open, or copied alone) can't be read where the log's index can't be
        // made beside it: a read-only medium or folder (SQLite says it can't open the file, or
        // that it is read-only). With no log there the file holds every commit, so it is read
        // as it stands. A log that is there but can't be read is not passed over: that would
        // hide its last commits without a word.
        const QFileInfo log(path + QStringLiteral("-wal"));
        const int rc = sqlite3_errcode(c->db_) & 0xFF;
        if (writable || (rc != SQLITE_CANTOPEN && rc != SQLITE_READONLY) || log.size() > 0) throw;
        c = connect(QUrl::fromLocalFile(path).toEncoded() + "?immutable=1",
                    SQLITE_OPEN_READONLY | SQLITE_OPEN_URI, path, file, true);
        c->execute(firstRead);
    }
    return c;
}

std::shared_ptr<SqliteConnection> SqliteConnection::create(const QString& file) {
    if (file.isEmpty()) throw dataerrors::cannotOpen(file, QStringLiteral("no file name"));
    if (QFileInfo::exists(resolveFileName(file))) throw dataerrors::alreadyExists(file);
    const QString path = QFileInfo(file).absoluteFilePath();
    auto c = connect(encoded(path), SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE, path, file, false);
    // The library is written a record or a directory at a time, and each record touches a page
    // of every one of its sixteen indexes; small pages make each commit write a quarter as
    // much. Reading 100,000 records stays far inside its time at this size.
    c->execute(QStringLiteral("PRAGMA page_size=1024"));
    return c;
}

void SqliteConnection::configure() {
    sqlite3_extended_result_codes(db_, 1);
    sqlite3_db_config(db_, SQLITE_DBCONFIG_DQS_DML, 0, nullptr);
    sqlite3_db_config(db_, SQLITE_DBCONFIG_DQS_DDL, 0, nullptr);
    sqlite3_db_config(db_, SQLITE_DBCONFIG_DEFENSIVE, 1, nullptr);  // no statement can damage the file
    sqlite3_busy_timeout(db_, 2000);
    for (int args : {2, 3})
        sqlite3_create_function_v2(db_, "like", args, SQLITE_UTF8 | SQLITE_DETERMINISTIC, nullptr,
                                   likeFunction, nullptr, nullptr, nullptr);
}

void SqliteConnection::useWriteAheadLog() {
    if (writeAheadLog_ || readOnly_ || !db_) return;
    // Where the log can't be made, the plain journal goes on working, only slower.
    writeAheadLog_ = sqlite3_exec(db_, "PRAGMA journal_mode=WAL; PRAGMA synchronous=NORMAL", nullptr, nullptr,
                                  nullptr) == SQLITE_OK;
}

void SqliteConnection::close() {
    cache_.clear();
    // The change needs the file to itself: while another copy of the program has it open it
    // fails at once, and the log stays for that copy, which makes the change when it closes,
    // even if it only read.
    if (db_ && !readOnly_) sqlite3_exec(db_, "PRAGMA journal_mode=DELETE", nullptr, nullptr, nullptr);
    writeAheadLog_ = false;
    if (db_) sqlite3_close_v2(db_);
    db_ = nullptr;
}

sqlite3* SqliteConnection::handle() const {
    if (!db_) throw dataerrors::closed();
    return db_;
}

SqliteStatement SqliteConnection::prepare(const QString& sql, const QString& context) {
    const QByteArray utf8 = sql.toUtf8();
    sqlite3_stmt* stmt = nullptr;
    const char* tail = nullptr;
    const int rc = sqlite3_prepare_v2(handle(), utf8.constData(), int(utf8.size()), &stmt, &tail);
    SqliteStatement statement(*this, stmt, context.isEmpty() ? sql : context);
    if (rc != SQLITE_OK) raise(rc, context.isEmpty() ? sql : context);
    // One statement only: whatever the text holds after it is refused, never run.
    const QByteArray rest = tail ? utf8.mid(tail - utf8.constData()) : QByteArray();
    if (!stmt || !rest.trimmed().isEmpty()) throw dataerrors::textAfterEnd();
    return statement;
}

SqliteStatement& SqliteConnection::cached(const QString& sql) {
    auto it = cache_.find(sql);
    if (it == cache_.end()) it = cache_.emplace(sql, std::make_unique<SqliteStatement>(prepare(sql))).first;
    it->second->reset();
    return *it->second;
}

void SqliteConnection::execute(const QString& sql, const QString& context) { prepare(sql, context).run(); }

std::vector<ColumnInfo> SqliteConnection::columns(const QString& table) {
    std::vector<ColumnInfo> result;
    SqliteStatement st = prepare(QStringLiteral("SELECT name, type FROM pragma_table_info(?1)"));
    st.bind(1, QVariant(table));
    while (st.step()) result.push_back({st.value(0).toString(), widthOf(st.value(1).toString())});
    return result;
}

std::int64_t SqliteConnection::lastInsertRowid() const { return sqlite3_last_insert_rowid(handle()); }
int SqliteConnection::changes() const { return sqlite3_changes(handle()); }
std::int64_t SqliteConnection::totalChanges() const { return sqlite3_total_changes64(handle()); }

void SqliteConnection::raise(int rc, const QString& context) const {
    const int extended = db_ ? sqlite3_extended_errcode(db_) : rc;
    const QString message = QString::fromUtf8(db_ ? sqlite3_errmsg(db_) : sqlite3_errstr(rc));
    switch (rc & 0xFF) {
    case SQLITE_NOTADB: throw dataerrors::notADatabase(shownName_);
    case SQLITE_CORRUPT: throw dataerrors::damaged(shownName_);
    case SQLITE_READONLY: throw dataerrors::readOnly();
    case SQLITE_BUSY:
    case SQLITE_LOCKED: throw dataerrors::locked();
    case SQLITE_FULL: throw dataerrors::diskFull();
    case SQLITE_CANTOPEN: throw dataerrors::cannotOpen(shownName_, message);
    case SQLITE_CONSTRAINT:
        if (extended == SQLITE_CONSTRAINT_UNIQUE || extended == SQLITE_CONSTRAINT_PRIMARYKEY)
            throw dataerrors::duplicateKey();
        if (extended == SQLITE_CONSTRAINT_NOTNULL || message == QLatin1String(dataerrors::kNullKeyText))
            throw dataerrors::nullKey();
        if (message == QLatin1String(dataerrors::kFieldTooSmallText)) throw dataerrors::fieldTooSmall();
        throw dataerrors::engine(message);
    default: break;
    }
    if (message.startsWith(QLatin1String("no such table: ")))
        throw dataerrors::noSuchTable(after(message, QStringLiteral("no such table: ")));
    if (message.startsWith(QLatin1String("no such column: ")))
        throw dataerrors::unknownField(after(message, QStringLiteral("no such column: ")));
    if (message.startsWith(QLatin1String("no such function: ")))
        throw dataerrors::undefinedFunction(after(message, QStringLiteral("no such function: ")));
    if (message == QLatin1String(dataerrors::kInvalidPatternText)) throw dataerrors::invalidPattern();
    if (message.contains(QLatin1String("syntax error")) ||
        message.contains(QLatin1String("incomplete input")) ||
        message.contains(QLatin1String("unrecognized token")))
        throw dataerrors::syntax(context);
    throw dataerrors::engine(message);
}

}  // namespace sonarium
