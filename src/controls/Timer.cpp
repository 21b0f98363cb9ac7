#include "controls/Timer.h"

#include "controls/Errors.h"

namespace sonarium {

void Timer::setInterval(int ms) {
    // The platform's timers take 0 to 65535 milliseconds.
    if (ms < 0 || ms > 65535)
        throw RuntimeError(RuntimeError::InvalidPropertyValue, QStringLiteral("Invalid property value"));
    interval_ = ms;
    reschedule();
    notify();
}

void Timer::setEnabled(bool on) {
    Control::setEnabled(on);
    reschedule();
}

void Timer::unschedule() {
    if (id_) loop_.stopTimer(id_);
    id_ = 0;
}

void Timer::reschedule() {
    unschedule();
    if (Enabled() && interval_ > 0)
        id_ = loop_.startTimer(interval_, [this] {
            if (onTimer) onTimer();
        });
}

}  // namespace sonarium
