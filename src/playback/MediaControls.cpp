#include "playback/MediaControls.h"

#include <QUrl>
#include <algorithm>
#include <cmath>

#include "controls/Errors.h"
#include "controls/FileNames.h"
#include "controls/SongNames.h"
#include "shell/Form1.h"

namespace sonarium {

namespace {
// Tag fields come padded with blanks or NULs to their width; a NUL may not travel on the bus.
QString shown(const QString& field) {
    const qsizetype nul = field.indexOf(QChar(0));
    return (nul < 0 ? field : field.left(nul)).trimmed();
}
}  // namespace

QString MediaControls::status() const {
    if (!F.M.SongPlaying) return QStringLiteral("Stopped");
    return F.M.SongPaused ? QStringLiteral("Paused") : QStringLiteral("Playing");
}

// The loaded song is the current row's, and only while the file the player was last given is
// that row's: a queue emptied or changed since then holds no song the desktop could name.
SongInfo MediaControls::song() const {
    SongInfo info;
    const int row = F.M.CurrentSong;
    if (row < 0 || row >= F.lstSongs.ListCount() || row >= SongPathSize || F.M.SongFile.isEmpty())
        return info;
    const QString text = F.lstSongs.List(row);
    if (F.M.SongFile != songBase(F.M.SongPath[std::size_t(row)], text) + QStringLiteral(".MP3")) return info;

    info.row = row;
    info.title = shown(F.txtTitle.Text());
    if (info.title.isEmpty()) info.title = text;
    info.artist = shown(F.txtArtist.Text());
    info.album = shown(F.txtAlbum.Text());
    if (resolvedFor_ != F.M.SongFile) {
        resolvedFor_ = F.M.SongFile;
        resolved_ = resolveFileName(F.M.SongFile);
    }
    info.url = QString::fromLatin1(QUrl::fromLocalFile(resolved_).toEncoded());
    info.lengthUs = std::int64_t(std::max(F.SongLength, 0)) * 1'000'000;
    return info;
}

std::int64_t MediaControls::positionUs() const {
    if (!F.M.SongPlaying || F.FramesPerSecond <= 0 || F.LastFrame <= 0) return 0;
    return std::int64_t(F.LastFrame) * 1'000'000 / F.FramesPerSecond;
}

double MediaControls::volume() const {
    return std::clamp(F.M.Volume, std::int16_t(0), std::int16_t(100)) / 100.0;
}

void MediaControls::setVolume(double volume) {
    if (!std::isfinite(volume)) return;
    const auto v = std::int16_t(std::lround(std::clamp(volume, 0.0, 1.0) * 100));
    F.M.Volume = v;
    F.tryStep([&] { F.C.mp3.SetVolume(v, v); });
    F.tryStep([&] { F.PlaceVolumeSlider(F.M.Volume); });
    // A fade lowers the volume on its own and brings back SavedVolume at its end.
    if (!F.Fading) F.SavedVolume = F.M.Volume;
}

bool MediaControls::canPlay() const { return F.M.SongPlaying || F.lstSongs.ListCount() > 0; }
bool MediaControls::canPause() const { return F.M.SongPlaying; }
bool MediaControls::canGoNext() const { return F.lstSongs.ListIndex() < F.lstSongs.ListCount() - 1; }
bool MediaControls::canGoPrevious() const { return F.lstSongs.ListIndex() > 0; }

MediaState MediaControls::state() const {
    return MediaState{status(), song(), volume(), canPlay(), canPause(), canGoNext(), canGoPrevious()};
}

void MediaControls::command(const std::function<void()>& body) {
    if (running_) return;
    running_ = true;
    F.tryStep(body);
    running_ = false;
}

// While the window closes it waits for the song to end: a paused song may still be resumed
// (that is how it ends), but nothing new starts.
void MediaControls::play() {
    command([&] {
        if (F.M.SongPlaying && F.M.SongPaused)
            F.BtnPause_MouseUp(LeftButton, 0, 1.0, 1.0);
        else if (!F.M.SongPlaying && !F.closing_)
            F.BtnPlay_MouseUp(LeftButton, 0, 1.0, 1.0);
    });
}

void MediaControls::pause() {
    command([&] {
        if (F.M.SongPlaying && !F.M.SongPaused) F.BtnPause_MouseUp(LeftButton, 0, 1.0, 1.0);
    });
}

void MediaControls::playPause() {
    if (F.M.SongPlaying && !F.M.SongPaused)
        pause();
    else
        play();
}

void MediaControls::stop() {
    command([&] {
        if (F.M.SongPlaying) F.BtnStop_MouseUp(LeftButton, 0, 1.0, 1.0);
    });
}

void MediaControls::next() {
    command([&] {
        if (canGoNext()) selectRow(F.lstSongs.ListIndex() + 1);
    });
}

void MediaControls::previous() {
    command([&] {
        if (canGoPrevious()) selectRow(F.lstSongs.ListIndex() - 1);
    });
}

// The list's click does the rest: during play it switches at once, otherwise it loads the row.
void MediaControls::selectRow(int row) {
    if (!F.closing_) F.lstSongs.setListIndex(row);
}

}  // namespace sonarium
