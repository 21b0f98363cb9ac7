#pragma once
// SIGTERM and SIGINT as a close request. The signal handler only writes a byte into a socket
// pair (the one thing it may safely do); the UI thread's notifier reads it and runs the close
// path, between events like any other request. The old handlers come back when this goes.
#include <QObject>
#include <csignal>
#include <functional>

class QSocketNotifier;

namespace sonarium {

class TerminationSignals : public QObject {
public:
    explicit TerminationSignals(std::function<void()> onSignal, QObject* parent = nullptr);
    ~TerminationSignals() override;

private:
    static void handler(int);

    std::function<void()> onSignal_;
    int fds_[2] = {-1, -1};
    QSocketNotifier* notifier_ = nullptr;
    struct sigaction oldTerm_ {}, oldInt_ {};
};

}  // namespace sonarium
