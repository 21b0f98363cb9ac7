// The library scanner and the manual add, on the real library in a temporary directory: the
// walk's order, what a new file's record holds, the count and its message, a filter in force,
// a cancel, the 16-bit limit of the record loops, the manual update, and the list of known names
// the scan keeps.
#include <unistd.h>

#include "LibraryFixture.h"
#include "library/KnownPaths.h"

using namespace sonarium;

namespace {

class Scanner : public LibraryFixture {
protected:
    void SetUp() override {
        LibraryFixture::SetUp();
        tc.dialogs.setAutoAnswerOk(true);
    }

    // An empty file in the test's directory (the drive's current directory), with the tag and
    // length the fake player gives it.
    void song(const QString& rel, float seconds = 60, const Id3Fields& tag = {}) {
        EXPECT_TRUE(QDir().mkpath(QFileInfo(path(rel)).path()));
        write(rel, QByteArray());
        tc.mp3.addFile(path(rel), 100, seconds, 128, 44100, 0, tag);
    }

    // Runs `fn` at the n-th delivery of events from now on, 1 being the next.
    void atDelivery(int n, std::function<void()> fn) {
        if (n <= 1) return tc.loop.post(std::move(fn));
        tc.loop.post([this, n, fn] { atDelivery(n - 1, fn); });
    }

    // The scan as the user runs it: the dialog comes up on the main window's directory, the
    // user picks a start and OK; a cancel click can come at the walk's n-th delivery of events.
    void scan(const QString& start, bool subs, int cancelAt = 0) {
        tc.loop.post([=, this] {
            general().Activate();
            general().Dir1.setPath(start);
            general().chkSubs.setValue(subs ? 1 : 0);
            if (cancelAt > 0) atDelivery(cancelAt, [this] { form1().cmdSearch.Click(); });
            general().cmdOK.Click();
        });
        tc.mp3.clearCalls();
        tc.dialogs.clear();
        form1().cmdSearch.Click();
    }
    // The manual add of the files named, one after the other, then Close.
    void add(const QStringList& names) {
        tc.loop.post([=, this] {
            general().Activate();
            for (const QString& name : names) {
                general().File1.setListIndex(general().File1.rows().indexOf(name));
                general().cmdAdd.Click();
            }
            general().CmdClose.Click();
        });
        tc.dialogs.clear();
        form1().CmdDataAdd.Click();
    }

    // The files the player opened, relative to the test's directory.
    QStringList opened() const {
        QStringList out;
        for (const QString& c : tc.mp3.calls())
            if (c.startsWith(u"Open(")) out << c.mid(5).chopped(2).remove(0, dir.path().size() + 1);
        return out;
    }
    QStringList files() { return column("File"); }
};

TEST_F(Scanner, WalksSubdirectoriesLastToFirstDepthFirstWithFilesLastAndCounts) {
    song("top.MP3", 186.5f);
    song("A/a1.MP3", 187.5f);
    song("A/A1/deep.mp3", 7500.4f);
    for (const char* name : {"A/A2/x.MP3", "B/b1.MP3"}) song(name);
    scan(dir.path(), true);
    EXPECT_EQ(opened(), QStringList({"B/b1.MP3", "A/A2/x.MP3", "A/A1/deep.mp3", "A/a1.MP3", "top.MP3"}));
    EXPECT_EQ(tc.dialogs.texts(), QStringList({"5 new titles found"}));

    // A lower-case extension goes from the name all the same; lengths round to the even second
    // on a tie. (Every column of a tagged file is the real scan's test.)
    EXPECT_EQ(files(), QStringList({"b1", "x", "deep", "a1", "top"}));
    EXPECT_EQ(column("Duration"), QStringList({"01:00", "01:00", "125:00", "03:08", "03:06"}));

    // Again: all known. (Known names compare in upper case: the known names' test.)
    scan(dir.path(), true);
    EXPECT_EQ(tc.dialogs.texts(), QStringList({"0 new titles found"}));

    // The folder chosen is the last its drive's lists showed, so the first level's move to the
    // drive lands there: from any folder the walk is that folder's whole tree.
    scan(path("A"), true);
    EXPECT_EQ(opened(), QStringList({"A/A2/x.MP3", "A/A1/deep.mp3", "A/a1.MP3"}));
    EXPECT_EQ(form1().CurrentDir, path("A") + u'/');
}

TEST_F(Scanner, NamesTooLongForTheirColumnsAndFilesThePlayerCannotOpen) {
    const QString longName = QString(52, u'n') + ".MP3";                      // File over 50
    const QString tooLong = QString(100 - dir.path().size(), u'k') + ".MP3";  // key over 100
    song(longName);
    song(tooLong);
    write("broken.MP3", "not audio");  // the player refuses it: a record all the same
    scan(dir.path(), false);
    EXPECT_EQ(tc.dialogs.texts(), QStringList({"3 new titles found"})) << "the refused key is counted too";
    const QStringList keys = column("Path\\File");
    ASSERT_EQ(keys.size(), 2);
    const int broken = keys.indexOf(path("broken.MP3"));
    ASSERT_GE(broken, 0);
    EXPECT_EQ(files()[1 - broken], "") << "a name too long leaves File empty";
    EXPECT_EQ(files()[broken], "broken");
}

// A link back up the tree is followed once, and the walk ends.
// A directory that can't be read is entered and has nothing in it (root reads it anyway).
TEST_F(Scanner, ALinkBackUpTheTreeIsNotWalkedAgainAndALockedDirectoryIsPassedOver) {
    for (const char* name : {"A/a.MP3", "r.MP3", "A/locked/hidden.MP3"}) song(name);
    ASSERT_TRUE(QFile::link(dir.path(), path("A/up")));
    ASSERT_TRUE(QFile::setPermissions(path("A/locked"), QFileDevice::Permissions()));
    scan(dir.path(), true);
    QFile::setPermissions(path("A/locked"),
                          QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner);
    QStringList expected = {"A/up/r.MP3", "A/a.MP3", "r.MP3"};
    if (::geteuid() == 0) expected.insert(1, "A/locked/hidden.MP3");
    EXPECT_EQ(opened(), expected);
}

// Only the records in view are known. A file outside the filter is new, is refused as a
// duplicate, and is counted; its name then takes the place of the last known one, so that the
// file behind that name is new to the scan as well.
TEST_F(Scanner, AFilterInForceCountsDuplicatesThatAreNotStored) {
    for (const char* name : {"d1/k.MP3", "d2/o.MP3", "new.MP3"}) song(name);
    addRecord(path("d1"), "k", "Keep");
    addRecord(path("d2"), "o", "Other");
    menu(3, "mnuFilter", 0);  // the artist of the first record only
    scan(dir.path(), true);
    EXPECT_EQ(tc.dialogs.texts(), QStringList({"3 new titles found"}));
    EXPECT_EQ(files(), QStringList({"k", "o", "new"}));
    // The grid comes back in its order, without its filter.
    EXPECT_EQ(source(), "Select * From SongData Order By [File]");
    EXPECT_EQ(form1().lblRecords.Caption(), "3");
}

TEST_F(Scanner, CancelStopsTheWalkAndKeepsWhatWasAdded) {
    for (const char* name : {"A/a.MP3", "B/B1/b1.MP3", "B/b.MP3", "C/c.MP3", "r.MP3"}) song(name);
    // Deliveries: the start, C, B, B1. Cancelled on entering B1: B returns at once, and the
    // start leaves its loop and reads the files of where the list was left, B1.
    scan(dir.path(), true, 4);
    EXPECT_EQ(opened(), QStringList({"C/c.MP3", "B/B1/b1.MP3"}));
    EXPECT_EQ(tc.dialogs.texts(), QStringList({"2 new titles found"}));
    EXPECT_FALSE(form1().SearchRunning);
}

// Record loops count in 16 bits: past 32767 records nothing is found, every file is new, and
// the library refuses the duplicates.
TEST_F(Scanner, ALibraryPastTheRecordLoopsRangeKnowsNothing) {
    song("known.MP3");
    const QByteArray known = path("known.MP3").toUtf8();
    sql("INSERT INTO SongData ([Path\\File]) VALUES ('" + known +
        "');"
        "INSERT INTO SongData ([Path\\File]) WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n "
        "WHERE i < 32766) SELECT '/x/' || i || '.MP3' FROM n");
    scan(dir.path(), false);
    EXPECT_EQ(tc.dialogs.texts(), QStringList({"0 new titles found"}));
    sql("INSERT INTO SongData ([Path\\File]) VALUES ('/x/32767.MP3')");
    scan(dir.path(), false);
    EXPECT_EQ(tc.dialogs.texts(), QStringList({"1 new titles found"}));
    EXPECT_EQ(form1().lblRecords.Caption(), "32768");
    add({"known.MP3"});
    EXPECT_EQ(tc.dialogs.texts(), QStringList({"File Added"})) << "not found, and refused as a duplicate";
}

TEST_F(Scanner, ManualAddThenUpdateKeepsWhatTheUserTyped) {
    song("Song.MP3", 200, {"First", "Band", "", "", 2001, 3});
    song("Long.MP3", 40000);
    add({"", "Song.MP3", "Long.MP3"});  // nothing picked at first
    EXPECT_EQ(tc.dialogs.texts(), QStringList({"No file selected", "File Added", "File Added"}));
    EXPECT_EQ(column("Duration"), QStringList({"03:20", "00:00"})) << "a length past 16 bits is lost";

    // The user types a tempo and a title; the tag changes; the update takes the tag's texts
    // and leaves the tempo.
    sql("UPDATE SongData SET Tempo = 'Slow', \"Song Title\" = 'Typed' WHERE File = 'Song'");
    tc.mp3.addFile(path("Song.MP3"), 100, 200, 128, 44100, 0, {"Second", "Band", "", "", 2002, 3});
    add({"Song.MP3"});
    EXPECT_EQ(tc.dialogs.texts(), QStringList({"File Updated"}));
    EXPECT_EQ(column("Song Title"), QStringList({"Second", ""}));
    EXPECT_EQ(column("Year"), QStringList({"2002", "0"}));
    EXPECT_EQ(column("Tempo"), QStringList({"Slow", ""}));
}

// The known names answer as a walk over positions 1 to a limit would, comparing in upper case,
// through overwrites and resizes that take copies of a name away.
TEST(ScanKnownPaths, AnswerAsAWalkOverPositionsOneToTheLimit) {
    KnownPathList known;
    known.resize(3);
    for (int at : {0, 2, 3}) known.set(at, "/m/a.MP3");
    EXPECT_TRUE(known.contains("/M/A.mp3", 2));
    EXPECT_FALSE(known.contains("/m/a.MP3", 1)) << "position 0 is never looked at";
    known.set(2, "/m/b.MP3");
    EXPECT_FALSE(known.contains("/m/a.MP3", 2)) << "the copy overwritten";
    EXPECT_TRUE(known.contains("/m/a.MP3", 9)) << "the other copy, with a limit past the end";
    known.resize(2);
    known.resize(3);
    EXPECT_FALSE(known.contains("/m/a.MP3", 3)) << "a copy resized away does not come back";
    EXPECT_THROW(known.set(4, "x"), RuntimeError);
}

}  // namespace
