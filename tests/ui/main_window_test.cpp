// The real windows over the program on fakes: what a user and a screen reader see at start,
// and that the window's events reach the models and the program's procedures. The close
// request is tested on the real program in program_process_test.
#include <QAccessible>
#include <QAction>
#include <QMenuBar>

#include "WindowsFixture.h"

namespace sonarium {
namespace {

using MainWindowTest = WindowsFixture;

TEST_F(MainWindowTest, StartShowsTheSplashThenTheMainWindowWithItsNamesForReaders) {
    // The splash is up while the program loads: the entry procedure lets events run once
    // before the slow part, and this runs there.
    bool splashSeen = false;
    tc.loop.post([&] {
        splashSeen = views->general().isVisible();
        saveScreenshot(views->general(), "splash.png");
    });
    program().Main();
    settle();
    EXPECT_TRUE(splashSeen);
    EXPECT_FALSE(views->general().isVisible());
    ASSERT_TRUE(main().isVisible());

    // The image buttons take the keyboard's focus and carry their names; labels say what they
    // show, a control array's members their place.
    auto* play = find<QAbstractButton>(main(), "BtnPlay");
    ASSERT_NE(play, nullptr);
    EXPECT_EQ(play->focusPolicy(), Qt::StrongFocus);
    EXPECT_EQ(QAccessible::queryAccessibleInterface(play)->text(QAccessible::Name), "Play");
    auto* time = find<QLabel>(main(), "lblTime");
    EXPECT_EQ(time->accessibleName(), time->text());
    EXPECT_EQ(time->accessibleDescription(), "Elapsed time");
    EXPECT_EQ(find<QLabel>(main(), "Title(3)")->accessibleDescription(), "Title 4");
    EXPECT_EQ(find<QListWidget>(main(), "lstSongs")->accessibleName(), "Song queue");

    // A queue and a title pane with songs in them, so the picture shows real text.
    Form1& f = form1();
    const QStringList titles = {"Blue Monday",     "Cathedral Bells", "Desert Highway", "Evening Tide",
                                "Firelight Waltz", "Golden Hour",     "Harbour Lights", "Indigo Rain",
                                "Jasmine Road",    "Kingfisher",      "Lantern Parade", "Midnight Train"};
    for (int i = 0; i < 12; ++i) f.Title[i].setCaption(titles[i]);
    for (int i : {0, 5, 6, 11}) {
        f.lstSongs.AddItem(titles[i]);
        tc.mp3.addFile(titles[i] + ".MP3", 11000, 287.0f);  // selecting a row loads it
    }
    f.lstSongs.setListIndex(1);
    const std::pair<Label*, const char*> captions[] = {
        {&f.lblSongTitile, "Golden Hour"}, {&f.lblTime, "01:23"},         {&f.lblBitrate, "128 kbps"},
        {&f.lblFrequency, "44.1 kHz"},     {&f.lblSongDuration, "04:56"}, {&f.lblTotTime, "17:42"}};
    for (auto [label, text] : captions) label->setCaption(QString::fromLatin1(text));
    saveScreenshot(main(), "main-window.png");
}

TEST_F(MainWindowTest, AMenuEntryRunsItsClickAndShowsTheModelsCheckMarkAndTheBarGoesWithTheLastMenu) {
    program().Main();
    settle();
    QAction* vu = main().menus().actionOf(form1().mnuVU);
    int clicks = 0;
    form1().mnuVU.onClick = [&] { form1().mnuVU.setChecked(++clicks == 2); };
    vu->trigger();  // Qt would tick it; the model did not
    EXPECT_FALSE(vu->isChecked());
    vu->trigger();
    EXPECT_TRUE(vu->isChecked());

    // The small bar the program shrinks to: the form's outer height less its caption, and no
    // menu bar once the last menu is hidden.
    for (MenuItem* m : form1().menuBar()) m->setVisible(false);
    form1().setHeight(780);
    settle();
    EXPECT_FALSE(main().menuBar()->isVisible());
    EXPECT_EQ(main().height(), 37);
}

TEST_F(MainWindowTest, AboutIsModalItsOkClosesItAndTheWindowsReturnActivatesTheForm) {
    int activations = 0;
    auto programActivate = form1().onActivate;
    form1().onActivate = [&] {
        ++activations;
        programActivate();
    };
    program().Main();
    settle();
    EXPECT_EQ(activations, 1);
    bool seen = false;
    // The About box waits, letting events run, until it is hidden: this runs inside that wait.
    whileShown([&](GeneralWindow& about) {
        seen = about.isVisible() && about.isModal();
        EXPECT_EQ(QGuiApplication::focusWindow(), about.windowHandle());
        saveScreenshot(about, "about.png");
        find<QAbstractButton>(about, "SScmdOK")->click();
    });
    main().menus().actionOf(form1().mnuAbout)->trigger();
    EXPECT_TRUE(seen);
    EXPECT_FALSE(views->general().isVisible());
    // The window manager gives the focus back; the offscreen platform has none, so the test does.
    main().activateWindow();
    settle();
    EXPECT_EQ(activations, 2);
}

}  // namespace
}  // namespace sonarium
