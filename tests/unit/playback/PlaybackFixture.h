#pragma once
// The started program with a queue of fake songs in /m/.
#include <QFileInfo>

#include "ProgramFixture.h"

namespace sonarium {

class PlaybackFixture : public StartedProgramFixture {
protected:
    static constexpr int SongMs = 2600;  // 100 frames at the fake's 26 ms a frame

    // Rows added as a user adds them: text, then the directory at the new index.
    void queue(const QStringList& titles, const QString& dir = QStringLiteral("/m/")) {
        for (const QString& t : titles) {
            form1().lstSongs.AddItem(t);
            M().SongPath[std::size_t(form1().lstSongs.NewIndex())] = dir;
            if (!dir.isEmpty()) tc.mp3.addFile(dir + t + ".MP3", 100, SongMs / 1000.0f);
        }
    }
    QStringList rows() { return form1().lstSongs.rows(); }
    QStringList dirs() { return {M().SongPath.begin(), M().SongPath.begin() + form1().lstSongs.ListCount()}; }
    void play() { form1().BtnPlay.MouseUp(LeftButton, 0, 0, 0); }
    void pause() { form1().BtnPause.MouseUp(LeftButton, 0, 0, 0); }
    void stop() { form1().BtnStop.MouseUp(LeftButton, 0, 0, 0); }
    void fade() { form1().BtnFade.MouseUp(LeftButton, 0, 0, 0); }

    // The transport as the program holds it, then the file the player holds: "playing B",
    // "playing A fading", "idle". The player's own state must agree with the program's.
    QString transport() {
        const bool playing = M().SongPlaying, paused = M().SongPaused;
        QString s = !playing ? "idle" : paused ? "paused" : "playing";
        const bool runs = tc.mp3.state() == FakePlayer::State::Playing;
        if (runs != (playing && !paused) || (!playing && tc.mp3.state() == FakePlayer::State::Paused))
            s += " (the player disagrees)";
        const QString file = QFileInfo(tc.mp3.openFile()).baseName();
        if (!file.isEmpty()) s += u' ' + file;
        return form1().Fading ? s + " fading" : s;
    }
};

}  // namespace sonarium
