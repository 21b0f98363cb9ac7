// The library grid on a real library: the order and filter statements with their labels and
// column buttons, search, typing rules and the tag written back from a cell, the genre list and
// the detail boxes, and the delete commands. (The tag's bytes are the player's own, checked with
// it. How the grid reads and follows the record set is the library window's test: a jump far
// down, a typed cell, a filtered view.)
#include "LibraryFixture.h"

using namespace sonarium;

namespace {

class Grid : public LibraryFixture {
protected:
    void SetUp() override {
        LibraryFixture::SetUp();
        addFourSongs();
        form1().imgButon[1].Click();  // by File, as the first activation leaves it
    }
    // The filter label, the count, and the column buttons that stand out: "=" the order's,
    // "*" a filter's.
    QString labels() {
        Form1& f = form1();
        QString out = f.lblFilter.Caption() + ", " + f.lblRecords.Caption() + ",";
        for (int i = 0; i < 15; ++i) {
            const Picture& p = f.imgButon[i].picture();
            if (p.sameAs(f.Button.picture()) || p.sameAs(f.ButtonBlue.picture()))
                out += QStringLiteral(" %1%2").arg(i).arg(p.sameAs(f.Button.picture()) ? '=' : '*');
        }
        return out;
    }
    // The user picks a cell, as the view does.
    void pick(int row, int col) {
        form1().DBGrid1.sync();
        form1().DBGrid1.setCurrentCell(row, col);
    }
    int type(const QString& keys) {
        int last = 0;
        for (QChar k : keys) last = form1().DBGrid1.KeyPress(k.unicode());
        return last;
    }
};

TEST_F(Grid, OrderAndFilterStatementsWithTheirLabelsAndButtonsAndABrokenFilter) {
    Form1& f = form1();
    f.imgButon[3].Click();
    EXPECT_EQ(labels(), "Off, 4, 3=");
    menu(4, "mnuFilter");  // on Abba's album, the first record in artist order
    EXPECT_EQ(source(), "Select * From SongData Where [Album] Like \"Gold\" Order By [Artist]");
    EXPECT_EQ(labels(), "Album - Gold, 2, 3= 4*");
    menu(4, "mnuFilter");  // the same column's menu offers the removal only
    EXPECT_EQ(labels(), "Off, 4, 3=");

    // A filter on Path, then one on Album: the second replaces the first, and its loop from 1
    // leaves imgButon(0) blue.
    menu(0, "mnuFilter");
    menu(4, "mnuFilter");
    EXPECT_EQ(labels(), "Album - Gold, 2, 0* 3= 4*");
    // A blue button frees its column; only a second click orders by it, and resets 0 to 13.
    f.imgButon[4].Click();
    EXPECT_EQ(labels(), "Off, 4, 0* 3=");
    f.imgButon[4].Click();
    EXPECT_EQ(source(), "Select * From SongData Order By [Album]");
    EXPECT_EQ(labels(), "Off, 4, 4=");

    // A double quote breaks the statement: the view stays, with no message.
    addRecord("/m/Pop", "Song E", "Prince", "12\" Mix");
    menu(4, "mnuFilter", 1);  // after Song D's empty album
    EXPECT_EQ(source(), "Select * From SongData Where [Album] Like \"12\" Mix\" Order By [Album]");
    EXPECT_EQ(f.lblRecords.Caption(), "5");
    EXPECT_EQ(tc.dialogs.shown().back().kind, ScriptedDialogs::Kind::Popup);
}

TEST_F(Grid, SearchMovesToTheFirstMatchOrSaysThereIsNone) {
    // A quote breaks the find; it passes without a word. No match says so. The record stays.
    tc.dialogs.setAutoAnswerOk(true);
    for (const char* artist : {"lon", "O'Brien", "Zappa"}) {
        tc.dialogs.answerPopup("mnuSearch").answerInput(artist);
        form1().imgDown[3].Click();
    }
    EXPECT_EQ(tc.dialogs.texts().mid(6), QStringList({"No Artist found"})) << "after three menus and inputs";
    EXPECT_EQ(current("Artist"), "Blondie");
    EXPECT_EQ(form1().lblRecords.Caption(), "4") << "a find, not a filter";
}

TEST_F(Grid, TypingRulesAndTheLockOnTheSongInThePlayer) {
    DataGrid& g = form1().DBGrid1;
    pick(1, 8);                         // Year of Song B, four characters at most
    type("19995" + QString(QChar(8)));  // the fifth refused, the backspace taken
    EXPECT_EQ(g.Text(), "199");
    g.cancelEdit();
    pick(1, 0);  // Path, like every column the scan fills from the file
    EXPECT_EQ(type("z"), 0);

    // The song in the player is locked while the queue has a selected row.
    tc.mp3.addFile("/m/Rock/Song B.MP3", 100, 2.6f);
    form1().AddToQueue("Song B", "/m/Rock/");
    form1().lstSongs.setListIndex(0);
    M().SongFile = "/M/ROCK/SONG B.mp3";  // compared in upper case
    pick(1, 2);
    tc.dialogs.answer(MsgResult::OK);
    EXPECT_EQ(type("a"), 0);
    EXPECT_EQ(tc.dialogs.texts(), QStringList({"Cannot edit song selected in song queue"}));
    form1().lstSongs.setListIndex(-1);
    EXPECT_EQ(type("a"), 'a');
}

TEST_F(Grid, ACommittedCellAPickedGenreOrTheDetailBoxesWriteTheTagThroughAPlayer) {
    Form1& f = form1();
    DataGrid& g = f.DBGrid1;
    const auto commit = [&](int col, const QString& keys) {
        pick(0, col);
        type(keys);
        tc.mp32.clearCalls();
        g.commitEdit();
        return tc.mp32.calls();
    };
    EXPECT_EQ(commit(2, "Night"),
              QStringList({"Close", "Open(/m/Rock/Song A.MP3,)", "SetTagTitle(Night)", "Close", "WriteTag"}));
    EXPECT_EQ(current("Song Title"), "Night");
    // A year that is no number: the text stays in the cell, the tag is written with nothing set.
    EXPECT_EQ(commit(8, "19x"), QStringList({"Close", "Open(/m/Rock/Song A.MP3,)", "Close", "WriteTag"}));
    EXPECT_EQ(f.Caption(), "Type mismatch");
    EXPECT_EQ(current("Year"), "19x");
    // Database-only columns, and an emptied title, leave the file alone.
    EXPECT_TRUE(commit(9, "Fast").isEmpty());
    EXPECT_TRUE(commit(2, QString(5, QChar(8))).isEmpty());
    EXPECT_TRUE(data.recordset().Fields(QStringLiteral("Song Title")).Value().isNull());

    // The genre list writes through the first player and closes.
    pick(2, 6);
    g.ButtonClick(6);
    tc.mp3.clearCalls();
    f.ListGen.setListIndex(17);
    EXPECT_EQ(current("Genre"), "Rock");
    EXPECT_EQ(tc.mp3.calls(),
              QStringList({"Close", "Open(/m/Pop/Song C.MP3,)", "SetTagGenre(17)", "Close", "WriteTag"}));
    EXPECT_FALSE(f.ListGen.Visible());

    // The detail boxes write what is filled, but not while the song plays.
    tc.mp3.addFile("/m/Song.MP3", 100, 2.6f);
    f.AddToQueue("Song", "/m/");
    f.lstSongs.setListIndex(0);
    f.txtTitle.setText("New Title");
    f.txtArtist.setText("");
    f.txtYear.setText("19x9");  // not a number: only the year is lost
    f.cboGenre.setListIndex(8);
    tc.mp3.clearCalls();
    f.cmdUpdateTag.Click();
    EXPECT_EQ(tc.mp3.calls().mid(0, 6), QStringList({"Close", "Open(/m/Song.MP3,)", "SetTagTitle(New Title)",
                                                     "SetTagGenre(8)", "Close", "WriteTag"}));

    f.BtnPlay.MouseUp(LeftButton, 0, 0, 0);
    tc.dialogs.answer(MsgResult::OK);
    f.cmdUpdateTag.Click();
    EXPECT_EQ(tc.dialogs.texts(), QStringList({"Can't update whilst track is playing"}));
}

TEST_F(Grid, TheThreeDeletes) {
    Form1& f = form1();
    tc.dialogs.answer(MsgResult::Yes);
    f.cmdDeleteLine.Click();
    EXPECT_EQ(tc.dialogs.texts(), QStringList({"Delete selected record from Database?"}));
    EXPECT_EQ(current("File"), "Song B");

    // The file goes, and its record with it; a file that can't be deleted still loses its record.
    write("Song B.MP3", "ID3");
    sql(("UPDATE SongData SET [Path\\File] = '" + path("Song B.MP3") + "' WHERE File = 'Song B'").toUtf8());
    tc.dialogs.clear();
    tc.dialogs.answer(MsgResult::Cancel).answer(MsgResult::OK).answer(MsgResult::OK);
    f.CmdDeleteFile.Click();
    EXPECT_TRUE(QFile::exists(path("Song B.MP3")));
    f.CmdDeleteFile.Click();
    EXPECT_EQ(tc.dialogs.shown()[1].text, "Permanently remove file " + path("Song B.MP3") + " from disk");
    EXPECT_FALSE(QFile::exists(path("Song B.MP3")));
    f.CmdDeleteFile.Click();  // /m/Pop/Song C.MP3 isn't there
    EXPECT_EQ(f.lblRecords.Caption(), "1");

    tc.dialogs.answer(MsgResult::Yes).answer(MsgResult::OK);
    f.cmdClearAll.Click();
    EXPECT_EQ(tc.dialogs.shown().back().text, "Delete all records from Database?");
    EXPECT_EQ(data.recordset().RecordCount(), 0);
    f.cmdDeleteLine.Click();  // an empty view: nothing is selected, and no file to offer
    f.CmdDeleteFile.Click();
    EXPECT_EQ(tc.dialogs.texts().last(), "No record selected - click on a line to select");
}

}  // namespace
