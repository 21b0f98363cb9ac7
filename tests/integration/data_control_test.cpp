// The library's data control on real SQLite files made here: the translation of the statements
// the library builds, the dialect's Like, the record set's counting, moving, editing and
// finding, the library made by its own Create statements and read back by the sqlite3 tool,
// two copies of the program on one library, libraries on a read-only medium, and files that
// are not good databases, which must fail cleanly and stay as they were.
#include <gtest/gtest.h>
#include <sched.h>
#include <sys/mount.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <functional>

#include "QtPrinters.h"
#include "engine/data/JetLikePattern.h"
#include "engine/data/JetTranslator.h"
#include "engine/data/SqliteDataControl.h"
#include "fixtures/ErrorNumber.h"
#include "fixtures/Files.h"
#include "fixtures/LibraryStatements.h"
#include "fixtures/ToolRunner.h"

namespace sonarium {
namespace {

using fixtures::fileBytes;
using fixtures::libraryColumns;
using fixtures::libraryStatements;

QString sqliteTool(const QString& file, const QString& query) {
    QByteArray out;
    if (fixtures::runToolCapture({"sqlite3", file, query}, out) != 0) return QStringLiteral("<failed>");
    return QString::fromUtf8(out).trimmed();
}

class DataControlTest : public ::testing::Test {
protected:
    QString path(const QString& name) const { return dir.filePath(name); }

    QString makeLibrary(const QString& name = "SonariumData.mdb") {
        SqliteDataControl maker;
        auto db = maker.CreateDatabase(path(name), ";LANGID=0x0409;CP=1252;COUNTRY=0");
        for (const QString& s : libraryStatements()) db->Execute(s);
        return path(name);
    }

    void open(const QString& file, const QString& source = "SongData") {
        data.setDatabaseName(file);
        data.setConnect(";PWD=qvdnhzr;");
        data.setRecordSource(source);
        data.Refresh();
    }

    // A song with its key, artist and album; the other fields stay empty.
    void add(const QString& key, const QString& artist, const QString& album = {}) {
        Recordset& rs = data.recordset();
        rs.AddNew();
        rs.Fields("Path\\File").setValue(key);
        rs.Fields("Artist").setValue(artist);
        if (!album.isNull()) rs.Fields("Album").setValue(album);
        rs.Update();
    }

    QStringList column(const QString& name) {
        Recordset& rs = data.recordset();
        QStringList values;
        if (rs.RecordCount() == 0) return values;
        for (rs.MoveFirst(); !rs.EOF_(); rs.MoveNext()) values << rs.Fields(name).Value().toString();
        return values;
    }

    QStringList artistsWhere(const QString& filter) {
        data.setRecordSource("Select * From SongData Where " + filter + " Order By [Path\\File]");
        data.Refresh();
        return column("Artist");
    }

    // Every Update is a commit that waits for the disk; in memory, where there is a memory file
    // system, the tests don't measure the disk.
    QTemporaryDir dir{QFileInfo("/dev/shm").isWritable() ? "/dev/shm/sonarium-data-XXXXXX" : QString()};
    SqliteDataControl data;
};

TEST(JetTranslation, StatementShapesOfTheLibraryBecomeSqlite) {
    struct Source {
        QString jet, where, order;
    };
    const Source sources[] = {
        {"Select * From SongData", "", ""},
        {"Select * From SongData Order By [Album]", "", "\"Album\""},
        {"Select * From SongData Where [Artist] Like \"*abc*\" Order By [Album]", "\"Artist\" LIKE '*abc*'",
         "\"Album\""},
        // The criteria lines, joined: each ends in a blank, Not binds tighter than And, And than Or.
        {"Select * From SongData Where [Artist] Like (\"A\") Or [Album] Like (\"B\") And Not [Genre] Like "
         "(\"R\")  "
         "Order By [File]",
         "\"Artist\" LIKE ( 'A' ) OR \"Album\" LIKE ( 'B' ) AND NOT \"Genre\" LIKE ( 'R' )", "\"File\""},
        {"Select * From SongData Where [Key] Like \"it's\" Order By [Path\\File]", "\"Key\" LIKE 'it''s'",
         "\"Path\\File\""},
        {"Select * From SongData Where [Web Address] = \"say \"\"hi\"\"\";", "\"Web Address\" = 'say \"hi\"'",
         ""},
        // Two minus signs stay two operators, never a comment that hides the rest.
        {"Select * From SongData Where Year > 1 --1 Order By Year", "\"Year\" > 1 - - 1", "\"Year\""},
    };
    for (const Source& s : sources) {
        const SelectQuery q = translateRecordSource(s.jet);
        EXPECT_EQ(q.table, "SongData") << s.jet.toStdString();
        EXPECT_EQ(q.where, s.where) << s.jet.toStdString();
        EXPECT_EQ(q.orderBy, s.order) << s.jet.toStdString();
    }
    EXPECT_EQ(translateRecordSource("SongData").table, "SongData");
    EXPECT_EQ(translateCriteria("[Song Title] LIKE '*Love*'"), "\"Song Title\" LIKE '*Love*'");

    EXPECT_EQ(translateStatement("Delete * From SongData"), QStringList{"DELETE FROM \"SongData\""});
    EXPECT_EQ(translateStatement("Create Index NewIndex13 On SongData([Key]) With Ignore Null;"),
              QStringList{"CREATE INDEX \"NewIndex13\" ON \"SongData\" (\"Key\")"});
    const QStringList primary = translateStatement(libraryStatements().last());
    ASSERT_EQ(primary.size(), 3);  // the unique index and the two triggers that refuse a null key
    EXPECT_EQ(primary[0], "CREATE UNIQUE INDEX \"NewIndex17\" ON \"SongData\" (\"Path\\File\")");
    const QString table = translateStatement(libraryStatements().first()).front();
    EXPECT_TRUE(table.contains("\"Song Title\" TEXT(30) COLLATE NOCASE, \"Artist\" TEXT(30)"))
        << table.toStdString();
    EXPECT_TRUE(table.contains("\"Info\" TEXT COLLATE NOCASE, \"Path\\File\" TEXT(100) COLLATE NOCASE)"));

    // Text that is not one statement of the dialect fails before SQLite sees it.
    struct Bad {
        QString jet;
        int number;
    };
    const Bad bad[] = {
        {"Select * From SongData Where [Artist] Like \"O\"Brien\" ", 3075},  // a quote in a value
        {"[Artist] LIKE '*O'Brien*'", 3075},
        {"Select * From SongData Where [Artist Like \"x\"", 3126},
        {"Delete * From SongData; Drop Table SongData", 3142},
        {"Select * From SongData Group By Artist", 3131},
        {"Select * From SongData Where Year = `1`", 3075},
        {"Vacuum", 3129},
    };
    for (const Bad& b : bad) {
        const int n = errorOf([&] {
            if (b.jet.startsWith("["))
                translateCriteria(b.jet);
            else if (b.jet.startsWith("Select"))
                translateRecordSource(b.jet);
            else
                translateStatement(b.jet);
        });
        EXPECT_EQ(n, b.number) << b.jet.toStdString();
    }
}

TEST(JetLike, WildcardsListsCaseAndAccents) {
    struct Case {
        const char* pattern;
        const char* value;
        bool match;
    };
    const Case cases[] = {
        {"*abc*", "xxABCyy", true},
        {"a?c", "abc", true},
        {"a?c", "ac", false},
        {"#5", "15", true},
        {"#5", "x5", false},
        {"[a-c]x", "Bx", true},
        {"[!a-c]x", "bx", false},
        {"[!a-c]x", "dx", true},
        {"a[*]b", "a*b", true},
        {"a[*]b", "axb", false},
        {"x[]y", "xy", true},
        {"[-a]", "-", true},
        {"É*", "école", true},
        {"*É", "josé", true},
        {"e*", "école", false},
        {"*ÿ*", "ŸES", true},
        {"100%", "100%", true},
        {"_", "a", false},
        {"*", "", true},
        {"", "", true},
        {"", "a", false},
        {"*a*b*c", "aXbXbXc", true},
        {"*a*b*c", "aXbXbXd", false},
    };
    for (const Case& c : cases) {
        const auto p = JetLikePattern::compile(c.pattern);
        ASSERT_TRUE(p.has_value()) << c.pattern;
        EXPECT_EQ(p->matches(c.value), c.match) << c.pattern << " ~ " << c.value;
    }
    EXPECT_FALSE(JetLikePattern::compile("a[bc").has_value());
    const auto escaped = JetLikePattern::compile("a!*", U'!');  // like() with three arguments
    EXPECT_TRUE(escaped->matches("a*"));
    EXPECT_FALSE(escaped->matches("ab"));
}

TEST_F(DataControlTest, LikeFiltersRowsTheDialectsWay) {
    open(makeLibrary());
    add("/m/1.mp3", "Émile");
    add("/m/2.mp3", "emile");
    add("/m/3.mp3", "José");
    add("/m/4.mp3", "O'Brien");
    add("/m/5.mp3", "ABBA", "Gold");
    add("/m/6.mp3", "abba", "Arrival");

    EXPECT_EQ(artistsWhere("[Artist] Like \"*é*\""), QStringList({"Émile", "José"}));
    EXPECT_EQ(artistsWhere("[Artist] Like \"e*\""), QStringList({"emile"}));
    EXPECT_EQ(artistsWhere("[Artist] Like \"*O'B*\""), QStringList({"O'Brien"}));
    EXPECT_EQ(artistsWhere("[Artist] Like \"?bb?\""), QStringList({"ABBA", "abba"}));
    // And binds tighter than Or: the exclusion applies to the alternative just before it.
    EXPECT_EQ(artistsWhere(
                  "[Artist] Like (\"emile\") Or [Artist] Like (\"abba\") And Not [Album] Like (\"Gold\") "),
              QStringList({"emile", "abba"}));
    EXPECT_EQ(artistsWhere("[Album] Like \"\""), QStringList());  // nulls match nothing

    // A value with a double quote breaks the statement: the view stays as it was.
    const QStringList before = column("Artist");
    data.setRecordSource("Select * From SongData Where [Artist] Like \"Say \"Hi\"\" ");
    EXPECT_EQ(errorOf([&] { data.Refresh(); }), 3075);
    EXPECT_EQ(column("Artist"), before);
    data.setRecordSource("Select * From SongData Where [Artist] Like \"[x\"");
    EXPECT_EQ(errorOf([&] { data.Refresh(); }), 93);
}

TEST_F(DataControlTest, RecordCountAndPositionsFollowTheVisitedRecords) {
    open(makeLibrary());
    Recordset& rs = data.recordset();
    EXPECT_EQ(rs.RecordCount(), 0);
    EXPECT_TRUE(rs.BOF() && rs.EOF_());
    EXPECT_EQ(rs.AbsolutePosition(), -1);
    EXPECT_EQ(errorOf([&] { rs.MoveFirst(); }), 3021);
    EXPECT_EQ(errorOf([&] { rs.Fields("Artist").Value(); }), 3021);

    add("/m/c.mp3", "c");
    add("/m/a.mp3", "a");
    add("/m/B.mp3", "B");
    add("/m/d.mp3", "D");
    EXPECT_EQ(rs.RecordCount(), 4);  // each added record counts

    data.setRecordSource("Select * From SongData Order By [Artist]");
    data.Refresh();
    EXPECT_EQ(rs.RecordCount(), 1);
    EXPECT_EQ(rs.AbsolutePosition(), 0);
    EXPECT_FALSE(rs.BOF());
    rs.MoveNext();
    EXPECT_EQ(rs.RecordCount(), 2);
    EXPECT_EQ(rs.Fields(3).Value().toString(), "B");  // ordered without regard to case
    rs.MovePrevious();
    rs.MovePrevious();
    EXPECT_TRUE(rs.BOF());
    EXPECT_EQ(rs.AbsolutePosition(), -1);
    EXPECT_EQ(errorOf([&] { rs.MovePrevious(); }), 3021);
    rs.MoveNext();
    EXPECT_EQ(rs.Fields("artist").Value().toString(), "a");
    rs.MoveLast();
    EXPECT_EQ(rs.RecordCount(), 4);
    EXPECT_EQ(rs.AbsolutePosition(), 3);
    rs.MoveNext();
    EXPECT_TRUE(rs.EOF_());
    EXPECT_EQ(errorOf([&] { rs.MoveNext(); }), 3021);
    EXPECT_EQ(column("Artist"), QStringList({"a", "B", "c", "D"}));

    // Past the last field, by number or by name (the names and widths are the new library's).
    EXPECT_EQ(rs.FieldCount(), 17);
    EXPECT_EQ(errorOf([&] { rs.Fields(17); }), 3265);
    EXPECT_EQ(errorOf([&] { rs.Fields("Title"); }), 3265);
}

TEST_F(DataControlTest, EditingAddsChangesDeletesAndRefusesBadRecords) {
    const QString file = makeLibrary();
    open(file);
    Recordset& rs = data.recordset();
    add("/m/one.mp3", "One");
    add("/m/two.mp3", "Two");
    data.Refresh();

    EXPECT_EQ(errorOf([&] { rs.Fields("Artist").setValue("x"); }), 3020);  // no AddNew or Edit
    EXPECT_EQ(errorOf([&] { rs.Update(); }), 3020);

    rs.Edit();
    rs.Fields("Artist").setValue("Uno");
    EXPECT_EQ(rs.Fields("Artist").Value().toString(), "Uno");  // the edit buffer
    rs.CancelUpdate();
    EXPECT_EQ(rs.Fields("Artist").Value().toString(), "One");
    rs.Edit();
    rs.Fields("Year").setValue(1999);  // a number becomes text
    rs.Update();
    EXPECT_EQ(rs.Fields("Year").Value(), QVariant("1999"));

    // A value wider than its column fails at once and leaves the field as it was.
    rs.AddNew();
    EXPECT_EQ(errorOf([&] { rs.Fields("File").setValue(QString(51, 'f')); }), 3163);
    rs.Fields("File").setValue(QString(50, 'f'));
    EXPECT_EQ(errorOf([&] { rs.Fields("Path\\File").setValue("/" + QString(100, 'p')); }), 3163);
    EXPECT_TRUE(rs.Fields("Path\\File").Value().isNull());
    EXPECT_EQ(errorOf([&] { rs.Update(); }), 3058);  // so the key is null
    rs.Fields("Path\\File").setValue("/M/ONE.MP3");  // the key ignores case, as the scanner does
    EXPECT_EQ(errorOf([&] { rs.Update(); }), 3022);
    EXPECT_EQ(rs.RecordCount(), 1);
    EXPECT_EQ(sqliteTool(file, "select count(*) from SongData"), "2");  // nothing reached the file
    rs.Fields("Path\\File").setValue("/m/three.mp3");
    rs.Update();  // the same pending record, now good
    EXPECT_EQ(rs.RecordCount(), 2);
    EXPECT_EQ(rs.Fields("Artist").Value().toString(), "One");  // the current record stays

    // A deleted record stays current but unreadable; the next move goes to its follower.
    rs.Delete();
    EXPECT_EQ(rs.RecordCount(), 1);
    EXPECT_EQ(rs.AbsolutePosition(), -1);
    EXPECT_EQ(errorOf([&] { rs.Fields("Artist").Value(); }), 3167);
    rs.MoveNext();
    EXPECT_EQ(rs.Fields("Artist").Value().toString(), "Two");
    EXPECT_EQ(sqliteTool(file, "select \"Path\\File\" from SongData order by rowid"),
              "/m/two.mp3\n/m/three.mp3");

    // Deleting everything leaves no current record and a count of 0.
    data.database().Execute("Delete * From SongData");
    data.Refresh();
    EXPECT_EQ(rs.RecordCount(), 0);
    add("/m/only.mp3", "Only");
    rs.MoveFirst();
    rs.Delete();
    EXPECT_EQ(rs.RecordCount(), 0);
    EXPECT_EQ(rs.AbsolutePosition(), -1);
    EXPECT_EQ(errorOf([&] { rs.MoveLast(); }), 3021);
}

TEST_F(DataControlTest, TransactionsCommitTogetherAndLeaveNoLogBehind) {
    const QString file = makeLibrary();
    open(file);
    Database& db = data.database();
    db.BeginTrans();
    add("/m/a.mp3", "A");
    EXPECT_EQ(errorOf([&] { add("/m/a.mp3", "again"); }), 3022);  // fails alone
    data.recordset().CancelUpdate();
    add("/m/b.mp3", "B");
    EXPECT_EQ(sqliteTool(file, "select count(*) from SongData"), "0") << "nothing shows before the commit";
    db.CommitTrans();
    EXPECT_EQ(sqliteTool(file, "select group_concat(Artist) from SongData"), "A,B");

    db.BeginTrans();
    add("/m/c.mp3", "C");
    db.Rollback();
    EXPECT_EQ(sqliteTool(file, "select count(*) from SongData"), "2");
    EXPECT_NE(errorOf([&] { db.CommitTrans(); }), 0) << "no transaction is open";
    db.BeginTrans();  // and none was left open by the failed commit
    db.CommitTrans();

    // Closed, the file is back on its plain journal: no log beside it, and readers of any kind
    // find everything in the file itself.
    db.Close();
    EXPECT_FALSE(QFile::exists(file + "-wal"));
    EXPECT_EQ(sqliteTool(file, "pragma journal_mode"), "delete");
    EXPECT_EQ(sqliteTool(file, "select count(*) from SongData"), "2");
}

// A second copy of the program on the same library, here a second control in this process:
// SQLite's locks are the same between connections as between processes.
TEST_F(DataControlTest, TwoCopiesOnOneLibraryWaitForEachOtherAndLoseNothing) {
    const QString file = makeLibrary();
    open(file);
    add("/m/first.mp3", "First");
    SqliteDataControl other;
    other.setDatabaseName(file);
    other.setRecordSource("SongData");
    other.Refresh();
    EXPECT_EQ(other.recordset().Fields("Artist").Value().toString(), "First");

    // A scan here while the other copy has a record in view: its reading holds no lock.
    Database& db = data.database();
    db.BeginTrans();
    for (int i = 0; i < 50; ++i) add(QString("/m/%1.mp3").arg(i), "Scan");
    db.CommitTrans();
    EXPECT_TRUE(QFile::exists(file + "-wal") && QFile::exists(file + "-shm")) << "the log stays while in use";
    db.BeginTrans();
    add("/m/pending.mp3", "Pending");

    // While that transaction is open the other copy reads what was committed, and its write
    // waits a bounded time and then fails with a clear error, its edit still pending.
    other.Refresh();
    Recordset& rs = other.recordset();
    rs.MoveLast();
    EXPECT_EQ(rs.RecordCount(), 51);
    rs.AddNew();
    rs.Fields("Path\\File").setValue("/m/other.mp3");
    EXPECT_EQ(errorOf([&] { rs.Update(); }), 3260);
    db.CommitTrans();
    rs.Update();

    // Whichever closes last, here the one that wrote only outside the scan, takes the log away.
    data.database().Close();
    EXPECT_TRUE(QFile::exists(file + "-wal"));
    other.database().Close();
    EXPECT_FALSE(QFile::exists(file + "-wal") || QFile::exists(file + "-shm"));
    EXPECT_EQ(sqliteTool(file, "pragma journal_mode"), "delete");
    EXPECT_EQ(sqliteTool(file, "pragma integrity_check"), "ok");
    EXPECT_EQ(sqliteTool(file, "select count(*) from SongData"), "53");
}

// What `look` reports with `folder` seen through a read-only mount, as on a CD or a locked
// card, where not even root can write: in a child process with mount and user namespaces of
// its own. Without them, a user other than root gets a folder without write permission
// instead; root gets "no read-only folder".
QString throughReadOnlyFolder(const QString& folder, const std::function<QString()>& look) {
    int pipeEnds[2];
    if (pipe(pipeEnds) != 0) return {};
    const pid_t child = fork();
    if (child == 0) {
        alarm(30);  // a lock held by another thread at the fork must not hang the test
        const QByteArray at = QFile::encodeName(folder);
        const bool mounted =
            (unshare(CLONE_NEWUSER | CLONE_NEWNS) == 0 || unshare(CLONE_NEWNS) == 0) &&
            mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0 &&
            mount(at.constData(), at.constData(), nullptr, MS_BIND, nullptr) == 0 &&
            mount(nullptr, at.constData(), nullptr, MS_BIND | MS_REMOUNT | MS_RDONLY, nullptr) == 0;
        const bool locked = mounted || (geteuid() != 0 && chmod(at.constData(), 0555) == 0);
        const QByteArray report = locked ? look().toUtf8() : QByteArrayLiteral("no read-only folder");
        if (!mounted && locked) chmod(at.constData(), 0755);
        const ssize_t written = write(pipeEnds[1], report.constData(), size_t(report.size()));
        _exit(written == report.size() ? 0 : 1);
    }
    close(pipeEnds[1]);
    QByteArray report;
    char buffer[4096];
    for (ssize_t n; (n = read(pipeEnds[0], buffer, sizeof buffer)) > 0;) report.append(buffer, n);
    close(pipeEnds[0]);
    if (child > 0) waitpid(child, nullptr, 0);
    return QString::fromUtf8(report);
}

TEST_F(DataControlTest, LibrariesOnAReadOnlyMediumOpenForReading) {
    const QString live = makeLibrary("live.mdb");
    open(live);
    add("/m/1.mp3", "One");
    add("/m/2.mp3", "Two");
    ASSERT_TRUE(QFile::copy(live, path("clean.mdb")) && QFile::copy(live, path("logged.mdb")));
    // Left on the write-ahead log with no log beside it, as a copy closing while another had
    // it open leaves it, or a file copied alone.
    EXPECT_EQ(sqliteTool(path("logged.mdb"), "pragma journal_mode=wal"), "wal");
    // What a crash leaves: the last commit only in the log, with and without the log's index.
    data.database().BeginTrans();
    add("/m/3.mp3", "Three");
    data.database().CommitTrans();
    for (const QString name : {"crashed.mdb", "unindexed.mdb"})
        ASSERT_TRUE(QFile::copy(live, path(name)) && QFile::copy(live + "-wal", path(name) + "-wal"));
    ASSERT_TRUE(QFile::copy(live + "-shm", path("crashed.mdb-shm")));
    data.database().Close();
    ASSERT_TRUE(QFile::remove(live));

    const QString report = throughReadOnlyFolder(dir.path(), [&] {
        QString r;
        for (const char* name : {"clean", "logged", "crashed", "unindexed"}) {
            SqliteDataControl reader;
            reader.setDatabaseName(path(QString(name) + ".mdb"));
            reader.setRecordSource("SongData");
            const int opening = errorOf([&] { reader.Refresh(); });
            r += QString("%1 %2").arg(name).arg(opening);
            if (opening == 0) {
                reader.recordset().MoveLast();
                r += QString(" %1 %2").arg(reader.recordset().RecordCount()).arg(errorOf([&] {
                    reader.recordset().AddNew();
                }));
            }
            r += "\n";
        }
        return r;
    });
    if (report == "no read-only folder")
        GTEST_SKIP() << "running as root where no read-only mount can be made";
    // A log that can't be read is an error, not a library without its last commits.
    EXPECT_EQ(report, "clean 0 2 3027\nlogged 0 2 3027\ncrashed 0 3 3027\nunindexed 3051\n");
}

TEST_F(DataControlTest, FindFirstSearchesTheViewFromItsTop) {
    open(makeLibrary(), "Select * From SongData Order By [Album] ");
    Recordset& rs = data.recordset();
    add("/m/1.mp3", "Bob", "Zeta");
    add("/m/2.mp3", "Bobby", "Alpha");
    add("/m/3.mp3", "Ann", "Mid");
    data.Refresh();
    rs.MoveLast();

    rs.FindFirst("[Artist] LIKE '*bob*'");
    EXPECT_FALSE(rs.NoMatch());
    EXPECT_EQ(rs.Fields("Album").Value().toString(), "Alpha");  // first in the view's order
    EXPECT_EQ(rs.AbsolutePosition(), 0);

    rs.MoveNext();
    rs.FindFirst("[Artist] LIKE '*zed*'");
    EXPECT_TRUE(rs.NoMatch());
    EXPECT_EQ(rs.Fields("Album").Value().toString(), "Mid");  // no match: the record stays

    EXPECT_EQ(errorOf([&] { rs.FindFirst("[Artist] LIKE '*O'Brien*'"); }), 3075);
    EXPECT_EQ(errorOf([&] { rs.FindFirst("[Singer] LIKE '*'"); }), 3070);
}

TEST_F(DataControlTest, NewLibraryHasTheFieldsInOrderAndTheToolReadsIt) {
    const QString file = makeLibrary("SonariumData.mdb");
    EXPECT_EQ(errorOf([&] { data.CreateDatabase(file, ""); }), 3204);  // never over an existing file

    open(path("Sonariumdata.mdb"));  // the starting name differs in case only
    for (int i = 0; i < 17; ++i) {
        EXPECT_EQ(data.recordset().Fields(i).Name(), libraryColumns()[i].first);
        EXPECT_EQ(data.recordset().Fields(libraryColumns()[i].first).Size(), libraryColumns()[i].second);
    }
    add("/music/Song.mp3", "Ärzte");
    EXPECT_EQ(sqliteTool(file, "select count(*) from SongData"), "1");
    EXPECT_EQ(sqliteTool(file, "select Artist from SongData"), "Ärzte");
    // The key and width rules are the file's own: they hold for Execute and for the tool too.
    EXPECT_EQ(sqliteTool(file, "insert into SongData(Artist) values('x')"), "<failed>");
    EXPECT_EQ(sqliteTool(file, "insert into SongData(\"Path\\File\", Year) values('/y', '12345')"),
              "<failed>");
    EXPECT_EQ(errorOf([&] {
                  data.database().Execute("Insert Into SongData ([Path\\File], Year) Values ('/y', 12345)");
              }),
              3163);
    EXPECT_EQ(errorOf([&] { data.database().Execute("Update SongData Set [Path\\File] = Null"); }), 3058);
    data.database().Execute("Insert Into SongData ([Path\\File], [Key]) Values (\"/y\", 'C#')");
    EXPECT_EQ(sqliteTool(file, "select count(*) from SongData"), "2");

    EXPECT_EQ(errorOf([&] { data.database().Execute("Select * From SongData"); }), 3065);
    data.database().Close();
    EXPECT_EQ(errorOf([&] { data.recordset().MoveFirst(); }), 3420);
    data.database().Close();  // twice is harmless
    data.Refresh();
    data.recordset().MoveLast();
    EXPECT_EQ(data.recordset().RecordCount(), 2);

    // A library made anew over the one in use: Refresh opens the new file, not the old one.
    ASSERT_TRUE(QFile::remove(file));
    makeLibrary("SonariumData.mdb");
    data.Refresh();
    EXPECT_EQ(data.recordset().RecordCount(), 0);
}

TEST_F(DataControlTest, BadFilesFailCleanlyAndStayAsTheyWere) {
    const QString good = makeLibrary("good.mdb");
    open(good);
    for (int i = 0; i < 150; ++i) add(QString("/m/%1.mp3").arg(i), QString("Artist %1").arg(i), "Album");

    auto write = [&](const QString& name, const QByteArray& bytes) {
        EXPECT_TRUE(fixtures::writeFile(path(name), bytes));
        return path(name);
    };
    const QByteArray image = fileBytes(good);
    QByteArray scribbled = image;
    for (qsizetype i = 4096; i < 8192; ++i) scribbled[i] = char(0x5A);  // the table's first page
    SqliteDataControl maker;
    maker.CreateDatabase(path("other.mdb"), "")->Execute("Create Table Other (Name Text(10))");

    struct BadFile {
        QString name, file;
        int number;
    };
    const BadFile files[] = {
        {"missing", path("missing.mdb"), 3024},
        {"a folder", dir.path(), 3024},
        {"text", write("notes.mdb", "These are my notes, not a database.\n"), 3343},
        {"empty", write("empty.mdb", ""), 3078},
        {"no SongData", path("other.mdb"), 3078},
        {"damaged page", write("damaged.mdb", scribbled), 3049},
        {"truncated", write("truncated.mdb", image.left(image.size() / 2)), 3049},
    };
    for (const BadFile& f : files) {
        const QByteArray before = fileBytes(f.file);
        SqliteDataControl control;
        control.setDatabaseName(f.file);
        control.setRecordSource("Select * From SongData Order By [Artist]");
        const int number = errorOf([&] {
            control.Refresh();
            Recordset& rs = control.recordset();
            for (rs.MoveFirst(); !rs.EOF_(); rs.MoveNext()) rs.Fields("Album").Value();
        });
        EXPECT_EQ(number, f.number) << f.name.toStdString();
        EXPECT_EQ(fileBytes(f.file), before) << f.name.toStdString();
        EXPECT_FALSE(QFile::exists(f.file + "-journal")) << f.name.toStdString();
    }

    // A library marked read-only opens for reading and refuses every change.
    QFile::setPermissions(good, QFile::ReadOwner | QFile::ReadGroup | QFile::ReadOther);
    SqliteDataControl reader;
    reader.setDatabaseName(good);
    reader.setRecordSource("SongData");
    reader.Refresh();
    reader.recordset().MoveLast();
    EXPECT_EQ(reader.recordset().RecordCount(), 150);
    EXPECT_EQ(errorOf([&] { reader.recordset().AddNew(); }), 3027);
    EXPECT_EQ(errorOf([&] { reader.recordset().Delete(); }), 3027);
    EXPECT_EQ(errorOf([&] { reader.database().Execute("Delete * From SongData"); }), 3027);
    EXPECT_EQ(fileBytes(good), image);
    QFile::setPermissions(good, QFile::ReadOwner | QFile::WriteOwner);
}

}  // namespace
}  // namespace sonarium
