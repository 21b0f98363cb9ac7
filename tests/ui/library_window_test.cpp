// The library panel in the real window over a real library: opened from its button, a far
// row picked, a cell typed into, its column menus used. Screenshots of each stage.
#include <QAbstractEventDispatcher>
#include <QTableView>

#include "WindowsFixture.h"
#include "engine/data/SqliteDataControl.h"

using namespace sonarium;

namespace {

class LibraryWindowTest : public WindowsFixture {
protected:
    void SetUp() override {
        ProgramFixture::SetUp();
        registerSkin(Form1::BuiltInSkin);
        views = std::make_unique<Views>(programOn(data));
        start();
        if (form1().DatabaseAttached == 0) form1().Form_Activate();
        settle();
    }

    // `count` songs by ten artists on eight albums, with the columns the grid shows first.
    void fill(int count) {
        const QStringList artists = {"Nina Vale",    "The Harbour Band", "Aurora Fields", "Marco Lind",
                                     "Deep Orchard", "Silver Lanes",     "Kite Runner",   "Juniper",
                                     "Echo Park",    "Bramble & Co"};
        const QStringList albums = {"Northern Lights", "Low Tide",   "City of Glass", "Paper Moons",
                                    "Slow Rivers",     "Wild Honey", "Night Shift",   "Open Roads"};
        Recordset& r = data.recordset();
        for (int i = 0; i < count; ++i) {
            const QString artist = artists[i * 7 % 10], album = albums[i * 3 % 8];
            const QString dir = QStringLiteral("/music/%1/%2").arg(artist, album);
            const QString file = QStringLiteral("%1 - Track %2").arg(artist).arg(i % 12 + 1);
            // Path, File, Song Title, Artist, Album
            const QString fields[] = {dir, file, QStringLiteral("Song %1").arg(i + 1), artist, album};
            r.AddNew();
            for (int k = 0; k < 5; ++k) r.Fields(k).setValue(fields[k]);
            r.Fields(QStringLiteral("Path\\File"))
                .setValue(QStringLiteral("%1/%2 %3.MP3").arg(dir, file).arg(i));
            r.Update();
        }
    }

    // The event loop is about to wait: the grid looks at its record set then. The delayed
    // alignment of the column buttons follows on the program's clock.
    void idle() {
        settle();
        emit QAbstractEventDispatcher::instance()->aboutToBlock();
        settle();
        tc.loop.advance(100);
        settle();
    }
    void press(const QString& name) {
        WindowsFixture::press(name);
        idle();
    }
    QTableView& table() { return *find<QTableView>(main(), "DBGrid1"); }
    void clickCell(int row, int column) {
        QTableView& t = table();
        t.scrollTo(t.model()->index(row, column));
        settle();
        click(*t.viewport(), t.visualRect(t.model()->index(row, column)).center());
        idle();
    }
    // The column menu of `column` on the grid's row `row`, and its entry `entry`.
    void menu(int row, int column, const char* entry) {
        clickCell(row, column);
        tc.dialogs.answerPopup(QString::fromLatin1(entry));
        press(QStringLiteral("imgDown(%1)").arg(column));
    }

    SqliteDataControl data;
};

TEST_F(LibraryWindowTest, AFullLibraryOpensLazilyAndTakesTyping) {
    fill(300);
    form1().imgButon[1].Click();
    press("imgDataBase");
    QTableView& grid = table();
    ASSERT_TRUE(grid.isVisible());
    EXPECT_EQ(grid.model()->rowCount(), 300);
    saveScreenshot(main(), "library.png");

    // The view is lazy: a jump far down lands on the right record.
    clickCell(240, 4);
    EXPECT_EQ(data.recordset().AbsolutePosition(), 240);

    // Typing into a Tempo cell goes through the program's key rules and into the record.
    clickCell(1, 9);
    key(grid, Qt::Key_F, "F");
    key(*grid.focusWidget(), Qt::Key_A, "a");
    key(*grid.focusWidget(), Qt::Key_Return);
    idle();
    EXPECT_EQ(data.recordset().Fields(9).Value().toString(), "Fa");
    clickCell(2, 0);
    saveScreenshot(main(), "library-typed.png");
}

// The column menus, the criteria list and Auto-Queue through the window; what each of them
// selects is the library's own rule, tested on the same database by the library's unit tests.
TEST_F(LibraryWindowTest, TheColumnMenusFilterAndCollectCriteriaAndAutoQueueFillsTheQueue) {
    tc.dialogs.setAutoAnswerOk(true);
    fill(24);
    press("imgDataBase");
    press("imgButon(3)");
    menu(0, 4, "mnuFilter");  // the first row's album
    EXPECT_EQ(table().model()->rowCount(), 3);
    saveScreenshot(main(), "library-filtered.png");

    // This album but not one of its songs; then, with the filter off, one more artist.
    menu(0, 4, "mnuAdd");
    menu(1, 2, "mnuExclude");
    press("imgButon(4)");
    menu(0, 3, "mnuAdd");
    whileShown([&](GeneralWindow& w) {
        EXPECT_EQ(find<QListWidget>(w, "List1")->count(), 3);
        saveScreenshot(w, "criteria.png");
        find<QAbstractButton>(w, "cmdOK")->click();
    });
    tc.dialogs.answerPopup("mnuViewCriteria");
    press("imgDown(3)");

    press("cmdAutoSet");
    auto* queue = find<QListWidget>(main(), "lstSongs");
    EXPECT_GT(queue->count(), 0);
    press("imgDataBase");  // the panel closes over the queue
    EXPECT_TRUE(queue->isVisible());
    saveScreenshot(main(), "auto-queue.png");
}

}  // namespace
