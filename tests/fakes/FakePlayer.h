#pragma once
// A player on the event loop's clock, with no threads and no sound. Files are registered by
// the test; playing moves the position on by one frame every 26 ms at speed 100.
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
// - WriteTag writes the fields set since the last Open into the file of that Open.
#include <QHash>

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
    static constexpr int FrameMs = 26;

    explicit FakePlayer(EventLoop& loop) : loop_(loop) {}
    ~FakePlayer() override { stopClock(); }

    // --- Set-up (tests) ---
    // Paths are matched without regard to case, as the program finds its files.
    void addFile(const QString& path, std::int32_t frames, float lengthSeconds, std::int32_t bitRate = 128,
                 std::int32_t frequency = 44100, std::int16_t channelMode = 0, const Id3Fields& tag = {}) {
        files_.insert(path.toUpper(), File{frames, lengthSeconds, bitRate, frequency, channelMode, tag});
    }
    // The next `times` opens of the file fail (-1: every open). Call after addFile.
    void failOpen(const QString& path, int times = -1) { files_[path.toUpper()].failuresLeft = times; }

    // --- Looking in (tests) ---
    State state() const { return state_; }
    QString openFile() const { return state_ == State::Closed ? QString() : file_; }
    // The tag of a registered file, as WriteTag left it.
    Id3Fields tagOf(const QString& path) const { return files_.value(path.toUpper()).tag; }

    // --- Mp3Player ---
    std::int16_t Open(const QString& file, const QString& wav) override;
    void Close() override;
    void Play() override;
    // The program never plays a range; the call is only recorded.
    void PlayRange(std::int32_t startFrame, std::int32_t endFrame) override {
        record("PlayRange", startFrame, endFrame);
    }
    void Pause() override;
    void Stop() override;
    std::int16_t SeekFrame(std::int32_t frame) override;
    std::int16_t SetVolume(std::int16_t left, std::int16_t right) override {
        record("SetVolume", left, right);
        return 0;
    }
    std::int16_t SetSpeed(std::int16_t speed) override;
    void setNotifyInterval(std::int16_t frames) override {
        record("NotifyInterval", frames);
        interval_ = frames;
    }

    std::int32_t FrameCount() override { return open().frames; }
    float Length() override { return open().length; }
    std::int32_t BitRate() override { return open().bitRate; }
    std::int32_t Frequency() override { return open().frequency; }
    std::int16_t ChannelMode() override { return open().channelMode; }

    QString TagTitle() override { return open().tag.title; }
    QString TagArtist() override { return open().tag.artist; }
    QString TagAlbum() override { return open().tag.album; }
    QString TagComment() override { return open().tag.comment; }
    std::int16_t TagYear() override { return open().tag.year; }
    std::int16_t TagGenre() override { return open().tag.genre; }
    QString GenreName(std::int16_t genre) override { return QStringLiteral("Genre %1").arg(genre); }

    void SetTagTitle(const QString& v) override { edit("SetTagTitle", tag_.title, v); }
    void SetTagArtist(const QString& v) override { edit("SetTagArtist", tag_.artist, v); }
    void SetTagAlbum(const QString& v) override { edit("SetTagAlbum", tag_.album, v); }
    void SetTagComment(const QString& v) override { edit("SetTagComment", tag_.comment, v); }
    void SetTagYear(std::int16_t v) override { edit("SetTagYear", tag_.year, v); }
    void SetTagGenre(std::int16_t v) override { edit("SetTagGenre", tag_.genre, v); }
    // The tag as the last Open read it, with the fields set since, into that Open's file.
    void WriteTag() override {
        record("WriteTag");
        if (files_.contains(file_.toUpper())) files_[file_.toUpper()].tag = tag_;
    }

private:
    struct File {
        std::int32_t frames = 0;
        float length = 0;
        std::int32_t bitRate = 0, frequency = 0;
        std::int16_t channelMode = 0;
        Id3Fields tag;
        int failuresLeft = 0;  // -1: always
    };
    template <typename T>
    void edit(const char* call, T& field, const T& value) {
        record(call, value);
        field = value;
    }
    // The open file; with none, a file of nothing.
    const File& open() const;
    void startRun(std::int32_t from);
    void startClock();
    void stopClock();
    void nextFrame();
    void endRun();
    void raiseStreamEnd(StreamEndRule::Token token);
    void closeFile();  // ends a run that plays or is paused, then closes

    EventLoop& loop_;
    QHash<QString, File> files_;  // by upper-case path

    State state_ = State::Closed;
    StreamEndRule ends_;
    StreamEndRule::Token runToken_ = 0;
    QString file_;  // it stays WriteTag's target after Close
    Id3Fields tag_;  // for WriteTag
    std::int32_t pos_ = 0, end_ = 0;
    EventLoop::TimerId timer_ = 0;
    std::int16_t speed_ = 100, interval_ = 32;
};

}  // namespace sonarium
