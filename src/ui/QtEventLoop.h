#pragma once
// The program's event loop on Qt: the UI thread's own event dispatcher does the work.
//
// Threading: post() may be called from any thread (it queues a call on this object, which
// lives on the UI thread); everything else is for the UI thread only.
// Timers: one precise QTimer each. A timer whose handler is still open (it waits in
// doEvents/waitUntil) is not entered again; its missed ticks are dropped, and the QTimer keeps
// its own schedule. A stopped timer's QTimer is deleted later, never while its handler is open.
#include <QElapsedTimer>
#include <QObject>
#include <map>
#include <memory>

#include "controls/Errors.h"
#include "controls/EventLoop.h"

class QTimer;

namespace sonarium {

class QtEventLoop : public QObject, public EventLoop {
    Q_OBJECT

public:
    // Failures of the calls it runs go to `errors`.
    explicit QtEventLoop(ErrorReporter& errors, QObject* parent = nullptr);
    ~QtEventLoop() override;

    std::int64_t now() const override { return clock_.elapsed(); }
    QDateTime wallClock() const override;
    void post(Task fn) override;
    TimerId startTimer(int intervalMs, Task fn, bool singleShot = false) override;
    void stopTimer(TimerId id) override;
    void doEvents() override;
    void waitUntil(const std::function<bool()>& done) override;

    // Ticks of open timers that were dropped rather than run.
    int droppedTicks() const { return dropped_; }

private:
    struct TimerState;
    void fire(const std::shared_ptr<TimerState>& t);
    void runEvent(const Task& fn);
    void retire(TimerState& t);

    ErrorReporter& errors_;
    QElapsedTimer clock_;
    std::map<TimerId, std::shared_ptr<TimerState>> timers_;
    TimerId lastTimer_ = 0;
    int dropped_ = 0;
};

}  // namespace sonarium
