#pragma once
// The one event loop that the logic sees. All handlers run on the UI thread; `post` is the
// only call that other threads may make. Time is seen only through `now()` and `wallClock()`,
// so tests can drive everything with a virtual clock.
//
// Rules both implementations keep:
// - A timer whose handler is still open (it waits inside doEvents) is not entered again: its
//   missed ticks are dropped, and it goes on at its own schedule.
// - Every other timer and posted call does run inside a nested wait.
// - Work due at the same moment runs in the order it was scheduled.
// - stopTimer is safe inside the timer's own handler.
#include <QDateTime>
#include <cstdint>
#include <functional>
#include <stdexcept>

namespace sonarium {

// A wait that can never end (tests only: a virtual clock with nothing left to run).
class WaitStuck : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

class EventLoop {
public:
    using TimerId = int;
    using Task = std::function<void()>;

    virtual ~EventLoop() = default;

    // Milliseconds on a monotonic clock.
    virtual std::int64_t now() const = 0;
    // The local date and time of day (the alarm reads it; the shuffle seeds from it).
    virtual QDateTime wallClock() const = 0;

    // Queue a call for the UI thread. Safe from any thread.
    virtual void post(Task fn) = 0;

    // A repeating timer (or one shot), first due `intervalMs` from now. Returns a non-zero id.
    virtual TimerId startTimer(int intervalMs, Task fn, bool singleShot = false) = 0;
    virtual void stopTimer(TimerId id) = 0;

    // One pass over what was ready when called, then return.
    virtual void doEvents() = 0;

    // Let events run until the predicate holds. Handlers nest inside the wait.
    virtual void waitUntil(const std::function<bool()>& done) = 0;
};

}  // namespace sonarium
