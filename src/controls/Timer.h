#pragma once
// A timer control: Interval in milliseconds and Enabled. It ticks while both are set, at its
// own schedule on the event loop; changing either restarts the count, as the platform does.
#include "controls/Control.h"
#include "controls/EventLoop.h"

namespace sonarium {

class Timer : public Control {
public:
    Timer(QString name, EventLoop& loop, int interval = 0)
        : Control(std::move(name)), loop_(loop), interval_(interval) {
        Control::setEnabled(false);
    }
    ~Timer() override { unschedule(); }

    int Interval() const { return interval_; }
    void setInterval(int ms);
    void setEnabled(bool on) override;

    std::function<void()> onTimer;

private:
    void reschedule();
    void unschedule();

    EventLoop& loop_;
    int interval_;
    EventLoop::TimerId id_ = 0;
};

}  // namespace sonarium
