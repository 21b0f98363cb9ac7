// The library's data control on real SQLite files made here: the translation of the statements
// the library builds, the dialect's Like, the record set's counting, moving, editing and
// finding, the library made by its own Create statements and read back by the sqlite3 tool,
// libraries on a read-only medium, and files that are not good databases, which must fail
// cleanly and stay as they were.
#include <gtest/gtest.h>

#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include "QtPrinters.h"
#include "TestComponents.h"
#include "engine/data/JetLikePattern.h"
#include "engine/data/JetTranslator.h"
#include "engine/data/SqliteDataControl.h"
#include "fixtures/ErrorNumber.h"
#include "fixtures/Files.h"
#include "fixtures/ReadOnlyFolder.h"
#include "fixtures/ToolRunner.h"
#include "shell/Program.h"

namespace sonarium {
namespace {

using fixtures::fileBytes;

QString sqliteTool(const QString& file, const QString& query) {
    QByteArray out;
    if (fixtures::runTool({"sqlite3", file, query}, 30, &out) != 0) return QStringLiteral("<failed>");
    return QString::fromUtf8(out).trimmed();
}

class DataControlTest : public ::testing::Test {
protected:
    // Each test starts on a new library, open on its song table.
    void SetUp() override {
        makeLibrary(library);
        open(library);
    }

    QString path(const QString& name) const { return dir.filePath(name); }

    // A library as the program makes it: its own statements through a data control of its own.
    void makeLibrary(const QString& file) {
        SqliteDataControl maker;
        TestComponents tc;
        Components c = tc.components(maker);
        Program(c).form1.MakeDatabase(file);
    }

    void open(const QString& file, const QString& source = "SongData") {
        data.setDatabaseName(file);
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

    // Every Update is a commit that waits for the disk; in memory, where there is a memory file
    // system, the tests don't measure the disk.
    QTemporaryDir dir{QFileInfo("/dev/shm").isWritable() ? "/dev/shm/sonarium-data-XXXXXX" : QString()};
    const QString library = path("SonariumData.mdb");
    SqliteDataControl data;
};

// How the library's statements become SQLite's is seen in what they find and refuse below;
// here, the text that is not one statement of the dialect and fails before SQLite sees it.
TEST(JetTranslation, TextOutsideTheDialectFailsWithItsOwnNumber) {
    // A quote inside a value is the Like test's and FindFirst's.
    const std::pair<QString, int> bad[] = {
        {"Select * From SongData Where [Artist Like \"x\"", 3126},
        {"Delete * From SongData; Drop Table SongData", 3142},
        {"Select * From SongData Group By Artist", 3131},
        {"Select * From SongData Where Year = `1`", 3075},
        {"Vacuum", 3129},
    };
    for (const auto& [jet, number] : bad) {
        const bool select = jet.startsWith("Select");
        EXPECT_EQ(errorOf([&] { select ? (void)translateRecordSource(jet) : (void)translateStatement(jet); }),
                  number)
            << jet.toStdString();
    }
    // Two minus signs stay two operators, never a comment that hides the rest.
    EXPECT_EQ(translateRecordSource("Select * From SongData Where Year > 1 --1 Order By Year").where,
              "\"Year\" > 1 - - 1");
}

TEST(JetLike, WildcardsListsCaseAndAccents) {
    struct Case {
        const char* pattern;
        const char* matches;
        const char* misses;  // or null
    };
    const Case cases[] = {
        {"*abc*", "xxABCyy", nullptr},
        {"a?c", "abc", "ac"},
        {"#5", "15", "x5"},
        {"[a-c]x", "Bx", nullptr},
        {"[!a-c]x", "dx", "bx"},
        {"x[]y", "xy", nullptr},
        {"[-a]", "-", nullptr},
        {"É*", "école", "emile"},  // case folds, accents stay
        {"1_%", "1_%", "1ab"},     // SQL's wildcards are plain characters
        {"", "", "a"},
        {"*a*b*c", "aXbXbXc", "aXbXbXd"},
    };
    for (const Case& c : cases) {
        const auto p = JetLikePattern::compile(c.pattern);
        ASSERT_TRUE(p.has_value()) << c.pattern;
        EXPECT_TRUE(p->matches(c.matches)) << c.pattern << " ~ " << c.matches;
        EXPECT_TRUE(!c.misses || !p->matches(c.misses)) << c.pattern << " !~ " << c.misses;
    }
    EXPECT_FALSE(JetLikePattern::compile("a[bc").has_value());
    const auto escaped = JetLikePattern::compile("a!*", U'!');  // like() with three arguments
    EXPECT_TRUE(escaped->matches("a*"));
    EXPECT_FALSE(escaped->matches("ab"));
}

// The Like above, in SQLite's hands; And before Or is the criteria unit test's matter
// (criteria_test.cpp), a view that stays on a broken statement the grid's (grid_test.cpp).
TEST_F(DataControlTest, LikeFiltersRowsTheDialectsWay) {
    int n = 0;
    for (const char* artist : {"Émile", "emile", "José", "O'Brien"})
        add(QString("/m/%1.mp3").arg(++n), artist);
    const std::pair<QString, QStringList> filters[] = {
        {"[Artist] Like \"*é*\"", {"Émile", "José"}},
        {"[Artist] Like \"*O'B*\"", {"O'Brien"}},
        {"[Album] Like \"\"", {}},  // nulls match nothing
    };
    for (const auto& [filter, artists] : filters) {
        open(library, "Select * From SongData Where " + filter + " Order By [Path\\File]");
        EXPECT_EQ(column("Artist"), artists) << filter.toStdString();
    }
    data.setRecordSource("Select * From SongData Where [Artist] Like \"Say \"Hi\"\" ");
    EXPECT_EQ(errorOf([&] { data.Refresh(); }), 3075);
    data.setRecordSource("Select * From SongData Where [Artist] Like \"[x\"");
    EXPECT_EQ(errorOf([&] { data.Refresh(); }), 93);
}

TEST_F(DataControlTest, RecordCountAndPositionsFollowTheVisitedRecords) {
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
    rs.MoveNext();
    EXPECT_EQ(rs.RecordCount(), 2);
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
    EXPECT_EQ(column("Artist"), QStringList({"a", "B", "c", "D"}));  // ordered without regard to case

    // Past the last field, by number or by name (the names and widths are the new library's).
    EXPECT_EQ(rs.FieldCount(), 17);
    EXPECT_EQ(errorOf([&] { rs.Fields(17); }), 3265);
    EXPECT_EQ(errorOf([&] { rs.Fields("Title"); }), 3265);
}

TEST_F(DataControlTest, EditingAddsChangesDeletesAndRefusesBadRecords) {
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
    EXPECT_EQ(errorOf([&] { rs.Fields("Path\\File").setValue("/" + QString(100, 'p')); }), 3163);
    EXPECT_TRUE(rs.Fields("Path\\File").Value().isNull());
    EXPECT_EQ(errorOf([&] { rs.Update(); }), 3058);  // so the key is null
    rs.Fields("Path\\File").setValue("/M/ONE.MP3");  // the key ignores case, as the scanner does
    EXPECT_EQ(errorOf([&] { rs.Update(); }), 3022);
    EXPECT_EQ(rs.RecordCount(), 1);
    EXPECT_EQ(sqliteTool(library, "select count(*) from SongData"), "2");  // nothing reached the file
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
    EXPECT_EQ(sqliteTool(library, "select \"Path\\File\" from SongData order by rowid"),
              "/m/two.mp3\n/m/three.mp3");

    // Deleting the last records leaves no current record and a count of 0.
    rs.Delete();
    rs.MoveNext();
    rs.Delete();
    EXPECT_EQ(rs.RecordCount(), 0);
    EXPECT_EQ(rs.AbsolutePosition(), -1);
    EXPECT_EQ(errorOf([&] { rs.MoveLast(); }), 3021);
}

TEST_F(DataControlTest, ATransactionCommitsItsRecordsTogether) {
    Database& db = data.database();
    db.BeginTrans();
    add("/m/a.mp3", "A");
    EXPECT_EQ(errorOf([&] { add("/m/a.mp3", "again"); }), 3022);  // fails alone
    data.recordset().CancelUpdate();
    add("/m/b.mp3", "B");
    EXPECT_EQ(sqliteTool(library, "select count(*) from SongData"), "0") << "nothing shows before the commit";
    db.CommitTrans();
    EXPECT_EQ(sqliteTool(library, "select group_concat(Artist) from SongData"), "A,B");
}

TEST_F(DataControlTest, LibrariesOnAReadOnlyMediumOpenForReading) {
    add("/m/1.mp3", "One");
    add("/m/2.mp3", "Two");
    // Left on the write-ahead log with no log beside it, as a copy closing while another had
    // it open leaves it, or a file copied alone.
    ASSERT_TRUE(QFile::copy(library, path("logged.mdb")));
    EXPECT_EQ(sqliteTool(path("logged.mdb"), "pragma journal_mode=wal"), "wal");
    // What a crash leaves: the last commit only in the log, and no index of the log.
    data.database().BeginTrans();
    add("/m/3.mp3", "Three");
    data.database().CommitTrans();
    ASSERT_TRUE(QFile::copy(library, path("crashed.mdb")) &&
                QFile::copy(library + "-wal", path("crashed.mdb-wal")));

    const QString report = fixtures::throughReadOnlyFolder(dir.path(), [&] {
        QString r;
        for (const char* name : {"logged", "crashed"}) {
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
    EXPECT_EQ(report, "logged 0 2 3027\ncrashed 3051\n");
}

TEST_F(DataControlTest, FindFirstSearchesTheViewFromItsTop) {
    add("/m/1.mp3", "Bob", "Zeta");
    add("/m/2.mp3", "Bobby", "Alpha");
    add("/m/3.mp3", "Ann", "Mid");
    open(library, "Select * From SongData Order By [Album] ");
    Recordset& rs = data.recordset();
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

TEST_F(DataControlTest, NewLibraryKeepsItsRulesAndTheToolReadsIt) {
    EXPECT_EQ(errorOf([&] { data.CreateDatabase(library, ""); }), 3204);  // never over an existing file

    open(path("Sonariumdata.mdb"));  // the starting name differs in case only
    add("/music/Song.mp3", "Ärzte");
    EXPECT_EQ(sqliteTool(library, "select Artist from SongData"), "Ärzte");
    // The key and width rules are the file's own: they hold for Execute and for the tool too.
    EXPECT_EQ(sqliteTool(library, "insert into SongData(\"Path\\File\", Year) values('/y', '12345')"),
              "<failed>");
    EXPECT_EQ(errorOf([&] {
                  data.database().Execute("Insert Into SongData ([Path\\File], Year) Values ('/y', 12345)");
              }),
              3163);

    EXPECT_EQ(errorOf([&] { data.database().Execute("Select * From SongData"); }), 3065);
    data.database().Close();
    EXPECT_EQ(errorOf([&] { data.recordset().MoveFirst(); }), 3420);
    data.database().Close();  // twice is harmless
    data.Refresh();
    EXPECT_EQ(data.recordset().Fields("Artist").Value().toString(), "Ärzte");

    // A library made anew over the one in use: Refresh opens the new file, not the old one.
    makeLibrary(library);
    data.Refresh();
    EXPECT_EQ(data.recordset().RecordCount(), 0);
}

TEST_F(DataControlTest, BadFilesFailCleanlyAndStayAsTheyWere) {
    for (int i = 0; i < 150; ++i) add(QString("/m/%1.mp3").arg(i), QString("Artist %1").arg(i), "Album");

    auto write = [&](const QString& name, const QByteArray& bytes) {
        EXPECT_TRUE(fixtures::writeFile(path(name), bytes));
        return path(name);
    };
    QByteArray scribbled = fileBytes(library);
    for (qsizetype i = 4096; i < 8192; ++i) scribbled[i] = char(0x5A);  // the table's first page

    struct BadFile {
        QString name, file;
        int number;
    };
    const BadFile files[] = {
        {"missing", path("missing.mdb"), 3024},
        {"text", write("notes.mdb", "These are my notes, not a database.\n"), 3343},
        {"empty, so without SongData", write("empty.mdb", ""), 3078},
        {"damaged page", write("damaged.mdb", scribbled), 3049},
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
}

}  // namespace
}  // namespace sonarium
