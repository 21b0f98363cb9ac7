// The song library's data control on a large library, measured against the sqlite3 tool on
// the same file in the same run, so the result does not depend on the machine.
//
// A library is made with the program's own Create statements and filled with generated songs
// (one transaction, straight through SQLite: filling is not what is measured). Then, best of
// several interleaved rounds each, with a fresh control per round (so opening the file counts,
// as it does for the tool):
//   count   Refresh on "SongData", MoveLast, RecordCount        vs  select count(*)
//   order   ... Order By [Album], MoveLast, MoveFirst, a field   vs  select rowid ... order by Album
//   filter  ... Where [Artist] Like "*abc*" Order By [Album]     vs  the same with like '%abc%'
//   find    FindFirst("[Artist] LIKE '*zzz*'") on the ordered view, no match (a full search)
//   add     100 records by AddNew, four fields, Update  vs  100 inserts, each its own commit
//           (both wait for the disk once per record; this shows what one added song costs)
// Ratio = ours / the tool's; the goal is each of ours under 100 ms. The tool's start-up alone
// (`select 1`) is shown too, so its share of the tool's time is not mistaken for query work.
//
// Usage: bench_library [records] [rounds]
#include <sqlite3.h>

#include <QCoreApplication>
#include <QTemporaryDir>
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <functional>
#include <random>

#include "BenchClock.h"
#include "engine/data/SqliteDataControl.h"
#include "fixtures/ToolRunner.h"
#include "library/LibrarySchema.h"

using namespace sonarium;

namespace {

using bench::timeMs;

// Names of a plausible library: a few thousand artists, some with accents, some with "abc".
QString name(std::mt19937& rng, int syllables) {
    static const char* parts[] = {"ka", "lo", "mi", "ra", "ve", "to", "su",  "né", "bé", "da",
                                  "ri", "zo", "an", "el", "or", "us", "abc", "ïn", "pa", "go"};
    QString s;
    for (int i = 0; i < syllables; ++i) s += QString::fromUtf8(parts[rng() % 20]);
    s[0] = s[0].toUpper();
    return s;
}

void fill(const QString& file, int records) {
    sqlite3* db = nullptr;
    sqlite3_open(file.toUtf8().constData(), &db);
    // A throwaway file: no journal and no waiting for the disk while it is filled.
    sqlite3_exec(db, "PRAGMA journal_mode=OFF; PRAGMA synchronous=OFF; PRAGMA cache_size=-200000", nullptr,
                 nullptr, nullptr);
    sqlite3_exec(db, "BEGIN", nullptr, nullptr, nullptr);
    sqlite3_stmt* st = nullptr;
    sqlite3_prepare_v2(
        db,
        "INSERT INTO SongData (Path, File, \"Song Title\", Artist, Album, Genre, Duration, Year, "
        "\"Path\\File\") VALUES (?1, ?2, ?3, ?4, ?5, 'Rock', '03:45', '1999', ?6)",
        -1, &st, nullptr);
    std::mt19937 rng(7);
    std::vector<QString> artists, albums;
    for (int i = 0; i < 4000; ++i) artists.push_back(name(rng, 2 + rng() % 3) + " " + name(rng, 2));
    for (int i = 0; i < 12000; ++i) albums.push_back(name(rng, 3 + rng() % 3));
    for (int i = 0; i < records; ++i) {
        const QString artist = artists[rng() % artists.size()];
        const QString album = albums[rng() % albums.size()];
        const QString title = name(rng, 3 + rng() % 4);
        const QString path = "/home/user/Music/" + artist.left(20) + "/" + album.left(20);
        const QString fileName = QString("%1 %2").arg(i % 20 + 1, 2, 10, QChar('0')).arg(title);
        const QString values[] = {
            path,           fileName,
            title.left(30), artist.left(30),
            album.left(30), QString("%1/%2 %3.mp3").arg(path.left(60)).arg(i).arg(title.left(25))};
        std::vector<QByteArray> utf8;
        for (const QString& v : values) utf8.push_back(v.toUtf8());
        for (int k = 0; k < 6; ++k) sqlite3_bind_text(st, k + 1, utf8[k].constData(), -1, SQLITE_TRANSIENT);
        if (sqlite3_step(st) != SQLITE_DONE) std::fprintf(stderr, "insert failed: %s\n", sqlite3_errmsg(db));
        sqlite3_reset(st);
    }
    sqlite3_finalize(st);
    sqlite3_exec(db, "COMMIT", nullptr, nullptr, nullptr);
    sqlite3_close(db);
}

struct Task {
    const char* label;
    std::function<void()> ours;
    QString toolQuery;  // empty: the tool runs its own inserts (see toolInserts)
};

}  // namespace

int main(int argc, char** argv) {
    QCoreApplication app(argc, argv);
    const int records = argc > 1 ? std::atoi(argv[1]) : 100000;
    const int rounds = argc > 2 ? std::atoi(argv[2]) : 7;
    QTemporaryDir dir;
    const QString file = dir.filePath("SonariumData.mdb");
    {
        SqliteDataControl maker;
        auto db = maker.CreateDatabase(file, ";LANGID=0x0409;CP=1252;COUNTRY=0");
        for (const QString& s : libraryStatements()) db->Execute(s);
    }
    std::printf("filling %d records: %.0f ms\n", records, timeMs([&] { fill(file, records); }));

    int counted = 0, ordered = 0, filtered = 0, added = 0, toolAdded = 0;
    // The tool's counterpart of "add 100": autocommit inserts, one commit each.
    auto toolInserts = [&] {
        QString sql;
        for (int i = 0; i < 100; ++i)
            sql += QString(
                       "insert into SongData(\"Path\\File\", Path, File, Artist) values "
                       "('/new/tool %1.mp3', '/new', 'tool %1', 'Someone');")
                       .arg(++toolAdded);
        return sql;
    };
    auto view = [&](const QString& source, int& total) {
        SqliteDataControl data;
        data.setDatabaseName(file);
        data.setRecordSource(source);
        data.Refresh();
        Recordset& rs = data.recordset();
        if (rs.RecordCount() > 0) {  // what the grid does after every open
            rs.MoveLast();
            total = rs.RecordCount();
            rs.MoveFirst();
            rs.Fields("Album").Value();
        }
    };
    const Task tasks[] = {
        {"count", [&] { view("SongData", counted); }, "select count(*) from SongData"},
        {"order", [&] { view("Select * From SongData Order By [Album]", ordered); },
         "select rowid from SongData order by Album"},
        {"filter",
         [&] { view("Select * From SongData Where [Artist] Like \"*abc*\" Order By [Album]", filtered); },
         "select rowid from SongData where Artist like '%abc%' order by Album"},
        {"find",
         [&] {
             SqliteDataControl data;
             data.setDatabaseName(file);
             data.setRecordSource("Select * From SongData Order By [Album]");
             data.Refresh();
             data.recordset().FindFirst("[Artist] LIKE '*zzz*'");
         },
         "select rowid from SongData where Artist like '%zzz%'"},
        {"add 100",
         [&] {
             SqliteDataControl data;
             data.setDatabaseName(file);
             data.setRecordSource("SongData");
             data.Refresh();
             Recordset& rs = data.recordset();
             for (int i = 0; i < 100; ++i) {
                 rs.AddNew();
                 rs.Fields("Path\\File").setValue(QString("/new/ours %1.mp3").arg(++added));
                 rs.Fields("Path").setValue("/new");
                 rs.Fields("File").setValue(QString("ours %1").arg(added));
                 rs.Fields("Artist").setValue("Someone");
                 rs.Update();
             }
         },
         {}},
        {"tool start-up", nullptr, "select 1"},
    };

    std::printf("%-14s %10s %10s %8s\n", "task", "ours ms", "tool ms", "ratio");
    for (const Task& t : tasks) {
        double ours = 1e9, tool = 1e9;
        for (int r = 0; r < rounds; ++r) {
            if (t.ours) ours = std::min(ours, timeMs(t.ours));
            const QString query = t.toolQuery.isEmpty() ? toolInserts() : t.toolQuery;
            tool = std::min(tool, timeMs([&] { fixtures::runTool({"sqlite3", file, query}, 60); }));
        }
        if (t.ours && t.toolQuery.isEmpty())
            std::printf("%-14s %10.1f %10.1f %8.2f (%.1f ms a record)\n", t.label, ours, tool, ours / tool,
                        ours / 100);
        else if (t.ours)
            std::printf("%-14s %10.1f %10.1f %8.2f %s\n", t.label, ours, tool, ours / tool,
                        ours < 100 ? "(goal < 100 ms: met)" : "(goal < 100 ms: MISSED)");
        else
            std::printf("%-14s %10s %10.1f\n", t.label, "-", tool);
    }
    std::printf("rows: %d in all, %d ordered, %d filtered\n", counted, ordered, filtered);
    return 0;
}
