// The Qt event loop keeps the same rules as the virtual one, on real time. These tests wait
// for order and nesting only, never for exact timings, and each lasts a few tens of ms.
#include <QtCore/qtestsupport_core.h>
#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QPointer>
#include <QTimer>

#include "CollectedErrors.h"
#include "controls/Errors.h"
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

}  // namespace
}  // namespace sonarium
