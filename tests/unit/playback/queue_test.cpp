// The title pane's paging, the ways rows enter and leave the queue with their quirks, the two
// orders, and a queue longer than the directory store.
#include <QFile>

#include "PlaybackFixture.h"

using namespace sonarium;

namespace {

class Queue : public PlaybackFixture {
protected:
    // Empty files named Song01.MP3 ... in a directory of the test's own, which becomes CurrentDir.
    void titlesOnDisk(int count) {
        for (int i = 1; i <= count; ++i) write(QStringLiteral("Song%1.MP3").arg(i, 2, 10, QLatin1Char('0')), {});
        form1().CurrentDir = dir.path() + u'/';
        form1().GetTitles();
    }
    QStringList captions() {
        QStringList out;
        for (auto& label : form1().Title) out << label->Caption();
        return out;
    }
    QStringList rows() const { return prog->form1.lstSongs.rows(); }
};

TEST_F(Queue, TitlePagesStepByTwelveAndKeepTheEmptyPageAfterAFullOne) {
    titlesOnDisk(12);
    Form1& f = form1();
    ASSERT_EQ(f.TitleCount, 12);
    QStringList page = captions();
    page.sort();
    EXPECT_EQ(page.first(), "Song01");
    EXPECT_EQ(page.last(), "Song12");

    f.cmdDown.Click();  // 12 is not greater than 12: the page stays, and it is empty
    EXPECT_EQ(f.TitleTop, 12);
    EXPECT_EQ(captions(), QStringList(12, QString()));
    f.cmdDown.Click();  // 24 > 12 takes one page back: the same empty page
    EXPECT_EQ(f.TitleTop, 12);
    EXPECT_EQ(captions(), QStringList(12, QString()));
    f.cmdUp.Click();
    f.cmdUp.Click();
    EXPECT_EQ(f.TitleTop, 0);
    EXPECT_FALSE(captions().contains(QString()));

    // A directory without songs clears the pane; the WAV pattern follows the conversion mode.
    f.CurrentDir = path("none") + u'/';
    f.GetTitles();
    EXPECT_EQ(f.TitleCount, 0);
    EXPECT_EQ(captions(), QStringList(12, QString()));
}

TEST_F(Queue, AddingFromTheTitlePane) {
    titlesOnDisk(3);
    Form1& f = form1();
    const QString here = dir.path() + u'/';
    const QString first = f.Title[0].Caption();

    f.Title[0].DblClick();
    f.Title[0].DblClick();  // no check for doubles
    f.Title[5].DblClick();  // an empty label adds an empty row
    EXPECT_EQ(rows(), QStringList({first, first, QString()}));
    EXPECT_EQ(M().SongPath[2], here);

    f.cmdDeleteAll.Click();
    queue({"Elsewhere"}, "/other/");
    f.cmdAddAll.Click();
    EXPECT_EQ(f.lstSongs.ListCount(), 4);
    const QStringList afterFirst = rows();
    f.cmdAddAll.Click();  // nothing new the second time ...
    EXPECT_EQ(rows(), afterFirst);
    // ... but each round stores CurrentDir at the last row, whichever directory it came from.
    f.cmdDeleteAll.Click();
    f.lstSongs.AddItem(f.Titles.last().chopped(4));
    M().SongPath[0] = "/other/";
    f.cmdAddAll.Click();
    EXPECT_EQ(M().SongPath[std::size_t(f.lstSongs.ListCount() - 1)], here);
}

TEST_F(Queue, DeleteSelectsTheNeighbourBeforeTheDirectoriesMove) {
    Form1& f = form1();
    tc.dialogs.answer(MsgResult::OK);
    f.cmdDelete.Click();
    ASSERT_EQ(tc.dialogs.shown().size(), 1u);
    EXPECT_EQ(tc.dialogs.shown()[0].text, "Song not selected, click on a song in the song queue");
    EXPECT_EQ(tc.dialogs.shown()[0].title, "Delete");
    EXPECT_EQ(tc.dialogs.shown()[0].icon, MsgIcon::Exclamation);

    queue({"A"}, "/a/");
    queue({"B", "C", "D"}, "/b/");
    M().PunchStart = {10, 20, 30, 40};
    M().PunchEnd = {11, 21, 31, 41};
    M().PunchActive = {1, 0, 1, 0};
    f.lstSongs.setListIndex(1);
    f.cmdDelete.Click();  // row 1 goes; the punch loop stops one short of the old last row
    EXPECT_EQ(rows(), QStringList({"A", "C", "D"}));
    EXPECT_EQ(M().PunchStart, (std::vector<std::int32_t>{10, 30, 30, 40}));
    EXPECT_EQ(M().PunchActive, (std::vector<std::int16_t>{1, 1, 1, 0}));
    EXPECT_EQ(M().SongPath[1], "/b/");

    // Deleting the first row: row 0 is loaded from the deleted row's directory, which lacks it.
    f.lstSongs.setListIndex(0);
    tc.dialogs.clear();
    tc.dialogs.answer(MsgResult::No);
    tc.mp3.clearCalls();
    f.cmdDelete.Click();
    EXPECT_TRUE(tc.mp3.calls().contains("Open(/a/C.MP3,)"));
    EXPECT_EQ(tc.dialogs.unanswered(), 0);
    EXPECT_EQ(M().SongPath[0], "/b/");
    EXPECT_EQ(rows(), QStringList({"C", "D"}));

    f.cmdDeleteAll.Click();
    EXPECT_EQ(f.lblTotTime.Caption(), "");
    EXPECT_EQ(M().PunchStart.size(), 2u);
    queue({"Last"});
    f.lstSongs.setListIndex(0);
    f.cmdDelete.Click();  // selecting row 0 of an empty list fails silently
    EXPECT_EQ(f.lstSongs.ListCount(), 0);
}

TEST_F(Queue, ShuffleKeepsRowsWithTheirDirectoriesAndHalvesTheEndsChances) {
    Form1& f = form1();
    queue({"Only"});
    f.Shuffle();
    EXPECT_EQ(rows(), QStringList({"Only"}));

    // A draw is round(r * 2): row 1 comes twice as often as either end at each try, so it
    // leads a shuffled queue of three half of the time.
    int bFirst = 0;
    const int runs = 2000;
    for (int i = 0; i < runs; ++i) {
        f.cmdDeleteAll.Click();
        queue({"A"}, "/a/");
        queue({"B"}, "/b/");
        queue({"C"}, "/c/");
        tc.loop.advance(7);
        f.Shuffle();
        const QStringList r = rows();
        ASSERT_EQ(QStringList(r).size(), 3);
        for (int j = 0; j < 3; ++j) ASSERT_EQ(M().SongPath[std::size_t(j)], "/" + r[j].toLower() + "/");
        bFirst += r[0] == "B";
    }
    EXPECT_NEAR(bFirst / double(runs), 0.5, 0.05);
    EXPECT_EQ(f.lstSongs.ListIndex(), -1);

    f.lstSongs.setListIndex(0);
    play();
    tc.dialogs.clear();
    tc.dialogs.answer(MsgResult::OK);
    f.Shuffle();
    ASSERT_EQ(tc.dialogs.shown().size(), 1u);
    EXPECT_EQ(tc.dialogs.shown()[0].text, "Cannot shuffle when playing");
    EXPECT_EQ(tc.dialogs.shown()[0].title, "Shuffle");
}

TEST_F(Queue, OrderedSortsWithoutCaseAndEqualRowsShareTheLaterDirectory) {
    Form1& f = form1();
    queue({"beta"}, "/1/");
    queue({"Alpha"}, "/2/");
    queue({"beta"}, "/3/");
    queue({"Gamma"}, "/4/");
    f.mnuOrdered.Click();
    EXPECT_EQ(rows(), QStringList({"Alpha", "beta", "beta", "Gamma"}));
    EXPECT_EQ(M().SongPath[0], "/2/");
    EXPECT_EQ(M().SongPath[1], "/3/");
    EXPECT_EQ(M().SongPath[2], "/3/");
    EXPECT_EQ(M().SongPath[3], "/4/");
}

TEST_F(Queue, RowsPastFiveHundredHaveNoDirectoryAndAddingThemIsHarmless) {
    for (int i = 0; i < 505; ++i) form1().AddToQueue(QStringLiteral("R%1").arg(i), "/r/");
    EXPECT_EQ(form1().lstSongs.ListCount(), 505);
    EXPECT_EQ(M().SongPath[500], "/r/");
}

}  // namespace
