#pragma once
// SIGTERM, SIGINT and SIGHUP (a kill, Ctrl+C, a logout) as a request to end. The signal handler
// only writes a byte into a socket pair and wakes the watchdog (the things it may safely do);
// the UI thread's notifier reads the byte and runs the ending between events like any other
// request, also inside a dialog's or a wait's nested loop. Should the program still live
// `deadline` after the signal (a handler that never returns to an event loop), the watchdog
// ends the process: a signal always ends it promptly. The old handlers come back when this goes.
#include <QObject>
#include <chrono>
#include <csignal>
#include <functional>
#include <thread>

class QSocketNotifier;

namespace sonarium {

class TerminationSignals : public QObject {
public:
    // A zero deadline keeps no watchdog.
    TerminationSignals(std::function<void()> onSignal, std::chrono::milliseconds deadline,
                       QObject* parent = nullptr);
    ~TerminationSignals() override;

private:
    static void handler(int);
    static void watch(std::chrono::milliseconds deadline);

    std::function<void()> onSignal_;
    int fds_[2] = {-1, -1};
    QSocketNotifier* notifier_ = nullptr;
    struct sigaction oldTerm_ {
    }, oldInt_{}, oldHup_{};
    std::thread watchdog_;
};

}  // namespace sonarium
