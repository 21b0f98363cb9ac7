#include "ui/mpris/MprisPlayerAdaptor.h"

namespace sonarium {

MprisPlayerAdaptor::MprisPlayerAdaptor(QObject* parent, MediaControls& controls)
    : QDBusAbstractAdaptor(parent), controls_(controls) {}

QVariantMap MprisPlayerAdaptor::metadataOf(const SongInfo& song) {
    QVariantMap map;
    if (song.row < 0) {
        map.insert(QStringLiteral("mpris:trackid"), QVariant::fromValue(QDBusObjectPath(QStringLiteral(
                                                        "/org/mpris/MediaPlayer2/TrackList/NoTrack"))));
        return map;
    }
    // The queue row names the track: the same song queued twice is two tracks.
    map.insert(QStringLiteral("mpris:trackid"),
               QVariant::fromValue(QDBusObjectPath(QStringLiteral("/org/sonarium/Track/%1").arg(song.row))));
    if (song.lengthUs > 0) map.insert(QStringLiteral("mpris:length"), qlonglong(song.lengthUs));
    map.insert(QStringLiteral("xesam:title"), song.title);
    if (!song.artist.isEmpty()) map.insert(QStringLiteral("xesam:artist"), QStringList{song.artist});
    if (!song.album.isEmpty()) map.insert(QStringLiteral("xesam:album"), song.album);
    map.insert(QStringLiteral("xesam:url"), song.url);
    return map;
}

// Each command runs under the program's skip-on-error rule inside MediaControls, so no failure
// reaches the bus's dispatch.
void MprisPlayerAdaptor::setVolume(double volume) { controls_.setVolume(volume); }
void MprisPlayerAdaptor::Play() { controls_.play(); }
void MprisPlayerAdaptor::Pause() { controls_.pause(); }
void MprisPlayerAdaptor::PlayPause() { controls_.playPause(); }
void MprisPlayerAdaptor::Stop() { controls_.stop(); }
void MprisPlayerAdaptor::Next() { controls_.next(); }
void MprisPlayerAdaptor::Previous() { controls_.previous(); }

}  // namespace sonarium
