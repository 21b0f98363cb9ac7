// The real windows over the program on fakes: what a user sees at start, what the menus say,
// and that the window's events reach the models and the program's procedures.
#include <QAccessible>
#include <QAction>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QMenuBar>

#include "WindowsFixture.h"
#include "ui/views/MenuBarBinder.h"

namespace sonarium {
namespace {

class MainWindowTest : public WindowsFixture {
protected:
    // Names of the entries of a menu as the menu shows them, separators as "-".
    static QStringList entries(const QList<QAction*>& actions) {
        QStringList out;
        for (QAction* a : actions) out << (a->isSeparator() ? QStringLiteral("-") : a->text());
        return out;
    }

    // A queue and a title pane with songs in them, so the picture shows real text.
    void fillWithSongs() {
        const char* titles[] = {"Blue Monday",     "Cathedral Bells", "Desert Highway",  "Evening Tide",
                                "Firelight Waltz", "Golden Hour",     "Harbour Lights",  "Indigo Rain",
                                "Jasmine Road",    "Kingfisher",      "Lantern Parade",  "Midnight Train"};
        for (int i = 0; i < 12; ++i) form1().Title[i].setCaption(QString::fromLatin1(titles[i]));
        for (const char* s : {"Blue Monday", "Golden Hour", "Harbour Lights", "Midnight Train"}) {
            form1().lstSongs.AddItem(QString::fromLatin1(s));
            tc.mp3.addFile(QString::fromLatin1(s) + ".MP3", 11000, 287.0f);  // selecting a row loads it
        }
        form1().lstSongs.setListIndex(1);
        form1().lblSongTitile.setCaption(QStringLiteral("Golden Hour"));
        form1().lblTime.setCaption(QStringLiteral("01:23"));
        form1().lblBitrate.setCaption(QStringLiteral("128 kbps"));
        form1().lblFrequency.setCaption(QStringLiteral("44.1 kHz"));
        form1().lblSongDuration.setCaption(QStringLiteral("04:56"));
        form1().lblTotTime.setCaption(QStringLiteral("17:42"));
    }
};

TEST_F(MainWindowTest, StartShowsTheSplashThenTheMainWindowWithItsMenusAndNames) {
    // The splash is up while the program loads: the entry procedure lets events run once
    // before the slow part, and this runs there.
    bool splashSeen = false;
    tc.loop.post([&] {
        GeneralWindow& splash = views->general();
        splashSeen = splash.isVisible();
        auto* version = find<QLabel>(splash, "lblVersion");
        ASSERT_NE(version, nullptr);
        EXPECT_EQ(version->text(), "Version 3.4");
        EXPECT_EQ(find<QLabel>(splash, "lblTagline")->text(), "Player / Ripper / Encoder / Decoder / Playlister");
        EXPECT_FALSE(find<QWidget>(splash, "SScmdOK")->isVisible());
        EXPECT_TRUE(splash.windowFlags() & Qt::FramelessWindowHint);
        saveScreenshot(splash, "splash.png");
    });
    program().Main();
    settle();
    EXPECT_TRUE(splashSeen);
    EXPECT_FALSE(views->general().isVisible());

    ASSERT_TRUE(main().isVisible());
    EXPECT_EQ(main().windowTitle(), "Sonarium");
    EXPECT_EQ(main().objectName(), "Form1");
    // Getting the focus the first time attaches the library.
    EXPECT_EQ(form1().DatabaseAttached, 1);

    EXPECT_EQ(entries(main().menuBar()->actions()),
              QStringList({"&File", "View", "&Setup", "Convert", "CD Tray", "&Help"}));
    EXPECT_EQ(entries(find<QMenu>(main(), "mnuFile")->actions()),
              QStringList({"Load Song Set", "Save Song Set", "-", "Create New Database", "Set Default Database",
                           "-", "&Quit"}));
    EXPECT_EQ(entries(find<QMenu>(main(), "mnuView")->actions()),
              QStringList({"&Song Details", "&Photo", "S&ong Sets", "FullScreen", "Info", "Database", "VU Meter",
                           "Zipdeck", "Play Bar Only", "Minimize"}));
    EXPECT_EQ(entries(find<QMenu>(main(), "mnuHelp")->actions()),
              QStringList({"Contents and Index", "About Sonarium"}));
    QAction* quit = main().menus().actionOf(form1().mnuQuit);
    ASSERT_NE(quit, nullptr);
    EXPECT_EQ(quit->objectName(), "mnuQuit");
    EXPECT_EQ(quit->shortcut(), QKeySequence(QStringLiteral("Ctrl+Q")));
    // Popup menus are never in the bar.
    EXPECT_EQ(find<QMenu>(main(), "mnuLoop"), nullptr);
    // The first start has no Blade encoder, yet its entry is the chosen one, greyed.
    QAction* blade = main().menus().actionOf(form1().mnuBlade);
    EXPECT_TRUE(blade->isChecked());
    EXPECT_FALSE(blade->isEnabled());

    auto* play = find<QAbstractButton>(main(), "BtnPlay");
    ASSERT_NE(play, nullptr);
    EXPECT_EQ(play->accessibleName(), "Play");
    EXPECT_EQ(play->focusPolicy(), Qt::StrongFocus);
    QAccessibleInterface* playForReaders = QAccessible::queryAccessibleInterface(play);
    ASSERT_NE(playForReaders, nullptr);
    EXPECT_EQ(playForReaders->role(), QAccessible::Button);
    EXPECT_EQ(playForReaders->text(QAccessible::Name), "Play");
    EXPECT_EQ(QAccessible::queryAccessibleInterface(find<QWidget>(main(), "chkLoop"))->role(), QAccessible::CheckBox);
    EXPECT_EQ(play->mapTo(&main().surface(), QPoint(0, 0)), QPoint(246, 57));
    EXPECT_EQ(play->size(), QSize(42, 20));
    auto* time = find<QLabel>(main(), "lblTime");
    EXPECT_EQ(time->text(), "00:00");
    EXPECT_EQ(time->accessibleName(), "00:00");
    EXPECT_EQ(time->accessibleDescription(), "Elapsed time");
    auto* title3 = find<QLabel>(main(), "Title(3)");
    ASSERT_NE(title3, nullptr);
    EXPECT_EQ(title3->accessibleDescription(), "Title 4");
    EXPECT_NE(find<QListWidget>(main(), "lstSongs"), nullptr);
    EXPECT_EQ(find<QListWidget>(main(), "lstSongs")->accessibleName(), "Song queue");
    EXPECT_TRUE(find<QWidget>(main(), "PanelPhoto")->isVisible());
    EXPECT_FALSE(find<QWidget>(main(), "PanelSongInfo")->isVisible());
    EXPECT_FALSE(find<QWidget>(main(), "imgVUGreen")->isVisibleTo(&main()));

    fillWithSongs();
    EXPECT_EQ(find<QListWidget>(main(), "lstSongs")->count(), 4);
    EXPECT_EQ(find<QListWidget>(main(), "lstSongs")->currentRow(), 1);
    EXPECT_EQ(title3->text(), "Evening Tide");
    saveScreenshot(main(), "main-window.png");
}

TEST_F(MainWindowTest, AboutOpensTheSplashFaceModallyAndItsOkButtonClosesIt) {
    program().Main();
    settle();
    bool seen = false;
    // The About box waits, letting events run, until it is hidden: this runs inside that wait.
    tc.loop.startTimer(
        50,
        [&] {
            GeneralWindow& about = views->general();
            seen = about.isVisible();
            EXPECT_TRUE(about.isModal());
            auto* ok = find<QAbstractButton>(about, "SScmdOK");
            ASSERT_NE(ok, nullptr);
            EXPECT_TRUE(ok->isVisible());
            EXPECT_EQ(ok->accessibleName(), "OK");
            saveScreenshot(about, "about.png");
            ok->click();
        },
        true);
    main().menus().actionOf(form1().mnuAbout)->trigger();
    EXPECT_TRUE(seen);
    EXPECT_FALSE(views->general().isVisible());
    EXPECT_FALSE(program().frmGeneral.PanelSplash.Visible());
}

TEST_F(MainWindowTest, AMenuEntryRunsItsClickAndShowsTheModelsCheckMark) {
    program().Main();
    settle();
    QAction* vu = main().menus().actionOf(form1().mnuVU);
    int clicks = 0;
    form1().mnuVU.onClick = [&] { ++clicks; };
    vu->trigger();  // Qt would tick it; the model did not
    EXPECT_EQ(clicks, 1);
    EXPECT_FALSE(vu->isChecked());
    form1().mnuVU.onClick = [&] { form1().mnuVU.setChecked(!form1().mnuVU.Checked()); };
    vu->trigger();
    EXPECT_TRUE(vu->isChecked());
    form1().mnuVU.setEnabled(false);
    EXPECT_FALSE(vu->isEnabled());
    form1().mnuFile.setVisible(false);
    EXPECT_FALSE(main().menus().actionOf(form1().mnuFile)->isVisible());
    form1().mnuAbout.setCaption(QStringLiteral("&About"));
    EXPECT_EQ(main().menus().actionOf(form1().mnuAbout)->text(), "&About");
}

TEST_F(MainWindowTest, ActivationFiresWhenTheWindowComesBackFromAnotherForm) {
    int activations = 0;
    auto programActivate = form1().onActivate;
    form1().onActivate = [&] {
        ++activations;
        programActivate();
    };
    program().Main();
    settle();
    EXPECT_EQ(activations, 1);
    // The real loop lets window events run during the About box's wait; here the test does.
    tc.loop.startTimer(
        10,
        [&] {
            settle();
            EXPECT_EQ(QGuiApplication::focusWindow(), views->general().windowHandle());
            program().frmGeneral.SScmdOK.Click();
        },
        true);
    main().menus().actionOf(form1().mnuAbout)->trigger();
    // The window manager gives the focus back; the offscreen platform has none, so the test does.
    main().activateWindow();
    settle();
    EXPECT_EQ(activations, 2);

    // A window that is not a form (a message box, another program's window) and back: no event.
    QWidget box;
    box.show();
    box.activateWindow();
    settle();
    ASSERT_EQ(QGuiApplication::focusWindow(), box.windowHandle());
    main().activateWindow();
    settle();
    EXPECT_EQ(QGuiApplication::focusWindow(), main().windowHandle());
    EXPECT_EQ(activations, 2);
}

TEST_F(MainWindowTest, WindowHeightFollowsTheFormAndTheBarGoesWithTheLastMenu) {
    program().Main();
    settle();
    QWidget* client = main().centralWidget();
    EXPECT_EQ(client->size(), QSize(634, 465));
    const int bar = main().menuBar()->height();
    EXPECT_GT(bar, 0);
    EXPECT_EQ(main().height(), bar + 465);

    form1().setHeight(780);
    EXPECT_EQ(client->height(), 37);
    for (MenuItem* m : form1().menuBar()) m->setVisible(false);
    settle();
    EXPECT_FALSE(main().menuBar()->isVisible());
    EXPECT_EQ(main().height(), 37);

    for (MenuItem* m : form1().menuBar()) m->setVisible(true);
    form1().setHeight(7200);
    settle();
    EXPECT_EQ(client->height(), 465);
    EXPECT_EQ(main().height(), main().menuBar()->height() + 465);
}

TEST_F(MainWindowTest, TheCloseRequestRunsTheProgramsCloseAndSavesTheSettings) {
    program().Main();
    settle();
    ASSERT_FALSE(QFile::exists(path("Config.dat")));
    // The program's close cancels the window system's close and hides the window itself.
    EXPECT_FALSE(main().close());
    EXPECT_FALSE(main().isVisible());
    EXPECT_FALSE(form1().Visible());
    EXPECT_TRUE(QFile::exists(path("Config.dat")));
    EXPECT_EQ(tc.desktop.quitCode(), 0);
}

TEST_F(MainWindowTest, KeysGoToTheFormFirstAndASwallowedKeyGoesNoFurther) {
    tc.dialogs.setAutoAnswerOk(true);  // F4 on an empty queue says so
    program().Main();
    settle();
    QList<int> codes;
    auto programKeys = form1().onKeyDown;
    form1().onKeyDown = [&](int& code, int shift) {
        codes << code * 10 + shift;
        programKeys(code, shift);
    };
    auto* title = find<QLineEdit>(main(), "txtTitle");
    ASSERT_NE(title, nullptr);
    form1().PanelSongInfo.setVisible(true);
    settle();
    title->setFocus();
    ASSERT_EQ(main().focusWidget(), title);

    key(*title, Qt::Key_A, "a");
    key(*title, Qt::Key_F4);  // the program's F4 swallows it
    key(*title, Qt::Key_1, "!", Qt::ShiftModifier);
    EXPECT_EQ(codes, QList<int>({650, 1150, 491}));
    EXPECT_EQ(form1().txtTitle.Text(), "a!");
}

}  // namespace
}  // namespace sonarium
