// The Auto-Queue criteria on a real library: the lines as the column menu makes them, their
// precedence once joined, the filter and the queue made from them, the double-click removal
// with its rewrite of the first line, and clearing.
#include "LibraryFixture.h"

using namespace sonarium;

namespace {

class Criteria : public LibraryFixture {
protected:
    void SetUp() override {
        LibraryFixture::SetUp();
        addFourSongs();
        form1().imgButon[3].Click();  // by Artist: Abba, Blondie, Queen, Queen
    }
    QStringList lines() { return general().List1.rows(); }
    QStringList queue() { return form1().lstSongs.rows(); }
};

TEST_F(Criteria, LinesJoinWithTheEnginesPrecedence) {
    Form1& f = form1();
    menu(3, "", 2);
    EXPECT_FALSE(f.mnuExclude.Enabled()) << "an exclusion can't come first";

    menu(3, "mnuAdd", 2);
    menu(3, "mnuAdd", 0);
    menu(4, "mnuExclude", 1);
    // Joined in the list's order, where And binds tighter: the exclusion takes Abba out and
    // leaves both Queens.
    menu(3, "mnuFilterAutoSet", 0);
    EXPECT_EQ(source(),
              "Select * From SongData Where [Artist] Like (\"Queen\") Or [Artist] Like (\"Abba\") "
              "And Not [Album] Like (\"Gold\")  Order By [Artist]");
    EXPECT_EQ(f.lblFilter.Caption() + " " + f.lblRecords.Caption(), "Auto-Queue 2");

    // The menu on the filter's own column offers its removal, and the entry is off; a caption
    // left from that menu makes the entry remove the filter too.
    menu(3, "", 0);
    EXPECT_FALSE(f.mnuFilterAutoSet.Enabled());
    f.mnuFilterAutoSet.Click();
    EXPECT_EQ(source(), "Select * From SongData Order By [Artist]");

    // A null value gives an empty pattern.
    menu(4, "mnuAdd", 3);
    EXPECT_EQ(lines().last(), "Or [Album] Like (\"\") ");
}

TEST_F(Criteria, AutoQueueAppendsTheMatchesInTheGridsOrder) {
    Form1& f = form1();
    tc.dialogs.answer(MsgResult::OK);
    f.cmdAutoSet.Click();
    EXPECT_EQ(tc.dialogs.texts(), QStringList({"Auto-Queue is empty"}));
    f.mnuFilterAutoSet.Click();
    EXPECT_EQ(source(), "Select * From SongData Order By [Artist]") << "an empty list filters nothing";

    // No match queues nothing; a double quote in a value breaks the statement: the view stays,
    // and all of it is queued, without a message. (The first queued nothing, or it would show.)
    for (const char* line : {"Where [Artist] Like (\"Nobody\") ", "Where [Artist] Like (\"Qu\"een\") "}) {
        general().List1.Clear();
        general().List1.AddItem(line);
        f.cmdAutoSet.Click();
    }
    EXPECT_EQ(queue(), QStringList({"Song B", "Song C", "Song A", "Song D"}));
    EXPECT_EQ(tc.dialogs.shown().size(), 1u) << "no message for the refused statement";

    general().List1.Clear();
    f.lstSongs.Clear();
    f.AddToQueue("Already", "/x/");
    menu(3, "mnuAdd", 2);  // Queen
    menu(3, "mnuAdd", 1);  // Blondie
    f.cmdAutoSet.Click();
    EXPECT_EQ(queue(), QStringList({"Already", "Song C", "Song A", "Song D"}));
}

TEST_F(Criteria, DoubleClickRemovalRewritesTheFirstLineAndClearAsks) {
    ListBox& list = general().List1;
    auto remove = [&](int i) {
        list.setListIndex(i);
        list.DblClick();
    };
    // Two lines: the exclusion becomes a plain Where line.
    for (const char* line : {"Where [Artist] Like (\"Queen\") ", "And Not [Album] Like (\"Gold\") "})
        list.AddItem(line);
    remove(0);
    EXPECT_EQ(lines(), QStringList({"Where [Album] Like (\"Gold\") "}));
    list.Clear();

    // Three: the new Where line goes to the end, and the list now starts with Or.
    for (const char* line :
         {"Where [Artist] Like (\"Queen\") ", "Or [Artist] Like (\"Abba\") ", "Or [Album] Like (\"Gold\") "})
        list.AddItem(line);
    remove(0);
    EXPECT_EQ(lines(), QStringList({"Or [Album] Like (\"Gold\") ", "Where [Artist] Like (\"Abba\") "}));
    remove(1);  // any other line just goes
    EXPECT_EQ(lines(), QStringList({"Or [Album] Like (\"Gold\") "}));
    list.setListIndex(-1);
    list.DblClick();  // nothing selected: nothing removed
    EXPECT_EQ(lines().size(), 1);

    tc.dialogs.answer(MsgResult::Cancel).answer(MsgResult::OK);
    form1().mnuClearCriteria.Click();
    EXPECT_EQ(list.ListCount(), 1);
    form1().mnuClearCriteria.Click();
    EXPECT_EQ(list.ListCount(), 0);
}

}  // namespace
