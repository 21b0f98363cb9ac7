// The genre table, the tag write-back from the detail boxes and the limits on typing.
#include "ProgramFixture.h"

using namespace sonarium;

namespace {

class Tags : public ProgramFixture {
protected:
    void SetUp() override {
        ProgramFixture::SetUp();
        program().Main();
        tc.dialogs.clear();
    }
};

TEST_F(Tags, TheGenreTableKeepsItsOwnSpellingsInBothLists) {
    Form1& f = form1();
    ASSERT_EQ(f.cboGenre.ListCount(), 80);
    ASSERT_EQ(f.ListGen.ListCount(), 80);
    EXPECT_EQ(f.cboGenre.List(7), "Hip -Hop");
    EXPECT_EQ(f.cboGenre.List(14), "R& B");
    EXPECT_EQ(f.cboGenre.List(67), "Psychadelic");
    EXPECT_EQ(f.ListGen.List(79), "Hard Rock");
}

TEST_F(Tags, UpdateTagWritesOnlyTheFilledBoxesAndReadsThemBack) {
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
    const QStringList calls = tc.mp3.calls();
    EXPECT_EQ(calls.mid(0, 5), QStringList({"Close", "Open(/m/Song.MP3,)", "SetTagTitle(New Title)", "SetTagGenre(8)",
                                            "Close"}));
    EXPECT_EQ(calls[5], "WriteTag");
    EXPECT_EQ(tc.mp3.tagOf("/m/Song.MP3").title, "New Title");

    f.BtnPlay.MouseUp(LeftButton, 0, 0, 0);
    tc.dialogs.answer(MsgResult::OK);
    f.cmdUpdateTag.Click();
    EXPECT_EQ(tc.dialogs.texts(), QStringList({"Can't update whilst track is playing"}));
}

TEST_F(Tags, FullBoxesDropPrintableKeysOnly) {
    Form1& f = form1();
    f.txtYear.setText("1999");
    int key = '1';
    f.txtYear.onKeyPress(key);
    EXPECT_EQ(key, 0);
    key = 8;  // backspace
    f.txtYear.onKeyPress(key);
    EXPECT_EQ(key, 8);
    f.txtTitle.setText(QString(29, 'a'));
    key = 'b';
    f.txtTitle.onKeyPress(key);
    EXPECT_EQ(key, 'b');
    key = ' ';
    f.txtTrackTitle.onKeyPress(key);
    EXPECT_EQ(key, 0) << "track titles take no blanks";
}

}  // namespace
