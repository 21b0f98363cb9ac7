#pragma once
// A player on the event loop's clock, with no threads and no sound. Files are registered by
// the test; playing moves a virtual position by one frame per frame duration.
//
// Contract that tests rely on:
// - FrameNotify(f) comes for each frame f that is a multiple of NotifyInterval, with
//   start < f < end of what plays; then StreamEnd. Both arrive through the loop.
// - StreamEnd follows StreamEndRule (controls/StreamEndRule.h), as the real player does: one
//   at the end of a run or after Stop (also of a file opened and never started), none from
//   Close, queued ones dropped by the next Open, a lost one paid by the next idle Stop. It is
//   posted, so it arrives after Stop has returned.
// - Open of a file that was not registered fails with 1; failOpen makes a registered one fail.
// - SetSpeed scales the frame duration (speed 50 plays twice as fast).
#include <QHash>
#include <QStringList>
#include <optional>

#include "CallLog.h"
#include "controls/EventLoop.h"
#include "controls/Mp3Player.h"
#include "controls/StreamEndRule.h"

namespace sonarium {

struct Id3Fields {
    QString title, artist, album, comment;
    std::int16_t year = 0;
    std::int16_t genre = 0;
};

class FakePlayer : public Mp3Player, public CallLog {
public:
    enum class State { Closed, Ready, Playing, Paused, Ended };

    explicit FakePlayer(EventLoop& loop);
    ~FakePlayer() override;

    // --- Set-up (tests) ---
    // Paths are matched without regard to case, as the program finds its files.
    void addFile(const QString& path, std::int32_t frames, float lengthSeconds,
                 std::int32_t bitRate = 128, std::int32_t frequency = 44100,
                 std::int16_t channelMode = 0, const Id3Fields& tag = {});
    // The next `times` opens of the file fail with `code` (-1: every open). Call after addFile.
    void failOpen(const QString& path, int times = -1, std::int16_t code = 1);
    void setFrameMs(double ms) { frameMs_ = ms; }
    // GenreName(n) gives names[n]; numbers past the list give "Genre n".
    void setGenreNames(const QStringList& names) { genreNames_ = names; }

    // --- Looking in (tests) ---
    State state() const { return state_; }
    QString openFile() const { return state_ == State::Closed ? QString() : file_; }
    QString wavFile() const { return wav_; }
    std::int32_t position() const;
    std::int16_t volumeLeft() const { return volLeft_; }
    std::int16_t volumeRight() const { return volRight_; }
    std::int16_t speed() const { return speed_; }
    std::int16_t notifyInterval() const { return interval_; }
    // The tag of a registered file, as WriteTag left it.
    Id3Fields tagOf(const QString& path) const;

    // --- Mp3Player ---
    std::int16_t Open(const QString& file, const QString& wav) override;
    void Close() override;
    void Play() override;
    void PlayRange(std::int32_t startFrame, std::int32_t endFrame) override;
    void Pause() override;
    void Stop() override;
    std::int16_t SeekFrame(std::int32_t frame) override;
    std::int16_t SetVolume(std::int16_t left, std::int16_t right) override;
    std::int16_t SetSpeed(std::int16_t speed) override;
    void setNotifyInterval(std::int16_t frames) override;

    std::int32_t FrameCount() override;
    float Length() override;
    std::int32_t BitRate() override;
    std::int32_t Frequency() override;
    std::int16_t ChannelMode() override;

    QString TagTitle() override { return openTag().title; }
    QString TagArtist() override { return openTag().artist; }
    QString TagAlbum() override { return openTag().album; }
    QString TagComment() override { return openTag().comment; }
    std::int16_t TagYear() override { return openTag().year; }
    std::int16_t TagGenre() override { return openTag().genre; }
    QString GenreName(std::int16_t genre) override;

    void SetTagTitle(const QString& v) override;
    void SetTagArtist(const QString& v) override;
    void SetTagAlbum(const QString& v) override;
    void SetTagComment(const QString& v) override;
    void SetTagYear(std::int16_t v) override;
    void SetTagGenre(std::int16_t v) override;
    void WriteTag() override;

private:
    struct File {
        std::int32_t frames = 0;
        float length = 0;
        std::int32_t bitRate = 0, frequency = 0;
        std::int16_t channelMode = 0;
        Id3Fields tag;
        int failuresLeft = 0;  // -1: always
        std::int16_t failCode = 1;
    };
    // Tag fields set since the last Open, for WriteTag.
    struct TagEdit {
        std::optional<QString> title, artist, album, comment;
        std::optional<std::int16_t> year, genre;
    };

    static QString key(const QString& path) { return path.toUpper(); }
    const File* open() const;
    Id3Fields openTag() const;
    double frameDuration() const;
    void startRun(std::int32_t from, std::int32_t to);
    void rebase();  // restart the clock of a run at the current position
    void schedule();
    void cancelTimer();
    void tick();
    void endRun();
    void raiseStreamEnd(StreamEndRule::Token token);
    void closeFile();  // ends a run that plays or is paused, then closes

    EventLoop& loop_;
    QHash<QString, File> files_;
    QStringList genreNames_;
    double frameMs_ = 26.0;

    State state_ = State::Closed;
    StreamEndRule ends_;
    StreamEndRule::Token runToken_ = 0;
    QString file_, wav_, tagTarget_;
    TagEdit edit_;
    std::int32_t pos_ = 0;         // position when not playing; start of the clock's count when playing
    std::int32_t end_ = 0;
    std::int64_t runStartMs_ = 0;
    std::int32_t lastNotified_ = 0;
    EventLoop::TimerId timer_ = 0;
    std::int16_t volLeft_ = 0, volRight_ = 0, speed_ = 100, interval_ = 32;
};

}  // namespace sonarium
