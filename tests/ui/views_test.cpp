// Each view kind against its model: user input reaches the model in the platform's terms and
// order, and the widget shows what the model holds, also after the model's handlers change it.
#include <QComboBox>

#include "WindowsFixture.h"

namespace sonarium {
namespace {

class ViewsTest : public WindowsFixture {
protected:
    void SetUp() override {
        WindowsFixture::SetUp();
        start();
    }
    // Records the mouse and click events of a control in `log`, as "down 1 0 45 30", "click"...
    void record(Control& c) {
        auto mouse = [this](const char* what) {
            return [this, what](int b, int s, double x, double y) {
                log << QStringLiteral("%1 %2 %3 %4 %5").arg(QLatin1String(what)).arg(b).arg(s).arg(x).arg(y);
            };
        };
        c.onMouseDown = mouse("down");
        c.onMouseUp = mouse("up");
        c.onClick = [this] { log << "click"; };
        c.onDblClick = [this] { log << "dblclick"; };
    }
    QStringList log;
};

TEST_F(ViewsTest, AnImageButtonReportsMouseInTwipsClicksDoubleClicksAndAKeyPressInTheMiddle) {
    auto* size = find<QAbstractButton>(main(), "imgSize");
    ASSERT_NE(size, nullptr);
    record(form1().imgSize);
    click(*size, QPoint(3, 2));
    EXPECT_EQ(log, QStringList({"down 1 0 45 30", "up 1 0 45 30", "click"}));

    // Double click: the platform's order, with no second press and no second click.
    auto doubleClick = [&] {
        log.clear();
        click(*size, QPoint(0, 0));
        secondClick(*size, QPoint(0, 0));
        return log.join(u',');
    };
    EXPECT_EQ(doubleClick(), "down 1 0 0 0,up 1 0 0 0,click,dblclick,up 1 0 0 0");
    // Without a double click of its own, the quick second press is a whole click.
    form1().imgSize.onDblClick = nullptr;
    EXPECT_EQ(doubleClick(), "down 1 0 0 0,up 1 0 0 0,click,down 1 0 0 0,click,up 1 0 0 0");

    // By keyboard or a screen reader: the handlers that act on mouse-up still run.
    log.clear();
    size->click();
    EXPECT_EQ(log, QStringList({"down 1 0 82.5 82.5", "up 1 0 82.5 82.5", "click"}));
}

// A list fires its click on the press, before the mouse-up; a handler that changes the list
// while handling the pick leaves the widget showing the outcome.
TEST_F(ViewsTest, AListShowsTheModelAndAPickBecomesItsListIndex) {
    auto* queue = find<QListWidget>(main(), "lstSongs");
    ListBox& model = form1().lstSongs;
    for (const char* s : {"One", "Two", "Three"}) model.AddItem(QString::fromLatin1(s));
    record(model);
    click(*queue->viewport(), rowAt(*queue, 1));
    EXPECT_EQ(model.ListIndex(), 1);
    EXPECT_EQ(log.mid(1, 1), QStringList({"click"}));

    bool once = true;  // setting the index clicks again
    model.onClick = [&] {
        if (!std::exchange(once, false)) return;
        model.RemoveItem(0);
        model.setListIndex(-1);
    };
    key(*queue, Qt::Key_Down);
    EXPECT_EQ(queue->currentRow(), -1);
    EXPECT_EQ(queue->item(0)->text(), "Two");
}

// The form has each key before the box with the focus; a key with a text goes through the
// box's key press handler and lands at the cursor.
TEST_F(ViewsTest, TypingGoesToTheFormFirstThenThroughTheKeyPressHandlerAtTheCursor) {
    form1().PanelSongInfo.setVisible(true);
    auto* year = find<QLineEdit>(main(), "txtYear");
    year->setFocus();
    TextBox& model = form1().txtYear;
    QStringList formSaw;  // each key's code, and the box's text then
    form1().onKeyDown = [&](int& code, int) {
        formSaw << QStringLiteral("%1 '%2'").arg(code).arg(model.Text());
    };
    model.onKeyPress = [](int& k) {  // digits only, as a year box might want
        if (k != 8 && (k < '0' || k > '9')) k = 0;
    };
    key(*year, Qt::Key_1, "1");
    for (const char* c : {"9", "x", "8"}) key(*year, Qt::Key_unknown, QString::fromLatin1(c));
    key(*year, Qt::Key_Backspace);
    year->setCursorPosition(1);
    key(*year, Qt::Key_unknown, "2");
    EXPECT_EQ(model.Text(), "129");
    EXPECT_EQ(formSaw, QStringList({"49 ''", "8 '198'"}));
    model.setText(QStringLiteral("MCMLXXXIV"));
    EXPECT_EQ(year->text(), "MCMLXXXIV");
}

// A check box asks the model for the next value; a drop-down's pick becomes its index and clicks.
TEST_F(ViewsTest, ACheckBoxAsksTheModelForTheNextValueAndADropDownPickFiresTheClick) {
    auto* loop = find<QAbstractButton>(main(), "chkLoop");
    CheckBox& model = form1().chkLoop;
    int clicks = 0;
    model.onClick = [&] { ++clicks; };
    loop->click();
    EXPECT_EQ(model.Value(), 1);
    model.setValue(2);  // greyed: the next click clears it
    loop->click();
    EXPECT_EQ(model.Value(), 0);
    EXPECT_FALSE(loop->isChecked());
    EXPECT_EQ(clicks, 3);  // the program's change counts as a click, as the platform's did

    form1().PanelCdToMP3.setVisible(true);
    form1().cboBitRate.onClick = [&] { ++clicks; };
    emit find<QComboBox>(main(), "cboBitRate")->activated(10);
    EXPECT_EQ(form1().cboBitRate.ListIndex(), 10);
    EXPECT_EQ(clicks, 4);
}

TEST_F(ViewsTest, TheDirectoryListMovesByDoubleClickOrDuringAScanWhenItLosesTheFocus) {
    main().activateWindow();  // the window manager's part, which offscreen lacks
    settle();
    QDir(dir.path()).mkpath("Music/Jazz");
    auto* dirs = find<QListWidget>(main(), "Dir1");
    DirListBox& model = form1().Dir1;
    model.setPath(dir.filePath("Music"));
    const QPoint jazz = rowAt(*dirs, dirs->count() - 1);
    secondClick(*dirs->viewport(), jazz);
    EXPECT_EQ(model.Path(), dir.filePath("Music/Jazz"));

    // During a scan the directory highlighted takes effect when the list loses the focus to
    // another control.
    model.setPath(dir.filePath("Music"));
    form1().SearchRunning = true;
    click(*dirs->viewport(), jazz);
    ASSERT_TRUE(dirs->hasFocus());
    EXPECT_EQ(model.Path(), dir.filePath("Music"));
    click(*find<QListWidget>(main(), "lstSongs")->viewport(), QPoint(5, 5));
    EXPECT_EQ(model.Path(), dir.filePath("Music/Jazz"));
}

}  // namespace
}  // namespace sonarium
