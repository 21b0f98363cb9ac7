#include "ui/QtEventLoop.h"

#include <QCoreApplication>
#include <QTimer>

#include "controls/Errors.h"

namespace sonarium {

// A started timer. The timeout connection holds only a weak reference; while the handler runs,
// fire() holds a strong one, so a timer stopped inside its own handler outlives that handler.
struct QtEventLoop::TimerState {
    TimerId id;
    QTimer* timer;
    Task fn;
    bool singleShot;
    bool open = false;     // its handler is running (maybe waiting in a nested doEvents)
    bool stopped = false;  // stopped or done; its QTimer goes once no handler of it is open
};

QtEventLoop::QtEventLoop(ErrorReporter& errors, QObject* parent) : QObject(parent), errors_(errors) {
    clock_.start();
}

// Qt's dispatcher is not exception-safe, so a failure must end at the top of its event:
// it is reported, and the program goes on.
void QtEventLoop::runEvent(const Task& fn) {
    if (fn) tryStep(errors_, fn);
}

// The QTimers are children of this object and go with it.
QtEventLoop::~QtEventLoop() = default;

QDateTime QtEventLoop::wallClock() const { return QDateTime::currentDateTime(); }

void QtEventLoop::post(Task fn) {
    // A queued call on this object runs on the thread it lives on, in the order posted.
    QMetaObject::invokeMethod(
        this, [this, fn = std::move(fn)] { runEvent(fn); }, Qt::QueuedConnection);
}

EventLoop::TimerId QtEventLoop::startTimer(int intervalMs, Task fn, bool singleShot) {
    auto t =
        std::make_shared<TimerState>(TimerState{++lastTimer_, new QTimer(this), std::move(fn), singleShot});
    t->timer->setTimerType(Qt::PreciseTimer);
    t->timer->setSingleShot(singleShot);
    t->timer->setInterval(std::max(intervalMs, 0));
    connect(t->timer, &QTimer::timeout, this, [this, weak = std::weak_ptr<TimerState>(t)] {
        if (auto s = weak.lock()) fire(s);
    });
    t->timer->start();
    timers_.emplace(t->id, t);
    return t->id;
}

void QtEventLoop::stopTimer(TimerId id) {
    auto it = timers_.find(id);
    if (it == timers_.end()) return;
    std::shared_ptr<TimerState> t = it->second;
    timers_.erase(it);
    t->stopped = true;
    t->timer->stop();
    if (!t->open) retire(*t);
}

void QtEventLoop::retire(TimerState& t) {
    if (!t.timer) return;
    t.timer->stop();
    t.timer->deleteLater();
    t.timer = nullptr;
}

void QtEventLoop::fire(const std::shared_ptr<TimerState>& t) {
    if (t->stopped) return;  // a tick that was already queued when it stopped
    if (t->open) {
        // Its handler is still waiting below us: drop the tick, never bunch it. The QTimer
        // keeps counting at its own schedule.
        ++dropped_;
        return;
    }
    if (t->singleShot) {
        timers_.erase(t->id);
        t->stopped = true;
    }
    t->open = true;
    runEvent(t->fn);
    t->open = false;
    if (t->stopped) retire(*t);
}

void QtEventLoop::doEvents() { QCoreApplication::processEvents(); }

void QtEventLoop::waitUntil(const std::function<bool()>& done) {
    // Sleeps in the dispatcher until something arrives; no busy spin.
    while (!done()) QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
}

}  // namespace sonarium
