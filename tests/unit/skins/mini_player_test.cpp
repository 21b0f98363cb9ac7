// The mini player on the virtual clock: the title's scroll and wrap, hints and their hold, the
// pages of the queue and of the sets with Back and Forward at their ends, dragging by hand,
// the start in mini mode and its three ways out; and the main window's roll, stick bar and
// swap. (What each button sends to the transport is the transport's own rule.)
#include "ProgramFixture.h"
#include "playback/SliderTravel.h"
#include "shell/FrmMiniPlayer.h"

using namespace sonarium;

namespace {

class MiniPlayer : public StartedProgramFixture {
protected:
    FrmMiniPlayer& mini() { return program().frmMiniPlayer; }
    // A queue of `n` songs that open, "Song 0" to "Song n-1".
    void queue(int n) {
        for (int i = 0; i < n; ++i) {
            form1().AddToQueue(QStringLiteral("Song %1").arg(i), path("") + "/");
            tc.mp3.addFile(path(QStringLiteral("Song %1.MP3").arg(i)), 100, 2.6f);
        }
    }
    QStringList page() { return mini().lstSongSets.rows(); }
    // The queue row selected, and the page's first row and selection.
    QString where() {
        return QStringLiteral("%1 %2 %3")
            .arg(form1().lstSongs.ListIndex())
            .arg(page().value(0))
            .arg(mini().lstSongSets.ListIndex());
    }
};

TEST_F(MiniPlayer, TitleScrollHintsAndTheirHold) {
    FrmMiniPlayer& f = mini();
    M().MiniTitleText = "ABCDEF";
    f.Timer1.setInterval(150);
    f.Timer1.setEnabled(true);
    QStringList shown;
    for (int i = 0; i < 4; ++i) tc.loop.advance(150), shown << f.Picture1.printed();
    EXPECT_EQ(shown, QStringList({"ABCDE", "BCDE", "CDE", "ABCDE"}))
        << "back to the start past half the text";

    // A hint stops the scroll, stands 1250 ms, then the title comes back.
    f.ButtonBack.MouseMove(0, 0, 0, 0);
    EXPECT_EQ(f.Picture1.printed(), "Back");
    EXPECT_EQ(f.Picture1.CurrentX(), 100);
    EXPECT_FALSE(f.Timer1.Enabled());
    tc.loop.advance(1249);
    f.ButtonPlay.MouseMove(0, 0, 0, 0);  // a new hint starts the time again
    EXPECT_EQ(f.Picture1.printed(), "Start Play");
    tc.loop.advance(1250);
    EXPECT_EQ(f.Picture1.printed(), "ABCDEF") << "no song plays: the whole title stands";

    // A confirmation holds off the two save hints until it has had its time; others show.
    f.cmsSaveTB.Click();
    f.cmdSaveDefaults.MouseMove(0, 0, 0, 0);
    EXPECT_EQ(f.Picture1.printed(), "Treble/Bass Saved...............");
    f.cmdQuit.MouseMove(0, 0, 0, 0);
    EXPECT_EQ(f.Picture1.printed(), "Quit");
    tc.loop.advance(1250);
    f.cmsSaveTB.MouseMove(0, 0, 0, 0);
    EXPECT_EQ(f.Picture1.printed(), "Record T/B for song");
}

TEST_F(MiniPlayer, PagesOfTheQueueWithBackAndForwardAtTheirEnds) {
    FrmMiniPlayer& f = mini();
    f.GetSongs();
    EXPECT_TRUE(page().isEmpty()) << "an empty queue leaves the page as it is";
    f.ButtonForward.MouseUp(LeftButton, 0, 0, 0);
    f.ButtonBack.Click();
    EXPECT_EQ(where(), "-1  -1");

    queue(12);
    f.ButtonPlay.MouseDown(LeftButton, 0, 0, 0);
    EXPECT_EQ(where(), "0 Song 0 0") << "Play took the first row, and the empty page shows it";
    f.ButtonPlay.MouseDown(LeftButton, 0, 0, 0);
    EXPECT_FALSE(M().SongPlaying);
    form1().lstSongs.setListIndex(7);
    f.GetSongs();
    EXPECT_EQ(where(), "7 Song 5 2") << "the selection walked, page by page, to the song";
    EXPECT_FALSE(M().QueueClickOff);
    for (int i = 0; i < 3; ++i) f.ButtonForward.MouseUp(LeftButton, 0, 0, 0);
    EXPECT_EQ(where(), "10 Song 10 0") << "the last row of a page turns it";
    f.ButtonForward.MouseUp(LeftButton, 0, 0, 0);
    f.ButtonForward.MouseUp(LeftButton, 0, 0, 0);
    EXPECT_EQ(where(), "11 Song 10 1") << "the queue's last row stops, on a page not full";
    f.cmdDown.Click();
    EXPECT_EQ(where(), "10 Song 10 0") << "the last page stays; the selection goes to SetTop's row";
    f.ButtonBack.Click();
    EXPECT_EQ(where(), "9 Song 5 4") << "the first row of a later page turns back";
    f.cmdUp.Click();
    EXPECT_EQ(where(), "4 Song 0 4");
    for (int i = 0; i < 5; ++i) f.ButtonBack.Click();
    EXPECT_EQ(where(), "0 Song 0 0") << "the first row of the first page stops";

    // In a pause, Forward resumes the song first.
    form1().BtnPlay.MouseUp(LeftButton, 0, 0, 0);
    f.ButtonPause.Click();
    ASSERT_TRUE(M().SongPaused);
    f.ButtonForward.MouseDown(LeftButton, 0, 0, 0);
    EXPECT_FALSE(M().SongPaused);
    EXPECT_TRUE(f.ButtonForward.picture().sameAs(f.ButtonForwardPress.picture()));
}

TEST_F(MiniPlayer, PagesOfTheSetsWalkTheQueueBehindThem) {
    FrmMiniPlayer& f = mini();
    for (const char* name : {"b", "A", "c", "d", "e", "f", "g"}) write(QString(name) + ".EST", "");
    queue(3);
    form1().lstSongs.setListIndex(1);
    f.cmdListType.Click();
    EXPECT_EQ(M().MiniListType, 1);
    EXPECT_TRUE(f.lblSongSets.Visible() && !f.lblSongQueue.Visible());
    EXPECT_EQ(page(), QStringList({"A", "b", "c", "d", "e"}));
    f.cmdDown.Click();
    f.cmdDown.Click();
    EXPECT_EQ(page(), QStringList({"f", "g"}));
    f.cmdUp.Click();
    EXPECT_EQ(page().value(0), "A");
    f.ButtonForward.MouseUp(LeftButton, 0, 0, 0);
    f.ButtonForward.MouseUp(LeftButton, 0, 0, 0);
    EXPECT_EQ(form1().lstSongs.ListIndex(), 2) << "the queue's last row stops";
    f.ButtonBack.Click();
    EXPECT_EQ(form1().lstSongs.ListIndex(), 1);
}

TEST_F(MiniPlayer, DraggedByHandFromTheScreensPointer) {
    FrmMiniPlayer& f = mini();
    f.Move(3000, 1500, 5850, 1320);
    f.MouseDown(LeftButton, 0, 600.4, 300);
    EXPECT_EQ(f.Timer1.Interval(), 10);
    tc.desktop.cursor = {9000, 4500};
    tc.loop.advance(10);
    EXPECT_EQ(std::pair(f.Left(), f.Top()), std::pair(8400, 4200));
    tc.desktop.cursor = {6000, 3000};
    f.MouseUp(LeftButton, 0, 0, 0);
    EXPECT_EQ(std::pair(f.Left(), f.Top()), std::pair(5400, 2700));
    EXPECT_EQ(f.Timer1.Interval(), 150);
    EXPECT_FALSE(f.Timer1.Enabled()) << "no song plays";
}

TEST_F(MiniPlayer, StartInMiniModeAndItsWaysOut) {
    write("Config.dat", " 1 \r\n");
    prog.reset();
    program().Main();
    FrmMiniPlayer& f = mini();
    EXPECT_TRUE(f.Visible());
    EXPECT_FALSE(form1().Visible());
    f.Activate();
    EXPECT_EQ(M().MiniMode, 1);

    // The system's close keeps neither file.
    QFile::remove(path("Config.dat"));
    QFile::remove(path("Mixer.dat"));
    f.QueryUnload();
    EXPECT_TRUE(tc.desktop.quitCode().has_value());
    EXPECT_FALSE(QFile::exists(path("Config.dat")) || QFile::exists(path("Mixer.dat")));
    // Quit keeps both, with the window's place.
    f.Move(4500, 3000, f.Width(), f.Height());
    f.cmdQuit.Click();
    EXPECT_TRUE(read("Config.dat").startsWith(" 1 \r\n"));
    EXPECT_TRUE(read("Mixer.dat").contains(" 3000 \r\n 4500 \r\n"));
    // Main Screen brings up the main window, which shows the photo on its next activation.
    f.cmdFullScreen.Click();
    EXPECT_TRUE(form1().Visible() && !f.Visible());
    EXPECT_EQ(M().MiniMode, 0);
    EXPECT_TRUE(M().ReturnedFromMini);
}

using WindowModes = StartedProgramFixture;

TEST_F(WindowModes, TheRollTheStickBarAndTheSwap) {
    Form1& f = form1();
    QList<int> heights;
    f.subscribe([&] {
        if (heights.isEmpty() || heights.back() != f.Height()) heights << f.Height();
    });
    f.imgSize.Click();
    ASSERT_EQ(heights.size(), 45);
    EXPECT_EQ(heights[43], 750) << "43 steps of 150 from 7200";
    EXPECT_EQ(f.Height(), 780);
    EXPECT_FALSE(f.mnuFile.Visible() || f.mnuView.Visible() || f.mnuHelp.Visible());
    EXPECT_FALSE(f.PanelVU.Visible()) << "the meter is off";
    EXPECT_EQ(f.Caption(), "");
    f.mnuInfo.setChecked(true);
    f.imgSize.Click();
    EXPECT_EQ(f.Height(), 8200) << "the page panel's height";
    EXPECT_TRUE(f.mnuFile.Visible() && f.imgSLiderSong.Visible());
    f.mnuInfo.setChecked(false);

    // The bar's own menu and drag work only while rolled up.
    f.imgStick.MouseDown(RightButton, 0, 0, 0);
    EXPECT_TRUE(tc.dialogs.shown().empty());
    f.StickOnly();
    tc.dialogs.answerPopup("");
    f.imgStick.MouseDown(RightButton, 0, 0, 0);
    EXPECT_EQ(tc.dialogs.shown().size(), 1);
    f.imgStick.MouseDown(LeftButton, 0, 0, 0);
    const int limit = 1080 * 15 - 495;
    for (double x : {3000.0, 0.0, double(limit), limit - 1.0}) f.imgStick.MouseMove(LeftButton, 0, x, 5);
    EXPECT_EQ(f.Top(), limit - 1);
    f.imgStick.MouseUp(LeftButton, 0, 0, 0);
    f.imgStick.MouseMove(0, 0, 3000, 5);
    EXPECT_EQ(f.Top(), limit - 1);

    // The swap: the mixer saved, the main window away while the mini player is up, and the
    // sliders set from the values when it comes back.
    M().Treble = 80;
    program().C.loop.startTimer(
        100, [this] { program().frmMiniPlayer.cmdFullScreen.Click(); }, true);
    f.mnuMiniPlayer.Click();
    EXPECT_TRUE(QFile::exists(path("Mixer.dat")));
    EXPECT_TRUE(f.Visible());
    EXPECT_EQ(f.SliderTreble.Top(), slider::topFor(slider::TrebleTop, 80));
}

}  // namespace
