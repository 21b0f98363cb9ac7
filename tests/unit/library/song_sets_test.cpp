// Song sets: the .EST bytes, the extension rules and the overwrite question, and the comma shift
// on reading back. (The list of sets loads through the same reading.)
#include "LibraryFixture.h"

using namespace sonarium;

namespace {

using SongSets = LibraryFixture;

TEST_F(SongSets, SavingWritesTwoLinesARowAndAppendsTheExtensionAfterTheQuestion) {
    Form1& f = form1();
    tc.dialogs.answer(MsgResult::OK);
    f.mnuSaveSongSet.Click();
    EXPECT_EQ(tc.dialogs.texts(), QStringList({"Song Queue Empty!"}));

    const QByteArray evening = "/music/Jazz/\r\nTake Five\r\n/music/Pop, Rock/\r\nHey, You\r\n";
    f.AddToQueue("Take Five", "/music/Jazz/");
    f.AddToQueue("Hey, You", "/music/Pop, Rock/");
    write("Evening.EST", "old");
    tc.dialogs.clear();
    tc.dialogs.answerFile(path("Evening"));  // no question: "Evening" itself doesn't exist
    f.mnuSaveSongSet.Click();
    EXPECT_EQ(tc.dialogs.shown().size(), 1u);
    EXPECT_EQ(read("Evening.EST"), evening);

    tc.dialogs.clear();
    tc.dialogs.answerFile(path("Evening.EST")).answer(MsgResult::No);
    f.lstSongs.Clear();
    f.AddToQueue("Other", "/x/");
    f.mnuSaveSongSet.Click();
    EXPECT_EQ(tc.dialogs.shown()[1].text, "File already exists, overwrite?");
    EXPECT_EQ(read("Evening.EST"), evening);

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
    EXPECT_EQ(f.lstSongs.rows(), QStringList({"Take Five", "Hey", "/music/Pop/", "/music/Pop/"}));
    EXPECT_EQ(M().SongPath[2], "You");
    EXPECT_EQ(M().SongPath[3], "Last") << "an odd count repeats the title before";

    tc.dialogs.answerFile(path("songs.txt")).answer(MsgResult::OK);
    f.mnuLoadSongSet.Click();
    EXPECT_EQ(tc.dialogs.texts().last(), "This is not a song set file");
}

}  // namespace
