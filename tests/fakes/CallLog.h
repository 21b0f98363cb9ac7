#pragma once
// What every fake shares: a log of the calls it received, in order, as short texts such as
// "Open(/m/a.mp3,)" or "SetVolume(35,35)", and a guard for work it schedules on the loop.
#include <QString>
#include <QStringList>
#include <memory>

#include "QtPrinters.h"
#include "controls/EventLoop.h"

namespace sonarium {

class CallLog {
public:
    const QStringList& calls() const { return calls_; }
    void clearCalls() { calls_.clear(); }

protected:
    void record(const QString& call) { calls_ << call; }
    // Records "Name(a,b)": the call's name and its arguments as text. A call without arguments
    // takes the plain record above.
    template <typename... Args>
    void record(const QString& name, const Args&... args) {
        calls_ << name + u'(' + QStringList{text(args)...}.join(u',') + u')';
    }

    // Work posted or timed by a fake must not run once the fake is gone: the loop may outlive
    // it. A guarded task does nothing after its owner's destruction.
    template <typename F>
    EventLoop::Task guarded(F f) const {
        return [alive = std::weak_ptr<int>(alive_), f = std::move(f)]() mutable {
            if (alive.lock()) f();
        };
    }

private:
    static QString text(const QString& s) { return s; }
    static QString text(std::int64_t n) { return QString::number(n); }

    QStringList calls_;
    std::shared_ptr<int> alive_ = std::make_shared<int>(0);
};

}  // namespace sonarium
