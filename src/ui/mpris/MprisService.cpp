#include "ui/mpris/MprisService.h"

#include <QCoreApplication>
#include <QDBusMessage>

#include "ui/mpris/MprisPlayerAdaptor.h"
#include "ui/mpris/MprisRootAdaptor.h"

namespace sonarium {

namespace {
const QString ObjectPath = QStringLiteral("/org/mpris/MediaPlayer2");
const QString BaseName = QStringLiteral("org.mpris.MediaPlayer2.sonarium");
const QString PlayerInterface = QStringLiteral("org.mpris.MediaPlayer2.Player");
}  // namespace

std::unique_ptr<MprisService> MprisService::start(MediaControls& controls, const QList<QWidget*>& windows,
                                                  std::optional<QDBusConnection> bus) {
    if (!bus) {
        // Without an address the library would try to launch a bus of its own.
        if (qEnvironmentVariableIsEmpty("DBUS_SESSION_BUS_ADDRESS")) return nullptr;
        bus = QDBusConnection::sessionBus();
    }
    if (!bus->isConnected()) return nullptr;
    std::unique_ptr<MprisService> service(new MprisService(controls, windows, *bus));
    if (!service->registerOn()) return nullptr;
    return service;
}

MprisService::MprisService(MediaControls& controls, const QList<QWidget*>& windows,
                           const QDBusConnection& bus)
    : controls_(controls), bus_(bus), last_(controls.state()) {
    // Adaptors belong to this object and answer for it once it is registered.
    new MprisRootAdaptor(this, windows);
    new MprisPlayerAdaptor(this, controls);
    connect(&poll_, &QTimer::timeout, this, [this] { poll(); });
}

// The object first, then the name, so that whoever sees the name finds the object.
bool MprisService::registerOn() {
    if (!bus_.registerObject(ObjectPath, this, QDBusConnection::ExportAdaptors)) return false;
    for (const QString& name : {BaseName, BaseName + QStringLiteral(".instance") +
                                              QString::number(QCoreApplication::applicationPid())}) {
        if (bus_.registerService(name)) {
            name_ = name;
            poll_.start(PollMs);
            return true;
        }
    }
    bus_.unregisterObject(ObjectPath);
    return false;
}

MprisService::~MprisService() {
    if (name_.isEmpty()) return;
    bus_.unregisterService(name_);
    bus_.unregisterObject(ObjectPath);
}

void MprisService::poll() {
    const MediaState now = controls_.state();
    if (now == last_) return;
    QVariantMap changed;
    if (now.status != last_.status) changed.insert(QStringLiteral("PlaybackStatus"), now.status);
    if (now.song != last_.song)
        changed.insert(QStringLiteral("Metadata"), MprisPlayerAdaptor::metadataOf(now.song));
    if (now.volume != last_.volume) changed.insert(QStringLiteral("Volume"), now.volume);
    if (now.canPlay != last_.canPlay) changed.insert(QStringLiteral("CanPlay"), now.canPlay);
    if (now.canPause != last_.canPause) changed.insert(QStringLiteral("CanPause"), now.canPause);
    if (now.canGoNext != last_.canGoNext) changed.insert(QStringLiteral("CanGoNext"), now.canGoNext);
    if (now.canGoPrevious != last_.canGoPrevious)
        changed.insert(QStringLiteral("CanGoPrevious"), now.canGoPrevious);
    last_ = now;

    QDBusMessage signal = QDBusMessage::createSignal(
        ObjectPath, QStringLiteral("org.freedesktop.DBus.Properties"), QStringLiteral("PropertiesChanged"));
    signal << PlayerInterface << changed << QStringList();
    bus_.send(signal);
}

}  // namespace sonarium
