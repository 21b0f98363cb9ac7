// Each view kind against its model: user input reaches the model in the platform's terms and
// order, and the widget shows what the model holds, also after the model's handlers change it.
#include <QAbstractButton>
#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>

#include "WindowsFixture.h"

namespace sonarium {
namespace {

class ViewsTest : public WindowsFixture {
protected:
    void SetUp() override {
        WindowsFixture::SetUp();
        program().Main();
        settle();
    }
    // Records the mouse and click events of a control as "down 1 0 45 30", "click"...
    QStringList* record(Control& c) {
        auto log = std::make_shared<QStringList>();
        logs.push_back(log);
        auto mouse = [log](const char* what) {
            return [log, what](int b, int s, double x, double y) {
                *log << QStringLiteral("%1 %2 %3 %4 %5").arg(QLatin1String(what)).arg(b).arg(s).arg(x).arg(y);
            };
        };
        c.onMouseDown = mouse("down");
        c.onMouseUp = mouse("up");
        c.onClick = [log] { *log << "click"; };
        c.onDblClick = [log] { *log << "dblclick"; };
        return log.get();
    }
    std::vector<std::shared_ptr<QStringList>> logs;
};

TEST_F(ViewsTest, AnImageButtonReportsMouseInTwipsClicksDoubleClicksAndAKeyPressInTheMiddle) {
    auto* size = find<QAbstractButton>(main(), "imgSize");
    ASSERT_NE(size, nullptr);
    QStringList* log = record(form1().imgSize);

    click(*size, QPoint(3, 2));
    EXPECT_EQ(*log, QStringList({"down 1 0 45 30", "up 1 0 45 30", "click"}));

    // Double click: the platform's order, with no second press and no second click.
    log->clear();
    click(*size, QPoint(0, 0));
    mouse(*size, QEvent::MouseButtonDblClick, QPoint(0, 0), Qt::LeftButton);
    mouse(*size, QEvent::MouseButtonRelease, QPoint(0, 0), Qt::LeftButton);
    EXPECT_EQ(*log, QStringList({"down 1 0 0 0", "up 1 0 0 0", "click", "dblclick", "up 1 0 0 0"}));
    // Without a double click of its own, the quick second press is a whole click.
    form1().imgSize.onDblClick = nullptr;
    log->clear();
    click(*size, QPoint(0, 0));
    mouse(*size, QEvent::MouseButtonDblClick, QPoint(0, 0), Qt::LeftButton);
    mouse(*size, QEvent::MouseButtonRelease, QPoint(0, 0), Qt::LeftButton);
    EXPECT_EQ(*log, QStringList({"down 1 0 0 0", "up 1 0 0 0", "click", "down 1 0 0 0", "click", "up 1 0 0 0"}));

    // By keyboard or a screen reader: the handlers that act on mouse-up still run.
    log->clear();
    size->click();
    EXPECT_EQ(*log, QStringList({"down 1 0 82.5 82.5", "up 1 0 82.5 82.5", "click"}));
}

TEST_F(ViewsTest, AListShowsTheModelAndAPickBecomesItsListIndex) {
    auto* queue = find<QListWidget>(main(), "lstSongs");
    ListBox& model = form1().lstSongs;
    for (const char* s : {"One", "Two", "Three"}) model.AddItem(QString::fromLatin1(s));
    ASSERT_EQ(queue->count(), 3);
    EXPECT_EQ(queue->currentRow(), -1);
    QStringList* log = record(model);

    click(*queue->viewport(), queue->visualItemRect(queue->item(1)).center());
    EXPECT_EQ(model.ListIndex(), 1);
    ASSERT_EQ(log->size(), 3);
    EXPECT_TRUE((*log)[0].startsWith("down 1 0"));
    EXPECT_EQ((*log)[1], "click");
    EXPECT_TRUE((*log)[2].startsWith("up 1 0"));

    // A handler that changes the list while handling the pick: the widget shows the outcome.
    bool once = true;
    model.onClick = [&] {
        if (!std::exchange(once, false)) return;
        model.RemoveItem(0);
        model.setListIndex(-1);
    };
    key(*queue, Qt::Key_Down);
    EXPECT_EQ(queue->count(), 2);
    EXPECT_EQ(queue->currentRow(), -1);
    EXPECT_EQ(queue->item(0)->text(), "Two");

    model.onClick = nullptr;
    model.setListIndex(1);
    // A row added at the end leaves the shown rows and the selection as they are.
    const QListWidgetItem* first = queue->item(0);
    model.AddItem("Four");
    EXPECT_EQ(queue->item(0), first);
    EXPECT_EQ(queue->item(2)->text(), "Four");
    EXPECT_TRUE(queue->item(1)->isSelected());
}

TEST_F(ViewsTest, TypingGoesThroughTheKeyPressHandlerAtTheCursor) {
    form1().PanelSongInfo.setVisible(true);
    auto* year = find<QLineEdit>(main(), "txtYear");
    TextBox& model = form1().txtYear;
    model.onKeyPress = [](int& k) {  // digits only, as a year box might want
        if (k != 8 && (k < '0' || k > '9')) k = 0;
    };
    for (const char* c : {"1", "9", "x", "8"}) key(*year, Qt::Key_unknown, QString::fromLatin1(c));
    key(*year, Qt::Key_Backspace);
    year->setCursorPosition(1);
    key(*year, Qt::Key_unknown, "2");
    EXPECT_EQ(model.Text(), "129");
    EXPECT_EQ(year->text(), "129");
    model.setText(QStringLiteral("MCMLXXXIV"));
    EXPECT_EQ(year->text(), "MCMLXXXIV");
}

TEST_F(ViewsTest, ACheckBoxAsksTheModelForTheNextValue) {
    auto* loop = qobject_cast<QCheckBox*>(find<QAbstractButton>(main(), "chkLoop"));
    ASSERT_NE(loop, nullptr);
    CheckBox& model = form1().chkLoop;
    int clicks = 0;
    model.onClick = [&] { ++clicks; };
    loop->click();
    EXPECT_EQ(model.Value(), 1);
    EXPECT_TRUE(loop->isChecked());
    model.setValue(2);
    EXPECT_EQ(loop->checkState(), Qt::PartiallyChecked);
    loop->click();
    EXPECT_EQ(model.Value(), 0);
    EXPECT_EQ(clicks, 3);
}

TEST_F(ViewsTest, TheDirectoryListMovesByDoubleClickOrDuringAScanWhenItLosesTheFocus) {
    main().activateWindow();  // the window manager's part, which offscreen lacks
    settle();
    QDir(dir.path()).mkpath("Music/Jazz");
    auto* dirs = find<QListWidget>(main(), "Dir1");
    DirListBox& model = form1().Dir1;
    model.setPath(dir.filePath("Music"));
    const QPoint jazz = dirs->visualItemRect(dirs->item(dirs->count() - 1)).center();
    ASSERT_EQ(dirs->item(dirs->count() - 1)->text(), "Jazz");
    mouse(*dirs->viewport(), QEvent::MouseButtonDblClick, jazz, Qt::LeftButton);
    EXPECT_EQ(model.Path(), dir.filePath("Music/Jazz"));
    // Up: the directory's parent row.
    mouse(*dirs->viewport(), QEvent::MouseButtonDblClick, dirs->visualItemRect(dirs->item(dirs->count() - 2)).center(),
          Qt::LeftButton);
    EXPECT_EQ(model.Path(), dir.filePath("Music"));

    // During a scan the directory highlighted takes effect when the list loses the focus to
    // another control.
    form1().SearchRunning = true;
    click(*dirs->viewport(), jazz);
    ASSERT_TRUE(dirs->hasFocus());
    EXPECT_EQ(model.Path(), dir.filePath("Music"));
    click(*find<QListWidget>(main(), "lstSongs")->viewport(), QPoint(5, 5));
    EXPECT_EQ(model.Path(), dir.filePath("Music/Jazz"));
}

TEST_F(ViewsTest, ADropDownPickFiresTheClick) {
    form1().PanelCdToMP3.setVisible(true);
    auto* rate = find<QComboBox>(main(), "cboBitRate");
    int clicks = 0;
    form1().cboBitRate.onClick = [&] { ++clicks; };
    emit rate->activated(10);
    EXPECT_EQ(form1().cboBitRate.ListIndex(), 10);
    EXPECT_EQ(clicks, 1);
    EXPECT_EQ(rate->currentText(), form1().cboBitRate.Text());
}

}  // namespace
}  // namespace sonarium
