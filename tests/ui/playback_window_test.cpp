// A user's session in the real main window: a folder's songs queued from the title pane, played,
// paused, switched by a click on a row, and faded, its details seen from the View menu;
// screenshots of each state. The times, the fade's volumes, the queue's order and the
// captions are the playback unit tests' to check.

#include "WindowsFixture.h"
#include "engine/id3/Id3v1Writer.h"

using namespace sonarium;

namespace {

using PlaybackWindowTest = WindowsFixture;

TEST_F(PlaybackWindowTest, QueuePlayPauseSkipAndFadeFromTheWindow) {
    for (const char* name : {"Blue Night", "Harbour Lights", "Northern Road"}) {
        write(QString::fromLatin1(name) + ".MP3", {});
        tc.mp3.addFile(path(QString::fromLatin1(name) + ".MP3"), 7800, 204.0f, 192, 44100, 1);
    }
    // The last song carries a tag, for the song's details to show.
    Id3v1Changes tag;
    tag.title = QStringLiteral("Northern Road");
    ASSERT_TRUE(writeId3v1(path("Northern Road.MP3"), tag));
    program().Main();
    Form1& f = form1();
    f.Dir1.setPath(QStringLiteral(".."));
    f.Dir1.setPath(dir.path());  // the folder chosen in the browser fills the title pane
    settle();
    for (int i = 0; i < 3; ++i) secondClick(*find(main(), QStringLiteral("Title(%1)").arg(i)), QPoint(5, 5));
    auto* queue = find<QListWidget>(main(), "lstSongs");
    ASSERT_EQ(queue->count(), 3);
    f.mnuOrdered.Click();
    click(*queue->viewport(), rowAt(*queue, 0));
    press("BtnPlay");
    ASSERT_TRUE(M().SongPlaying);
    tc.loop.advance(66000);
    settle();
    EXPECT_EQ(find<QLabel>(main(), "lblTime")->text(), f.lblTime.Caption());
    saveScreenshot(main(), "playing.png");
    press("BtnPause");
    EXPECT_TRUE(M().SongPaused);
    saveScreenshot(main(), "paused.png");
    press("BtnPause");

    click(*queue->viewport(), rowAt(*queue, 2));  // a click on a row during play switches to it at once
    EXPECT_EQ(tc.mp3.openFile(), path("Northern Road.MP3"));

    press("BtnFade");
    tc.loop.advance(1000);
    settle();
    saveScreenshot(main(), "fading.png");
    tc.loop.advance(800);
    settle();
    EXPECT_FALSE(M().SongPlaying);
    saveScreenshot(main(), "stopped-after-fade.png");

    // View: the song's details, read from its tag, take the photo's place.
    main().menus().actionOf(f.mnuSongInfo)->trigger();
    settle();
    EXPECT_FALSE(find(main(), "PanelPhoto")->isVisible());
    auto* title = find<QLineEdit>(main(), "txtTitle");
    ASSERT_TRUE(title->isVisible());
    EXPECT_TRUE(title->text().startsWith("Northern Road")) << title->text().toStdString();
    saveScreenshot(main(), "song-details.png");
}

}  // namespace
