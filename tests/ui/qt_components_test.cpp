// The Qt implementations of the program's event loop and dialogs.
//
// The Qt event loop keeps the same rules as the virtual one, on real time. These tests wait
// for order and nesting only, never for exact timings, and each lasts a few tens of ms.
//
// The real message boxes: each button set shows its buttons, the first one the default, with
// the caller's text as plain text; each button, Escape and the window's close give the caller
// the answer the program expects.
#include <QtCore/qtestsupport_core.h>
#include <gtest/gtest.h>

#include <QApplication>
#include <QKeyEvent>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <QTimer>
#include <functional>

#include "CollectedErrors.h"
#include "controls/Errors.h"
#include "ui/QtDialogs.h"
#include "ui/QtEventLoop.h"

namespace sonarium {
namespace {

class QtEventLoopTest : public ::testing::Test {
protected:
    CollectedErrors errors;
    QtEventLoop loop{errors};
};

TEST_F(QtEventLoopTest, OpenTimerIsNotReenteredWhileOthersRunInsideItsWait) {
    bool insideA = false, reentered = false, released = false;
    int aRuns = 0, bInsideA = 0, postsInsideA = 0;
    const auto a = loop.startTimer(2, [&] {
        if (insideA) reentered = true;
        if (++aRuns > 1) return;
        insideA = true;
        loop.post([&] { postsInsideA += insideA; });
        loop.waitUntil([&] { return released; });
        insideA = false;
    });
    const auto b = loop.startTimer(2, [&] { bInsideA += insideA; });
    loop.startTimer(
        30, [&] { released = true; }, true);

    loop.waitUntil([&] { return aRuns >= 3; });  // it goes on ticking once its handler closed
    loop.stopTimer(a);
    loop.stopTimer(b);
    EXPECT_FALSE(reentered);
    EXPECT_GT(bInsideA, 0);
    EXPECT_EQ(postsInsideA, 1);
}

// Stopped from a nested handler while its own handler still waits: it never runs again, and
// its QTimer goes only after that handler has closed.
TEST_F(QtEventLoopTest, ATimerStoppedWhileItsHandlerIsOpenNeverRunsAgain) {
    int openRuns = 0;
    bool stoppedWhileOpen = false;
    QPointer<QTimer> openTimer;
    EventLoop::TimerId open = 0;
    open = loop.startTimer(1, [&] {
        ++openRuns;
        loop.post([&] {
            loop.stopTimer(open);
            stoppedWhileOpen = !openTimer.isNull();  // still there: its handler is open
        });
        loop.waitUntil([&] { return stoppedWhileOpen; });
    });
    for (QTimer* t : loop.findChildren<QTimer*>())
        if (t->isActive()) openTimer = t;
    loop.waitUntil([&] { return stoppedWhileOpen; });
    // Long enough that another tick would show, however slowly a loaded machine delivers them.
    QTest::qWait(20);
    EXPECT_EQ(openRuns, 1);
    EXPECT_TRUE(stoppedWhileOpen);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(openTimer.isNull());
}

TEST_F(QtEventLoopTest, PostsRunInOrderAndAFailureInOneIsLoggedAndTheLoopGoesOn) {
    std::vector<int> seen;
    loop.post([&] { seen.push_back(1); });
    loop.post([] { throw RuntimeError(RuntimeError::FileNotFound, "File not found"); });
    loop.post([&] { seen.push_back(2); });
    loop.waitUntil([&] { return seen.size() == 2; });
    EXPECT_EQ(seen, std::vector<int>({1, 2}));
    EXPECT_EQ(errors.list, QStringList({"error 53: File not found"}));
}

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
