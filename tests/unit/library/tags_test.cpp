// The tag write-back from the detail boxes. (The tag's bytes are the player's own, checked with
// it.)
#include "LibraryFixture.h"

using namespace sonarium;

namespace {

using Tags = LibraryFixture;

TEST_F(Tags, UpdateTagWritesOnlyTheFilledBoxesButNotWhilePlaying) {
    Form1& f = form1();
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

}  // namespace
