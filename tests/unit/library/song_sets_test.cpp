// Song sets: the .EST bytes, the extension rules and the overwrite question, the comma shift on
// reading back, and the list of sets with its double-click load.
#include "ProgramFixture.h"

using namespace sonarium;

namespace {

class SongSets : public ProgramFixture {
protected:
    void SetUp() override {
        ProgramFixture::SetUp();
        program().Main();
        tc.dialogs.clear();
    }
    void queue(const QString& dirName, const QString& title) {
        form1().AddToQueue(title, dirName);
    }
    QStringList rows() { return form1().lstSongs.rows(); }
};

TEST_F(SongSets, SavingWritesTwoLinesARowAndAppendsTheExtensionAfterTheQuestion) {
    Form1& f = form1();
    tc.dialogs.answer(MsgResult::OK);
    f.mnuSaveSongSet.Click();
    ASSERT_EQ(tc.dialogs.shown().size(), 1u);
    EXPECT_EQ(tc.dialogs.shown()[0].text, "Song Queue Empty!");
    EXPECT_EQ(tc.dialogs.shown()[0].icon, MsgIcon::Critical);

    queue("/music/Jazz/", "Take Five");
    queue("/music/Pop, Rock/", "Hey, You");
    write("Evening.EST", "old");
    tc.dialogs.clear();
    tc.dialogs.answerFile(path("Evening"));  // no question: "Evening" itself doesn't exist
    f.mnuSaveSongSet.Click();
    EXPECT_EQ(tc.dialogs.shown().size(), 1u);
    EXPECT_EQ(read("Evening.EST"), QByteArray("/music/Jazz/\r\nTake Five\r\n/music/Pop, Rock/\r\nHey, You\r\n"));
    EXPECT_EQ(tc.dialogs.shown()[0].file.initDir, dir.path());

    tc.dialogs.clear();
    tc.dialogs.answerFile(path("Evening.EST")).answer(MsgResult::No);
    f.lstSongs.Clear();
    queue("/x/", "Other");
    f.mnuSaveSongSet.Click();
    EXPECT_EQ(tc.dialogs.shown()[1].text, "File already exists, overwrite?");
    EXPECT_EQ(read("Evening.EST"), QByteArray("/music/Jazz/\r\nTake Five\r\n/music/Pop, Rock/\r\nHey, You\r\n"));

    tc.dialogs.answerFile(path("Best"));  // ends in "est": counts as a set already
    f.mnuSaveSongSet.Click();
    EXPECT_EQ(read("Best"), QByteArray("/x/\r\nOther\r\n"));
}

TEST_F(SongSets, LoadingReadsByFieldsSoCommasShiftThePairs) {
    Form1& f = form1();
    write("Evening.EST", "/music/Jazz/\r\nTake Five\r\n/music/Pop/\r\nHey, You\r\n/music/Pop/\r\nLast\r\n");
    tc.dialogs.answerFile(path("Evening.EST"));
    f.mnuLoadSongSet.Click();
    // "You" is taken for the third directory, and so on down the file.
    EXPECT_EQ(rows(), QStringList({"Take Five", "Hey", "/music/Pop/", "/music/Pop/"}));
    EXPECT_EQ(M().SongPath[2], "You");
    EXPECT_EQ(M().SongPath[3], "Last") << "an odd count repeats the title before";
    EXPECT_EQ(f.lstSongs.ListIndex(), -1);

    write("Empty.EST", "");
    tc.dialogs.answerFile(path("Empty.EST"));
    f.mnuLoadSongSet.Click();
    EXPECT_EQ(f.lstSongs.ListCount(), 0);

    tc.dialogs.clear();
    tc.dialogs.answerFile(path("songs.txt")).answer(MsgResult::OK);
    f.mnuLoadSongSet.Click();
    EXPECT_EQ(tc.dialogs.texts().last(), "This is not a song set file");
}

TEST_F(SongSets, TheListOffersTheSetsOfTheProgramsDirectoryAndLoadsOnDoubleClick) {
    Form1& f = form1();
    f.mnuSongSets.Click();
    EXPECT_EQ(f.lstSongSets.ListCount(), 0);
    EXPECT_TRUE(f.lstSongSets.Visible());
    EXPECT_FALSE(f.PanelPhoto.Visible());

    write("Morning.EST", "/m/\r\nA\r\n/m/\r\nB\r\n");
    tc.mp3.addFile("/m/A.MP3", 100, 2.6f);
    f.mnuSongSets.Click();
    ASSERT_EQ(f.lstSongSets.rows(), QStringList({"Morning"}));
    f.lstSongSets.setListIndex(0);
    f.lstSongSets.DblClick();
    EXPECT_EQ(rows(), QStringList({"A", "B"}));
    EXPECT_EQ(f.lstSongs.ListIndex(), 0);
    EXPECT_EQ(tc.mp3.openFile(), "/m/A.MP3") << "selecting the first row loads its song";
}

}  // namespace
