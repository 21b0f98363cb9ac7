// The real message boxes: each button set shows its buttons, the first one the default, with
// the caller's text as plain text; each button, Escape and the window's close give the caller
// the answer the program expects.
#include <gtest/gtest.h>

#include <QApplication>
#include <QKeyEvent>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>
#include <functional>

#include "ui/QtDialogs.h"

namespace sonarium {
namespace {

void escape(QWidget& box) {
    QKeyEvent press(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
    QCoreApplication::sendEvent(&box, &press);
}

// A button's text without its mnemonic mark.
QString shownText(const QAbstractButton* b) { return b ? b->text().remove(u'&') : QString(); }

struct BoxCase {
    MsgButtons set;
    QStringList names;               // the buttons as shown, the default first
    std::vector<MsgResult> answers;  // theirs, in the same order
    MsgResult escaped;               // Escape's, and the window's close's
};

TEST(QtDialogsTest, EachButtonSetShowsItsButtonsAndAnswersForEachWayOfClosing) {
    using B = MsgButtons;
    using R = MsgResult;
    // One set for each way a box can be closed without a button, between them every button.
    const BoxCase cases[] = {
        {B::OK, {"OK"}, {R::OK}, R::OK},
        {B::AbortRetryIgnore, {"Abort", "Retry", "Ignore"}, {R::Abort, R::Retry, R::Ignore}, R::Abort},
        {B::YesNoCancel, {"Yes", "No", "Cancel"}, {R::Yes, R::No, R::Cancel}, R::Cancel},
        {B::YesNo, {"Yes", "No"}, {R::Yes, R::No}, R::No},
    };
    const QString text = QStringLiteral("Replace <b>Rock & Roll</b>?");  // shown as it is, not as markup
    QtDialogs dialogs;
    for (const BoxCase& c : cases) {
        SCOPED_TRACE(c.names.join(u' ').toStdString());
        // Asks, and runs `act` on the modal box once its own event loop runs.
        auto ask = [&](const std::function<void(QMessageBox&)>& act) {
            QTimer::singleShot(0, qApp, [act] {
                auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
                ASSERT_NE(box, nullptr) << "no modal box is up";
                act(*box);
            });
            return dialogs.msgBox(text, c.set, MsgIcon::Question, QString());
        };
        for (std::size_t i = 0; i < c.answers.size(); ++i) {
            const MsgResult answer = ask([&](QMessageBox& box) {
                QStringList shown;
                for (QAbstractButton* b : box.buttons()) shown << shownText(b);
                EXPECT_EQ(QSet(shown.begin(), shown.end()), QSet(c.names.begin(), c.names.end()));
                EXPECT_EQ(shownText(box.defaultButton()), c.names.first());
                EXPECT_EQ(box.text(), text);
                EXPECT_EQ(box.textFormat(), Qt::PlainText);
                for (QAbstractButton* b : box.buttons())
                    if (shownText(b) == c.names[qsizetype(i)]) b->click();
            });
            EXPECT_EQ(answer, c.answers[i]) << c.names[qsizetype(i)].toStdString();
        }
        EXPECT_EQ(ask([](QMessageBox& box) { escape(box); }), c.escaped) << "Escape";
        EXPECT_EQ(ask([](QMessageBox& box) { box.close(); }), c.escaped) << "close";
    }
}

}  // namespace
}  // namespace sonarium
