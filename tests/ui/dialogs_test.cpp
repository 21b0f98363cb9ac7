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

QString shownText(const QAbstractButton* b) { return b ? b->text().remove(u'&') : QStringLiteral("none"); }

struct BoxCase {
    MsgButtons set;
    MsgIcon icon;
    QMessageBox::Icon shown;
    QString title;  // none: the program's name
    QStringList buttons;
    std::vector<MsgResult> answers;  // of each button
    MsgResult escaped;               // Escape, and the window's close
};

TEST(QtDialogsTest, EachButtonSetShowsItsButtonsAndAnswersForEachWayOfClosing) {
    using R = MsgResult;
    const BoxCase cases[] = {
        {MsgButtons::OK, MsgIcon::None, QMessageBox::NoIcon, "Database", {"OK"}, {R::OK}, R::OK},
        {MsgButtons::OKCancel, MsgIcon::Information, QMessageBox::Information, "", {"OK", "Cancel"},
         {R::OK, R::Cancel}, R::Cancel},
        {MsgButtons::AbortRetryIgnore, MsgIcon::Critical, QMessageBox::Critical, "Copy", {"Abort", "Retry", "Ignore"},
         {R::Abort, R::Retry, R::Ignore}, R::Abort},
        {MsgButtons::YesNoCancel, MsgIcon::Question, QMessageBox::Question, "", {"Yes", "No", "Cancel"},
         {R::Yes, R::No, R::Cancel}, R::Cancel},
        {MsgButtons::YesNo, MsgIcon::Exclamation, QMessageBox::Warning, "Delete", {"Yes", "No"}, {R::Yes, R::No},
         R::No},
        {MsgButtons::RetryCancel, MsgIcon::Exclamation, QMessageBox::Warning, "", {"Retry", "Cancel"},
         {R::Retry, R::Cancel}, R::Cancel},
    };
    const QString text = QStringLiteral("Replace <b>Rock & Roll</b>?");  // shown as it is, not as markup
    QtDialogs dialogs;
    for (const BoxCase& c : cases) {
        SCOPED_TRACE(c.buttons.join(u' ').toStdString());
        auto ask = [&](const std::function<void(QMessageBox&)>& act) {
            whenUp<QMessageBox>(act);
            return dialogs.msgBox(text, c.set, c.icon, c.title);
        };
        for (qsizetype i = 0; i < c.buttons.size(); ++i) {
            const MsgResult answer = ask([&](QMessageBox& box) {
                QStringList shown;
                for (QAbstractButton* b : box.buttons()) shown << shownText(b);
                EXPECT_EQ(QSet(shown.begin(), shown.end()), QSet(c.buttons.begin(), c.buttons.end()));
                EXPECT_EQ(shownText(box.defaultButton()), c.buttons.first());
                EXPECT_EQ(box.text(), text);
                EXPECT_EQ(box.textFormat(), Qt::PlainText);
                EXPECT_EQ(box.icon(), c.shown);
                EXPECT_EQ(box.windowTitle(), c.title.isEmpty() ? QGuiApplication::applicationDisplayName() : c.title);
                for (QAbstractButton* b : box.buttons())
                    if (shownText(b) == c.buttons[i]) b->click();
            });
            EXPECT_EQ(answer, c.answers[std::size_t(i)]) << c.buttons[i].toStdString();
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
