#pragma once
// The transport on the bus: play state, the loaded song, volume and the six commands, all
// through the media controls of the program's logic. Commands and the volume enter the
// program as a click does: a failure ends in the log, never in Qt's dispatch.
//
// The song's place cannot be moved from the desktop (CanSeek is false): Seek and SetPosition
// are there because callers expect the names, and do nothing.
#include <QDBusAbstractAdaptor>
#include <QDBusObjectPath>
#include <QVariantMap>

#include "playback/MediaControls.h"

namespace sonarium {

class MprisPlayerAdaptor : public QDBusAbstractAdaptor {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.mpris.MediaPlayer2.Player")
    Q_PROPERTY(QString PlaybackStatus READ playbackStatus)
    Q_PROPERTY(double Rate READ rate)
    Q_PROPERTY(double MinimumRate READ rate)
    Q_PROPERTY(double MaximumRate READ rate)
    Q_PROPERTY(QVariantMap Metadata READ metadata)
    Q_PROPERTY(double Volume READ volume WRITE setVolume)
    Q_PROPERTY(qlonglong Position READ position)
    Q_PROPERTY(bool CanGoNext READ canGoNext)
    Q_PROPERTY(bool CanGoPrevious READ canGoPrevious)
    Q_PROPERTY(bool CanPlay READ canPlay)
    Q_PROPERTY(bool CanPause READ canPause)
    Q_PROPERTY(bool CanSeek READ canSeek)
    Q_PROPERTY(bool CanControl READ canControl)

public:
    MprisPlayerAdaptor(QObject* parent, MediaControls& controls);

    // What the desktop reads of a song; a map with only the "no track" id when none is loaded.
    static QVariantMap metadataOf(const SongInfo& song);

    QString playbackStatus() const { return controls_.status(); }
    double rate() const { return 1.0; }
    QVariantMap metadata() const { return metadataOf(controls_.song()); }
    double volume() const { return controls_.volume(); }
    void setVolume(double volume);
    qlonglong position() const { return controls_.positionUs(); }
    bool canGoNext() const { return controls_.canGoNext(); }
    bool canGoPrevious() const { return controls_.canGoPrevious(); }
    bool canPlay() const { return controls_.canPlay(); }
    bool canPause() const { return controls_.canPause(); }
    bool canSeek() const { return false; }
    bool canControl() const { return true; }

public slots:
    void Play();
    void Pause();
    void PlayPause();
    void Stop();
    void Next();
    void Previous();
    void Seek(qlonglong) {}
    void SetPosition(const QDBusObjectPath&, qlonglong) {}

private:
    MediaControls& controls_;
};

}  // namespace sonarium
