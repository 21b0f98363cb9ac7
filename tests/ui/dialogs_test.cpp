// The real message and input boxes: each button set shows its buttons, the first one the
// default, with the caller's text, title and icon; each button, Escape and the window's close
// give the caller the answer the program expects.
#include <gtest/gtest.h>

#include <QApplication>
#include <QInputDialog>
#include <QKeyEvent>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>
#include <functional>

#include "ui/QtDialogs.h"

namespace sonarium {
namespace {

// Runs `act` on the modal box once its own event loop runs.
template <class Box>
void whenUp(const std::function<void(Box&)>& act) {
    QTimer::singleShot(0, qApp, [act] {
        auto* box = qobject_cast<Box*>(QApplication::activeModalWidget());
        ASSERT_NE(box, nullptr) << "no modal box is up";
        act(*box);
    });
}

void escape(QWidget& box) {
    QKeyEvent press(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
    QCoreApplication::sendEvent(&box, &press);
}

// A button's text without its mnemonic mark.
QString shownText(const QAbstractButton* b) {
    return b ? b->text().remove(u'&') : QString();
}

struct BoxCase {
    MsgButtons set;
    MsgIcon icon;
    QMessageBox::Icon shown;
    std::vector<std::pair<QString, MsgResult>> buttons;  // as shown, the default first, and their answers
    MsgResult escaped;                                   // Escape, and the window's close
};

TEST(QtDialogsTest, EachButtonSetShowsItsButtonsAndAnswersForEachWayOfClosing) {
    using B = MsgButtons;
    using I = MsgIcon;
    using Q = QMessageBox;
    using R = MsgResult;
    const BoxCase cases[] = {
        {B::OK, I::None, Q::NoIcon, {{"OK", R::OK}}, R::OK},
        {B::OKCancel, I::Information, Q::Information, {{"OK", R::OK}, {"Cancel", R::Cancel}}, R::Cancel},
        {B::AbortRetryIgnore,
         I::Critical,
         Q::Critical,
         {{"Abort", R::Abort}, {"Retry", R::Retry}, {"Ignore", R::Ignore}},
         R::Abort},
        {B::YesNoCancel,
         I::Question,
         Q::Question,
         {{"Yes", R::Yes}, {"No", R::No}, {"Cancel", R::Cancel}},
         R::Cancel},
        {B::YesNo, I::Exclamation, Q::Warning, {{"Yes", R::Yes}, {"No", R::No}}, R::No},
        {B::RetryCancel, I::Exclamation, Q::Warning, {{"Retry", R::Retry}, {"Cancel", R::Cancel}}, R::Cancel},
    };
    const QString text = QStringLiteral("Replace <b>Rock & Roll</b>?");  // shown as it is, not as markup
    QtDialogs dialogs;
    for (const BoxCase& c : cases) {
        QStringList names;
        for (const auto& button : c.buttons) names << button.first;
        SCOPED_TRACE(names.join(u' ').toStdString());
        // Every other box has no title of its own and shows the program's name.
        const QString title = names.size() % 2 ? QStringLiteral("Database") : QString();
        auto ask = [&](const std::function<void(QMessageBox&)>& act) {
            whenUp<QMessageBox>(act);
            return dialogs.msgBox(text, c.set, c.icon, title);
        };
        for (const auto& button : c.buttons) {
            const MsgResult answer = ask([&](QMessageBox& box) {
                QStringList shown;
                for (QAbstractButton* b : box.buttons()) shown << shownText(b);
                EXPECT_EQ(QSet(shown.begin(), shown.end()), QSet(names.begin(), names.end()));
                EXPECT_EQ(shownText(box.defaultButton()), names.first());
                EXPECT_EQ(box.text(), text);
                EXPECT_EQ(box.textFormat(), Qt::PlainText);
                EXPECT_EQ(box.icon(), c.shown);
                EXPECT_EQ(box.windowTitle(),
                          title.isEmpty() ? QGuiApplication::applicationDisplayName() : title);
                for (QAbstractButton* b : box.buttons())
                    if (shownText(b) == button.first) b->click();
            });
            EXPECT_EQ(answer, button.second) << button.first.toStdString();
        }
        EXPECT_EQ(ask([](QMessageBox& box) { escape(box); }), c.escaped) << "Escape";
        EXPECT_EQ(ask([](QMessageBox& box) { box.close(); }), c.escaped) << "close";
    }
}

TEST(QtDialogsTest, TheInputBoxGivesTheTextOnOkAndNothingOnCancel) {
    QtDialogs dialogs;
    whenUp<QInputDialog>([](QInputDialog& box) {
        EXPECT_EQ(box.windowTitle(), "New Folder");
        EXPECT_EQ(box.labelText(), "Name of the folder:");
        EXPECT_EQ(box.textValue(), "Jazz");
        box.setTextValue("Blues");
        box.accept();
    });
    EXPECT_EQ(dialogs.inputBox("Name of the folder:", "New Folder", "Jazz"), "Blues");
    whenUp<QInputDialog>([](QInputDialog& box) { escape(box); });
    EXPECT_EQ(dialogs.inputBox("Name of the folder:", "New Folder", "Jazz"), "");
}

}  // namespace
}  // namespace sonarium
