#include "ui/TerminationSignals.h"

#include <QSocketNotifier>
#include <cerrno>
#include <cstdio>
#include <sys/socket.h>
#include <unistd.h>

namespace sonarium {

namespace {
// The write end for the handler: a signal handler can reach nothing but globals.
volatile std::sig_atomic_t writeFd = -1;
}  // namespace

void TerminationSignals::handler(int) {
    const int saved = errno;
    const char byte = 1;
    if (writeFd >= 0) {
        const ssize_t n = ::write(writeFd, &byte, 1);  // a full pipe already holds a request
        (void)n;
    }
    errno = saved;
}

TerminationSignals::TerminationSignals(std::function<void()> onSignal, QObject* parent)
    : QObject(parent), onSignal_(std::move(onSignal)) {
    if (::socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0, fds_) != 0) {
        std::perror("sonarium: no socket pair for SIGTERM and SIGINT");
        return;
    }
    writeFd = fds_[0];
    notifier_ = new QSocketNotifier(fds_[1], QSocketNotifier::Read, this);
    connect(notifier_, &QSocketNotifier::activated, this, [this] {
        char bytes[64];
        while (::read(fds_[1], bytes, sizeof bytes) > 0) {
        }
        if (onSignal_) onSignal_();
    });
    struct sigaction sa {};
    sa.sa_handler = &TerminationSignals::handler;
    sigemptyset(&sa.sa_mask);
    sa.sa_flags = SA_RESTART;
    sigaction(SIGTERM, &sa, &oldTerm_);
    sigaction(SIGINT, &sa, &oldInt_);
}

TerminationSignals::~TerminationSignals() {
    if (fds_[0] < 0) return;
    sigaction(SIGTERM, &oldTerm_, nullptr);
    sigaction(SIGINT, &oldInt_, nullptr);
    writeFd = -1;
    delete notifier_;
    ::close(fds_[0]);
    ::close(fds_[1]);
}

}  // namespace sonarium
