#include "ui/TerminationSignals.h"

#include <semaphore.h>
#include <sys/socket.h>
#include <unistd.h>

#include <QSocketNotifier>
#include <atomic>
#include <cerrno>
#include <cstdio>

namespace sonarium {

namespace {
// What the handler reaches: a signal handler can reach nothing but globals.
volatile std::sig_atomic_t writeFd = -1;
sem_t* volatile watchdogWake = nullptr;
// Set by the handler; the watchdog woken without it is being taken down.
std::atomic<bool> signalled{false};
// Outlives the object: a watchdog left on guard as the process ends may still be using it.
sem_t wakeSemaphore;
}  // namespace

void TerminationSignals::handler(int) {
    const int saved = errno;
    const char byte = 1;
    if (writeFd >= 0) {
        const ssize_t n = ::write(writeFd, &byte, 1);  // a full pipe already holds a request
        (void)n;
    }
    if (!signalled.exchange(true) && watchdogWake) sem_post(watchdogWake);
    errno = saved;
}

TerminationSignals::TerminationSignals(std::function<void()> onSignal, std::chrono::milliseconds deadline,
                                       QObject* parent)
    : QObject(parent), onSignal_(std::move(onSignal)) {
    if (::socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0, fds_) != 0) {
        std::perror("sonarium: no socket pair for the termination signals");
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
    signalled = false;
    if (deadline.count() > 0 && sem_init(&wakeSemaphore, 0, 0) == 0) {
        watchdogWake = &wakeSemaphore;
        watchdog_ = std::thread([deadline] { watch(deadline); });
    }
    struct sigaction sa {};
    sa.sa_handler = &TerminationSignals::handler;
    sigemptyset(&sa.sa_mask);
    sa.sa_flags = SA_RESTART;
    sigaction(SIGTERM, &sa, &oldTerm_);
    sigaction(SIGINT, &sa, &oldInt_);
    sigaction(SIGHUP, &sa, &oldHup_);
}

void TerminationSignals::watch(std::chrono::milliseconds deadline) {
    while (sem_wait(&wakeSemaphore) != 0 && errno == EINTR) {
    }
    if (!signalled) return;  // taken down without a signal
    std::this_thread::sleep_for(deadline);
    const char note[] = "sonarium: still running after a termination signal; ending now\n";
    const ssize_t n = ::write(STDERR_FILENO, note, sizeof note - 1);
    (void)n;
    ::_exit(0);
}

TerminationSignals::~TerminationSignals() {
    if (fds_[0] < 0) return;
    sigaction(SIGTERM, &oldTerm_, nullptr);
    sigaction(SIGINT, &oldInt_, nullptr);
    sigaction(SIGHUP, &oldHup_, nullptr);
    writeFd = -1;
    if (watchdog_.joinable()) {
        watchdogWake = nullptr;
        if (signalled) {
            // The process is ending on the signal: the watchdog stays on guard until it has.
            watchdog_.detach();
        } else {
            sem_post(&wakeSemaphore);
            watchdog_.join();
            sem_destroy(&wakeSemaphore);
        }
    }
    delete notifier_;
    ::close(fds_[0]);
    ::close(fds_[1]);
}

}  // namespace sonarium
