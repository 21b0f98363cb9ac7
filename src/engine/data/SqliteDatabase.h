#pragma once
// The database object of the data control, and the one CreateDatabase hands back: Execute
// runs one statement of the Jet dialect that has no result, Close lets go of the file.
#include <memory>

#include "controls/DataControl.h"
#include "engine/data/SqliteConnection.h"

namespace sonarium {

class SqliteDatabase : public Database {
public:
    SqliteDatabase() = default;  // closed until attached
    explicit SqliteDatabase(std::shared_ptr<SqliteConnection> connection)
        : connection_(std::move(connection)) {}

    void attach(std::shared_ptr<SqliteConnection> connection) { connection_ = std::move(connection); }
    const std::shared_ptr<SqliteConnection>& connection() const { return connection_; }

    // A statement that takes several in SQLite (an index with a key rule) runs as one: all of
    // it or, on failure, none of it.
    void Execute(const QString& statement) override;
    // Closing what is closed, or was never open, is harmless.
    void Close() override;
    void BeginTrans() override;
    void CommitTrans() override;
    void Rollback() override;

private:
    SqliteConnection& open() const;
    std::shared_ptr<SqliteConnection> connection_;
};

}  // namespace sonarium
