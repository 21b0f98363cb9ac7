// The title pane's paging, the ways rows enter and leave the queue with their quirks, the two
// orders, and a queue longer than the directory store.

#include "PlaybackFixture.h"

using namespace sonarium;

namespace {

class Queue : public PlaybackFixture {
protected:
    QStringList captions() {
        QStringList out;
        for (auto& label : form1().Title) out << label->Caption();
        return out;
    }
};

TEST_F(Queue, TheTitlePanePagesByTwelveAndItsTitlesEnterTheQueue) {
    for (int i = 1; i <= 12; ++i) write(QStringLiteral("Song%1.MP3").arg(i, 2, 10, QLatin1Char('0')), {});
    Form1& f = form1();
    const QString here = dir.path() + u'/';
    f.CurrentDir = here;
    f.GetTitles();
    f.cmdDown.Click();  // 12 is not greater than 12: the page stays, and it is empty
    f.cmdDown.Click();  // 24 > 12 takes one page back: the same empty page
    EXPECT_EQ(f.TitleTop, 12);
    EXPECT_EQ(captions(), QStringList(12, QString()));
    f.Title[5].DblClick();  // an empty label adds an empty row
    f.cmdUp.Click();
    f.cmdUp.Click();  // back to the first page, and no further
    f.Title[0].DblClick();
    f.Title[0].DblClick();  // no check for doubles
    EXPECT_EQ(rows(), QStringList({"", "Song01", "Song01"}));
    EXPECT_EQ(dirs(), QStringList(3, here));

    // Add All adds what is not queued yet; for a title already there it still stores CurrentDir
    // at the last row, whichever song that is.
    f.cmdDeleteAll.Click();
    f.Title[0].DblClick();
    queue({"Elsewhere"}, "/other/");
    f.cmdAddAll.Click();
    EXPECT_EQ(rows().mid(0, 3), QStringList({"Song01", "Elsewhere", "Song02"}));
    EXPECT_EQ(dirs(), QStringList(13, here));

    // A directory without songs clears the pane.
    f.CurrentDir = path("none") + u'/';
    f.GetTitles();
    EXPECT_EQ(f.TitleCount, 0);
    EXPECT_EQ(captions(), QStringList(12, QString()));
}

TEST_F(Queue, DeleteSelectsTheNeighbourBeforeTheDirectoriesMove) {
    Form1& f = form1();
    tc.dialogs.answer(MsgResult::OK);
    f.cmdDelete.Click();
    EXPECT_EQ(tc.dialogs.texts(), QStringList({"Song not selected, click on a song in the song queue"}));

    queue({"A"}, "/a/");
    queue({"B", "C", "D"}, "/b/");
    M().PunchStart = {10, 20, 30, 40};
    M().PunchActive = {1, 0, 1, 0};
    f.lstSongs.setListIndex(1);
    f.cmdDelete.Click();  // row 1 goes; the punch loop stops one short of the old last row
    EXPECT_EQ(rows(), QStringList({"A", "C", "D"}));
    EXPECT_EQ(M().PunchStart, (std::vector<std::int32_t>{10, 30, 30, 40}));
    EXPECT_EQ(M().PunchActive, (std::vector<std::int16_t>{1, 1, 1, 0}));

    // Deleting the first row: row 0 is loaded from the deleted row's directory, which lacks it.
    f.lstSongs.setListIndex(0);
    tc.dialogs.answer(MsgResult::No);
    tc.mp3.clearCalls();
    f.cmdDelete.Click();
    EXPECT_TRUE(tc.mp3.calls().contains("Open(/a/C.MP3,)"));
    EXPECT_EQ(rows(), QStringList({"C", "D"}));
    EXPECT_EQ(dirs(), QStringList({"/b/", "/b/"}));

    f.cmdDeleteAll.Click();
    queue({"Last"});
    f.lstSongs.setListIndex(0);
    f.cmdDelete.Click();  // selecting row 0 of an empty list fails silently
    EXPECT_EQ(f.lstSongs.ListCount(), 0);
}

TEST_F(Queue, OrderedSortsWithoutCaseAndShuffleHalvesTheEndsChancesBothKeepingEachRowsDirectory) {
    Form1& f = form1();
    // Rows of equal text share the later one's directory.
    for (auto [text, songDir] :
         {std::pair{"beta", "/1/"}, {"Alpha", "/2/"}, {"beta", "/3/"}, {"Gamma", "/4/"}})
        queue({text}, songDir);
    f.mnuOrdered.Click();
    EXPECT_EQ(rows(), QStringList({"Alpha", "beta", "beta", "Gamma"}));
    EXPECT_EQ(dirs(), QStringList({"/2/", "/3/", "/3/", "/4/"}));

    // Rows past 500 have no directory, and adding them is harmless.
    for (int i = 0; i < 505; ++i) f.AddToQueue(QStringLiteral("R%1").arg(i), "/r/");
    EXPECT_EQ(f.lstSongs.ListCount(), 509);

    // A draw is round(r * 2): row 1 comes twice as often as either end at each try, so it
    // leads a shuffled queue of three half of the time.
    int bFirst = 0;
    const int runs = 2000;
    for (int i = 0; i < runs; ++i) {
        f.cmdDeleteAll.Click();
        for (const QString t : {"A", "B", "C"}) queue({t}, u'/' + t + u'/');
        tc.loop.advance(7);
        f.Shuffle();
        ASSERT_EQ(dirs(),
                  QStringList({u'/' + rows()[0] + u'/', u'/' + rows()[1] + u'/', u'/' + rows()[2] + u'/'}));
        bFirst += rows()[0] == "B";
    }
    EXPECT_NEAR(bFirst / double(runs), 0.5, 0.05);

    f.lstSongs.setListIndex(0);
    play();
    tc.dialogs.answer(MsgResult::OK);
    f.Shuffle();
    EXPECT_EQ(tc.dialogs.texts(), QStringList({"Cannot shuffle when playing"}));
}

}  // namespace
