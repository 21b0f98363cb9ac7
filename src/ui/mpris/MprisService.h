#pragma once
// The program's media controls on the session bus, so media keys and the desktop's player
// applets drive it. The object answers on the UI thread, between events, like a click.
//
// The bus is never told of a change by the logic: a cheap poll compares what the desktop sees
// with the last look, four times a second, and announces what differs. The song's position
// is not announced, as it changes all the time; the desktop reads it when it wants it.
#include <QDBusConnection>
#include <QList>
#include <QObject>
#include <QTimer>
#include <memory>
#include <optional>

#include "playback/MediaControls.h"

class QWidget;

namespace sonarium {

class MprisService : public QObject {
    Q_OBJECT

public:
    static constexpr int PollMs = 250;

    // The service on `bus`, by default the session bus named by DBUS_SESSION_BUS_ADDRESS.
    // Null, silently, when there is no such bus or it cannot be reached: the program then runs
    // without the service. `windows` are those that a request to raise brings forward.
    static std::unique_ptr<MprisService> start(MediaControls& controls, const QList<QWidget*>& windows,
                                               std::optional<QDBusConnection> bus = std::nullopt);
    ~MprisService() override;

    // The name taken on the bus: the program's own, or, when another copy of the program
    // holds that, one made unique by the process id.
    const QString& serviceName() const { return name_; }

private:
    MprisService(MediaControls& controls, const QList<QWidget*>& windows, const QDBusConnection& bus);
    bool registerOn();
    void poll();

    MediaControls& controls_;
    QDBusConnection bus_;
    QString name_;
    MediaState last_;
    QTimer poll_;
};

}  // namespace sonarium
