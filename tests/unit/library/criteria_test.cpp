// The Auto-Queue criteria on a real library: the lines as the column menu makes them, their
// precedence once joined, the filter and the queue made from them, the double-click removal
// with its rewrite of the first line, clearing and the dialog's criteria face.
#include "LibraryFixture.h"

using namespace sonarium;

namespace {

class Criteria : public LibraryFixture {
protected:
    void SetUp() override {
        LibraryFixture::SetUp();
        addFourSongs();
        form1().imgButon[3].Click();  // by Artist: Abba, Blondie, Queen, Queen
        tc.dialogs.clear();
    }
    // The column menu on the record at `row` of the grid's order.
    void menu(int row, int column, const char* entry) {
        Recordset& r = data.recordset();
        r.MoveFirst();
        for (int i = 0; i < row; ++i) r.MoveNext();
        tc.dialogs.answerPopup(QString::fromLatin1(entry));
        form1().imgDown[column].Click();
    }
    QStringList lines() { return general().List1.rows(); }
    QStringList queue() { return form1().lstSongs.rows(); }
    QString source() const { return data.RecordSource(); }
};

TEST_F(Criteria, LinesJoinWithTheEnginesPrecedence) {
    Form1& f = form1();
    menu(2, 3, "");
    EXPECT_FALSE(f.mnuExclude.Enabled()) << "an exclusion can't come first";

    menu(2, 3, "mnuAdd");
    EXPECT_EQ(f.mnuAdd.Caption(), "Add selected Artist to 'Auto-Queue' criteria");
    menu(0, 3, "mnuAdd");
    menu(1, 4, "mnuExclude");
    EXPECT_TRUE(f.mnuExclude.Enabled());
    EXPECT_EQ(lines(), QStringList({"Where [Artist] Like (\"Queen\") ", "Or [Artist] Like (\"Abba\") ",
                                    "And Not [Album] Like (\"Gold\") "}));

    // And binds tighter: the exclusion takes Abba out and leaves both Queens.
    menu(0, 3, "mnuFilterAutoSet");
    EXPECT_EQ(source(), "Select * From SongData Where [Artist] Like (\"Queen\") Or [Artist] Like (\"Abba\") "
                        "And Not [Album] Like (\"Gold\")  Order By [Artist]");
    EXPECT_EQ(f.lblFilter.Caption(), "Auto-Queue");
    EXPECT_EQ(f.lblRecords.Caption(), "2");
    EXPECT_TRUE(f.FilterOn);
    EXPECT_EQ(general().List1.ListIndex(), 2) << "joining selects each line in turn";
    EXPECT_TRUE(f.imgButon[3].picture().sameAs(f.ButtonBlue.picture())) << "MenuColumn, over the order's button";
    EXPECT_TRUE(f.imgButon[4].picture().sameAs(f.Indent.picture()));

    // The menu on the filter's own column offers its removal, and the entry is off; a caption
    // left from that menu makes the entry remove the filter too.
    menu(0, 3, "");
    EXPECT_FALSE(f.mnuFilterAutoSet.Enabled());
    f.mnuFilterAutoSet.Click();
    EXPECT_FALSE(f.FilterOn);
    EXPECT_EQ(f.lblFilter.Caption(), "Off");
    EXPECT_EQ(source(), "Select * From SongData Order By [Artist]");

    // A null value gives an empty pattern; a line added twice is kept twice.
    menu(3, 4, "mnuAdd");
    menu(3, 4, "mnuAdd");
    EXPECT_EQ(lines().mid(3), QStringList({"Or [Album] Like (\"\") ", "Or [Album] Like (\"\") "}));
}

TEST_F(Criteria, AutoQueueAppendsTheMatchesInTheGridsOrder) {
    Form1& f = form1();
    tc.dialogs.answer(MsgResult::OK);
    f.cmdAutoSet.Click();
    ASSERT_EQ(tc.dialogs.shown().size(), 1u);
    EXPECT_EQ(tc.dialogs.shown()[0].text, "Auto-Queue is empty");
    EXPECT_EQ(tc.dialogs.shown()[0].title, "Auto-Queue");
    EXPECT_EQ(tc.dialogs.shown()[0].icon, MsgIcon::Exclamation);
    f.mnuFilterAutoSet.Click();
    EXPECT_EQ(source(), "Select * From SongData Order By [Artist]") << "an empty list filters nothing";

    f.AddToQueue("Already", "/x/");
    menu(2, 3, "mnuAdd");  // Queen
    menu(1, 3, "mnuAdd");  // Blondie
    f.cmdAutoSet.Click();
    EXPECT_EQ(queue(), QStringList({"Already", "Song C", "Song A", "Song D"}));
    EXPECT_EQ(f.SongPathOf(1), "/m/Pop/");
    EXPECT_EQ(f.SongPathOf(2), "/m/Rock/");
    EXPECT_EQ(source(), "Select * From SongData Order By [Artist]") << "no filter was on: the whole library";
    EXPECT_EQ(f.lblRecords.Caption(), "4");

    // Under a filter the grid stays on the criteria, while label and buttons keep the old one.
    menu(0, 4, "mnuFilter");
    f.cmdAutoSet.Click();
    EXPECT_EQ(source(), "Select * From SongData Where [Artist] Like (\"Queen\") Or [Artist] Like (\"Blondie\")  "
                        "Order By [Artist]");
    EXPECT_EQ(f.lblFilter.Caption(), "Album - Gold");
    EXPECT_EQ(f.lblRecords.Caption(), "3");
    EXPECT_EQ(queue().size(), 7);
}

TEST_F(Criteria, ABadListQueuesTheWholeViewAndNoMatchQueuesNothing) {
    Form1& f = form1();
    general().List1.AddItem("Where [Artist] Like (\"Nobody\") ");
    f.cmdAutoSet.Click();
    EXPECT_TRUE(queue().isEmpty());
    EXPECT_EQ(f.lblRecords.Caption(), "4");

    // A double quote in a value breaks the statement: the view stays, and all of it is queued.
    general().List1.Clear();
    general().List1.AddItem("Where [Artist] Like (\"Qu\"een\") ");
    f.cmdAutoSet.Click();
    EXPECT_EQ(queue(), QStringList({"Song B", "Song C", "Song A", "Song D"}));
    EXPECT_TRUE(tc.dialogs.shown().empty()) << "no message for the refused statement";
}

TEST_F(Criteria, DoubleClickRemovalRewritesTheFirstLine) {
    ListBox& list = general().List1;
    auto remove = [&](int i) {
        list.setListIndex(i);
        list.DblClick();
    };
    // Two lines: the exclusion becomes a plain Where line.
    list.AddItem("Where [Artist] Like (\"Queen\") ");
    list.AddItem("And Not [Album] Like (\"Gold\") ");
    remove(0);
    EXPECT_EQ(lines(), QStringList({"Where [Album] Like (\"Gold\") "}));
    remove(0);
    EXPECT_TRUE(lines().isEmpty());

    // Three: the new Where line goes to the end, and the list now starts with Or.
    list.AddItem("Where [Artist] Like (\"Queen\") ");
    list.AddItem("Or [Artist] Like (\"Abba\") ");
    list.AddItem("Or [Album] Like (\"Gold\") ");
    remove(0);
    EXPECT_EQ(lines(), QStringList({"Or [Album] Like (\"Gold\") ", "Where [Artist] Like (\"Abba\") "}));
    form1().cmdAutoSet.Click();  // refused by the engine: the whole view is queued
    EXPECT_EQ(queue().size(), 4);
    remove(1);  // any other line just goes
    EXPECT_EQ(lines(), QStringList({"Or [Album] Like (\"Gold\") "}));
    list.setListIndex(-1);
    list.DblClick();  // nothing selected: nothing removed
    EXPECT_EQ(lines().size(), 1);
}

TEST_F(Criteria, ClearAsksAndTheViewShowsTheCriteriaFace) {
    Form1& f = form1();
    FrmGeneral& g = general();
    g.List1.AddItem("Where [Artist] Like (\"Queen\") ");
    tc.dialogs.answer(MsgResult::Cancel);
    f.mnuClearCriteria.Click();
    EXPECT_EQ(g.List1.ListCount(), 1);
    ASSERT_EQ(tc.dialogs.shown().size(), 1u);
    EXPECT_EQ(tc.dialogs.shown()[0].text, "Clear Criteria");
    EXPECT_EQ(tc.dialogs.shown()[0].title, "Clear Criteria");
    EXPECT_EQ(tc.dialogs.shown()[0].buttons, MsgButtons::OKCancel);
    EXPECT_EQ(tc.dialogs.shown()[0].icon, MsgIcon::Exclamation);

    bool seen = false;
    tc.loop.post([&] {
        seen = g.Modal() && g.List1.Visible() && g.lblAutoSet.Visible() && g.cmdOK.Visible() && !g.cmdAdd.Visible() &&
               !g.CmdClose.Visible() && !g.Dir1.Visible() && !g.Drive1.Visible() && !g.File1.Visible() &&
               !g.Label1.Visible() && !g.lblStartFrom.Visible() && !g.cmdCancel.Visible();
        g.cmdOK.Click();
    });
    f.mnuViewCriteria.Click();
    EXPECT_TRUE(seen);
    EXPECT_TRUE(M().DialogAccepted) << "OK takes its usual path";
    EXPECT_TRUE(g.cmdAdd.Visible() && g.CmdClose.Visible() && g.Dir1.Visible() && g.Drive1.Visible() &&
                g.File1.Visible() && g.Label1.Visible());
    EXPECT_FALSE(g.List1.Visible() || g.lblAutoSet.Visible() || g.cmdOK.Visible() || g.cmdCancel.Visible());
    EXPECT_EQ(g.List1.ListCount(), 1) << "the list outlives the dialog";

    tc.dialogs.answer(MsgResult::OK);
    f.mnuClearCriteria.Click();
    EXPECT_EQ(g.List1.ListCount(), 0);
}

}  // namespace
