#pragma once
// What the desktop's media controls see of the player, and the commands they may give it.
// Every command goes through the transport's own handlers, as the F4 key does, so a media key
// does exactly what the same click would; the handlers alone change the play state.
#include <QString>
#include <cstdint>
#include <functional>

namespace sonarium {

class Form1;

// The song the player holds, as the desktop shows it.
struct SongInfo {
    int row = -1;           // its queue row; -1 when no song is loaded
    QString title;          // the tag's title, else the row's text
    QString artist, album;  // empty when the tag has none
    QString url;            // the song file's encoded file:// address
    std::int64_t lengthUs = 0;
    bool operator==(const SongInfo&) const = default;
};

// All that the desktop is told of when it changes, so one moment compares with the next.
struct MediaState {
    QString status;
    SongInfo song;
    double volume = 0;
    bool canPlay = false, canPause = false, canGoNext = false, canGoPrevious = false;
    bool operator==(const MediaState&) const = default;
};

class MediaControls {
public:
    explicit MediaControls(Form1& form) : F(form) {}

    // "Playing", "Paused" or "Stopped".
    QString status() const;
    SongInfo song() const;
    // Microseconds into the song by the last frame reported; 0 while no song plays.
    std::int64_t positionUs() const;
    // 0 to 1.
    double volume() const;
    // As the volume slider sets it; a value outside 0 to 1 is held to the nearer end, and
    // one that is no number is ignored.
    void setVolume(double volume);

    bool canPlay() const;
    bool canPause() const;
    bool canGoNext() const;
    bool canGoPrevious() const;
    MediaState state() const;

    // Starts the selected song, or resumes a paused one; a playing song is left alone.
    void play();
    // Pauses a playing song; anything else is left alone.
    void pause();
    void playPause();
    // Stops a playing song as the Stop button does (a paused one stays paused there too).
    void stop();
    // Selects the next or previous queue row, as a click on it does; no wrap at the ends.
    void next();
    void previous();

private:
    // Runs one command. A command that comes while an earlier one still runs (its handler
    // waits, letting events in) is dropped: a repeated key must not start the chain twice.
    void command(const std::function<void()>& body);
    void selectRow(int row);

    Form1& F;
    bool running_ = false;
    // The song file's spelling on disk, looked up once per file rather than on every poll.
    mutable QString resolvedFor_, resolved_;
};

}  // namespace sonarium
