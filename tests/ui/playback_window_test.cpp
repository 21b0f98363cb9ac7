// A user's session in the real main window: a folder's songs queued from the title pane, played,
// paused, switched by a click on a row, and faded; screenshots of each state.
#include <QLabel>
#include <QListWidget>

#include "WindowsFixture.h"

using namespace sonarium;

namespace {

class PlaybackWindowTest : public WindowsFixture {
protected:
    void SetUp() override {
        WindowsFixture::SetUp();
        for (const char* name : {"Blue Night", "Harbour Lights", "Northern Road"}) {
            write(QString::fromLatin1(name) + ".MP3", {});
            tc.mp3.addFile(path(QString::fromLatin1(name) + ".MP3"), 7800, 204.0f, 192, 44100, 1);
        }
        program().Main();
        settle();
    }
    void clickRow(QListWidget& list, int row) {
        click(*list.viewport(), list.visualItemRect(list.item(row)).center());
        settle();
    }
};

TEST_F(PlaybackWindowTest, QueuePlayPauseSkipAndFadeFromTheWindow) {
    Form1& f = form1();
    f.Dir1.setPath(QStringLiteral(".."));
    f.Dir1.setPath(dir.path());  // the folder chosen in the browser fills the title pane
    settle();
    ASSERT_EQ(f.CurrentDir, dir.path() + u'/');
    for (int i = 0; i < 3; ++i) {
        auto* title = find<QWidget>(main(), QStringLiteral("Title(%1)").arg(i));
        ASSERT_NE(title, nullptr);
        ASSERT_FALSE(f.Title[i].Caption().isEmpty());
        mouse(*title, QEvent::MouseButtonDblClick, QPoint(5, 5), Qt::LeftButton);
        mouse(*title, QEvent::MouseButtonRelease, QPoint(5, 5), Qt::LeftButton);
    }
    settle();
    auto* queue = find<QListWidget>(main(), "lstSongs");
    ASSERT_EQ(queue->count(), 3);
    f.mnuOrdered.Click();
    settle();
    EXPECT_EQ(queue->item(0)->text(), "Blue Night");

    clickRow(*queue, 0);
    press("BtnPlay");
    ASSERT_TRUE(M().SongPlaying);
    tc.loop.advance(66000);
    settle();
    EXPECT_TRUE(f.lblTime.Caption().startsWith("03:24 / 01:0")) << f.lblTime.Caption().toStdString();
    EXPECT_GT(f.imgButtonSong.Left(), 3705);
    saveScreenshot(main(), "playing.png");

    press("BtnPause");
    EXPECT_TRUE(M().SongPaused);
    saveScreenshot(main(), "paused.png");
    press("BtnPause");
    EXPECT_FALSE(M().SongPaused);

    clickRow(*queue, 2);  // a click on a row during play switches to it at once
    EXPECT_EQ(tc.mp3.openFile(), path("Northern Road.MP3"));
    EXPECT_EQ(main().windowTitle(), "Northern Road");
    EXPECT_TRUE(M().SongPlaying);

    for (int i = 0; i < 3; ++i) press("cmdSpeedUp");
    EXPECT_EQ(find<QLabel>(main(), "lblSpeed")->text(), "115");

    press("BtnFade");
    tc.loop.advance(1000);
    settle();
    EXPECT_EQ(M().Volume, 15);
    saveScreenshot(main(), "fading.png");
    tc.loop.advance(800);
    settle();
    EXPECT_FALSE(M().SongPlaying);
    EXPECT_EQ(M().Volume, 35);
    saveScreenshot(main(), "stopped-after-fade.png");
}

}  // namespace
