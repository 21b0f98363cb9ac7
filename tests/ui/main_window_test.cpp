// The real main window and its dialog over the program on fakes: what a user and a screen
// reader see at start, that the window's events reach the models and the program's
// procedures, a user's session, the dialog's faces and the skins; screenshots of each. The
// close request is tested on the real program in program_process_test.
#include <QAccessible>
#include <QAction>
#include <QDirIterator>
#include <QMenuBar>

#include "WindowsFixture.h"

namespace sonarium {
namespace {

using MainWindowTest = WindowsFixture;

// The general window as the splash while the program loads and as the modal About box; what a
// user and a screen reader see of the main window; its menu entries, down to the small bar the
// program shrinks to.
TEST_F(MainWindowTest, TheSplashTheNamesForReadersTheMenusAndAbout) {
    int activations = 0;
    auto programActivate = form1().onActivate;
    form1().onActivate = [&] {
        ++activations;
        programActivate();
    };
    // The entry procedure lets events run once before the slow part, and this runs there.
    bool splashSeen = false;
    tc.loop.post([&] {
        splashSeen = views->general().isVisible();
        saveScreenshot(views->general(), "splash.png");
    });
    start();
    EXPECT_TRUE(splashSeen);
    EXPECT_FALSE(views->general().isVisible());
    ASSERT_TRUE(main().isVisible());
    EXPECT_EQ(activations, 1);
    saveScreenshot(main(), "main-window.png");

    // The image buttons take the keyboard's focus and carry their names; labels say what they
    // show, a control array's members their place.
    auto* play = find<QAbstractButton>(main(), "BtnPlay");
    ASSERT_NE(play, nullptr);
    EXPECT_EQ(play->focusPolicy(), Qt::StrongFocus);
    EXPECT_EQ(QAccessible::queryAccessibleInterface(play)->text(QAccessible::Name), "Play");
    auto* time = find<QLabel>(main(), "lblTime");
    EXPECT_EQ(time->accessibleName(), time->text());
    EXPECT_EQ(find<QLabel>(main(), "Title(3)")->accessibleDescription(), "Title 4");
    EXPECT_EQ(find<QListWidget>(main(), "lstSongs")->accessibleName(), "Song queue");

    // A menu entry runs its click and shows the model's check mark, not the one Qt would set.
    QAction* vu = main().menus().actionOf(form1().mnuVU);
    int clicks = 0;
    form1().mnuVU.onClick = [&] { form1().mnuVU.setChecked(++clicks == 2); };
    vu->trigger();
    EXPECT_FALSE(vu->isChecked());
    vu->trigger();
    EXPECT_TRUE(vu->isChecked());

    // The About box waits, letting events run, until it is hidden: this runs inside that wait.
    bool seen = false;
    whileShown([&](GeneralWindow& about) {
        seen = about.isVisible() && about.isModal();
        EXPECT_EQ(QGuiApplication::focusWindow(), about.windowHandle());
        saveScreenshot(about, "about.png");
        find<QAbstractButton>(about, "SScmdOK")->click();
    });
    main().menus().actionOf(form1().mnuAbout)->trigger();
    EXPECT_TRUE(seen);
    // A separator is a line: styles show a separator's text as a titled section.
    const QAction* line = main().menus().actionOf(form1().mnuFileSep1);
    EXPECT_TRUE(line->isSeparator() && line->text().isEmpty());
    EXPECT_FALSE(views->general().isVisible());
    // The window manager gives the focus back; the offscreen platform has none, so the test does.
    main().activateWindow();
    settle();
    EXPECT_EQ(activations, 2);

    // The small bar the program shrinks to: the form's outer height less its caption, and no
    // menu bar once the last menu is hidden.
    for (MenuItem* m : form1().menuBar()) m->setVisible(false);
    form1().setHeight(780);
    settle();
    EXPECT_FALSE(main().menuBar()->isVisible());
    EXPECT_EQ(main().height(), 37);
}

// A user's session: a folder's songs queued from the title pane, played, paused and faded, its
// details seen from the View menu; screenshots of each state. The times, the fade's volumes,
// what a click on a row does during play, the queue's order and the captions are the playback
// unit tests' to check.
TEST_F(MainWindowTest, QueuePlayPauseAndFadeFromTheWindow) {
    for (const char* name : {"Blue Night", "Harbour Lights", "Northern Road"}) {
        write(QString::fromLatin1(name) + ".MP3", {});
        tc.mp3.addFile(path(QString::fromLatin1(name) + ".MP3"), 7800, 204.0f, 192, 44100, 1);
    }
    // The first song carries an ID3v1 tag with its title, for the song's details to show.
    write("Blue Night.MP3", QByteArray("TAGBlue Night").leftJustified(127, '\0') + '\xFF');
    program().Main();
    Form1& f = form1();
    f.Dir1.setPath(QStringLiteral(".."));
    f.Dir1.setPath(dir.path());  // the folder chosen in the browser fills the title pane
    settle();
    for (int i = 0; i < 3; ++i) secondClick(*find(main(), QStringLiteral("Title(%1)").arg(i)), QPoint(5, 5));
    auto* queue = find<QListWidget>(main(), "lstSongs");
    ASSERT_EQ(queue->count(), 3);
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

    press("BtnFade");
    tc.loop.advance(1000);
    settle();
    saveScreenshot(main(), "fading.png");
    tc.loop.advance(800);
    settle();
    saveScreenshot(main(), "stopped-after-fade.png");

    // View: the song's details, read from its tag, take the photo's place.
    main().menus().actionOf(f.mnuSongInfo)->trigger();
    settle();
    auto* title = find<QLineEdit>(main(), "txtTitle");
    ASSERT_TRUE(title->isVisible());
    EXPECT_TRUE(title->text().startsWith("Blue Night")) << title->text().toStdString();
    saveScreenshot(main(), "song-details.png");
}

// The dialog's scan and add faces: each face shows its own controls (the scan face its
// sub-folder box, the add face the folder's songs), a user's pick in its file list reaches the
// model, and its buttons answer and close it.
TEST_F(MainWindowTest, TheDialogsScanAndAddFacesShowTheirControlsAndAnswer) {
    QDir().mkpath(path("Albums"));
    write("Song.MP3", {});
    tc.mp3.addFile(path("Song.MP3"), 100, 65);
    tc.dialogs.setAutoAnswerOk(true);
    program().Main();
    whileShown([&](GeneralWindow& w) {
        QWidget* subs = find(w, "chkSubs");
        ASSERT_TRUE(subs && subs->isVisible());
        saveScreenshot(w, "scan-dialog.png");
        find<QAbstractButton>(w, "cmdOK")->click();
    });
    form1().cmdSearch.Click();
    EXPECT_EQ(tc.dialogs.texts(), QStringList({"1 new titles found"}));

    whileShown([&](GeneralWindow& w) {
        auto* files = find<QListWidget>(w, "File1");
        ASSERT_TRUE(files && files->count() == 1);
        click(*files->viewport(), rowAt(*files, 0));
        EXPECT_EQ(program().frmGeneral.File1.FileName(), "Song.MP3");
        saveScreenshot(w, "add-dialog.png");
        find<QAbstractButton>(w, "cmdAdd")->click();
        find<QAbstractButton>(w, "CmdClose")->click();
    });
    form1().CmdDataAdd.Click();
    settle();
    EXPECT_FALSE(views->general().isVisible());
    EXPECT_EQ(tc.dialogs.texts().last(), "File Added");
}

// The main window in its skins, for people to look at: the built-in look, the other skins
// shipped with the program, and the playing state with the lamps lit. Which piece dresses which
// control is the skin unit tests' to check.
TEST_F(MainWindowTest, SkinsTheBuiltInLookTheOtherSkinsAndPlaying) {
    start();
    Form1& f = form1();
    saveScreenshot(main(), "skin-default.png");
    press("imgDataBase");
    saveScreenshot(main(), "skin-default-library.png");
    press("imgDataBase");

    // Every other skin shipped beside the default one loads whole.
    for (QDirIterator it(QStringLiteral(SONARIUM_SKINS_DIR), QDir::Dirs | QDir::NoDotAndDotDot);
         it.hasNext();) {
        const QString dir = it.next();
        if (QFileInfo(dir).fileName() == QLatin1String("Default")) continue;
        registerSkin(dir);
        M().SkinPath = dir;
        f.LoadSkin();
        settle();
        EXPECT_EQ(f.PicDatabase.picture().source(), dir + "/PanelDatabase.bmp");
        saveScreenshot(main(), "skin-" + QFileInfo(dir).fileName().toLower() + ".png");
    }

    // Back in the built-in look: a song playing with the meter in the slider's place.
    f.ApplySkinFiles(Form1::BuiltInSkin);
    f.AddToQueue("Harbour Lights", dir.path() + u'/');
    tc.mp3.addFile(path("Harbour Lights.MP3"), 11000, 287.0f);
    f.mnuVU.Click();
    tc.peak.setReadings({1300 * tc.peak.Maximum() / 1800});
    f.BtnPlay.MouseUp(LeftButton, 0, 0, 0);
    tc.loop.advance(1000);
    settle();
    saveScreenshot(main(), "skin-playing.png");
}

}  // namespace
}  // namespace sonarium
