#pragma once
// The media player's own face on the bus: its name, its desktop file, what it opens, and
// bringing its window to the front. It cannot be told to quit: closing goes through the
// window, which waits for the song to end and saves the settings.
#include <QDBusAbstractAdaptor>
#include <QList>
#include <QPointer>
#include <QStringList>

class QWidget;

namespace sonarium {

class MprisRootAdaptor : public QDBusAbstractAdaptor {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.mpris.MediaPlayer2")
    Q_PROPERTY(bool CanQuit READ canQuit)
    Q_PROPERTY(bool CanRaise READ canRaise)
    Q_PROPERTY(bool HasTrackList READ hasTrackList)
    Q_PROPERTY(QString Identity READ identity)
    Q_PROPERTY(QString DesktopEntry READ desktopEntry)
    Q_PROPERTY(QStringList SupportedUriSchemes READ supportedUriSchemes)
    Q_PROPERTY(QStringList SupportedMimeTypes READ supportedMimeTypes)

public:
    // `windows`: the program's windows that Raise brings forward when they are shown.
    MprisRootAdaptor(QObject* parent, const QList<QWidget*>& windows);

    bool canQuit() const { return false; }
    bool canRaise() const { return true; }
    bool hasTrackList() const { return false; }
    QString identity() const { return QStringLiteral("Sonarium"); }
    QString desktopEntry() const { return QStringLiteral("sonarium"); }
    QStringList supportedUriSchemes() const { return {QStringLiteral("file")}; }
    QStringList supportedMimeTypes() const { return {QStringLiteral("audio/mpeg")}; }

public slots:
    // Brings the shown windows forward, out of the task bar if minimised. A hidden window
    // stays hidden: which window shows is the program's own choice (main or mini player).
    void Raise();
    void Quit() {}

private:
    QList<QPointer<QWidget>> windows_;
};

}  // namespace sonarium
