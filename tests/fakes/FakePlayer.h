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
// - The tag reads what addFile registered; tag edits and WriteTag are only recorded.
#include <QHash>
#include <algorithm>

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

    // --- Mp3Player ---
    // The WAV name is only recorded: the fake writes no file.
    std::int16_t Open(const QString& file, const QString& wav) override {
        record("Open", file, wav);
        closeFile();
        ends_.opened();
        auto it = files_.find(file.toUpper());
        const bool fails = it == files_.end() || it->frames <= 0 || it->failuresLeft != 0;
        if (it != files_.end() && it->failuresLeft > 0) --it->failuresLeft;
        if (fails) {
            ends_.closed();
            return 1;
        }
        file_ = file;
        state_ = State::Ready;
        pos_ = 0;
        end_ = it->frames;
        return 0;
    }
    void Close() override {
        record("Close");
        closeFile();
    }
    void Play() override {
        record("Play");
        if (state_ == State::Ready || state_ == State::Paused)
            startRun(pos_);
        else if (state_ == State::Ended)
            startRun(0);
    }
    // Frames from..to, the last one notified too, then the end.
    void PlayRange(std::int32_t from, std::int32_t to) override {
        record("PlayRange", from, to);
        if (state_ != State::Closed) startRun(std::max(from, 0), std::min(to + 1, end_));
    }
    void Pause() override {
        record("Pause");
        if (state_ != State::Playing) return;
        stopClock();
        state_ = State::Paused;
    }
    void Stop() override {
        record("Stop");
        if (state_ == State::Playing || state_ == State::Paused)
            endRun();
        else if (const StreamEndRule::Token t = ends_.stopWithoutRun())
            raiseStreamEnd(t);
    }
    std::int16_t SeekFrame(std::int32_t frame) override {
        record("SeekFrame", frame);
        if (state_ == State::Closed || frame < 0 || frame > end_) return 1;
        pos_ = frame;
        if (state_ == State::Playing) startClock();
        return 0;
    }
    std::int16_t SetVolume(std::int16_t left, std::int16_t right) override {
        record("SetVolume", left, right);
        return 0;
    }
    std::int16_t SetSpeed(std::int16_t speed) override {
        record("SetSpeed", speed);
        speed_ = speed;
        if (state_ == State::Playing) startClock();
        return 0;
    }
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

    void SetTagTitle(const QString& v) override { record("SetTagTitle", v); }
    void SetTagArtist(const QString& v) override { record("SetTagArtist", v); }
    void SetTagAlbum(const QString& v) override { record("SetTagAlbum", v); }
    void SetTagComment(const QString& v) override { record("SetTagComment", v); }
    void SetTagYear(std::int16_t v) override { record("SetTagYear", v); }
    void SetTagGenre(std::int16_t v) override { record("SetTagGenre", v); }
    void WriteTag() override { record("WriteTag"); }

private:
    struct File {
        std::int32_t frames = 0;
        float length = 0;
        std::int32_t bitRate = 0, frequency = 0;
        std::int16_t channelMode = 0;
        Id3Fields tag;
        int failuresLeft = 0;  // -1: always
    };

    // The open file; with none, a file of nothing.
    const File& open() const {
        static const File none;
        auto it = files_.find(file_.toUpper());
        return state_ == State::Closed || it == files_.end() ? none : *it;
    }
    void startRun(std::int32_t from, std::int32_t stop = -1) {
        pos_ = from;
        stop_ = stop < 0 ? end_ : stop;
        state_ = State::Playing;
        runToken_ = ends_.runStarted();
        startClock();
    }
    // One frame at a time, each on its own single-shot timer.
    void startClock() {
        stopClock();
        timer_ =
            loop_.startTimer(std::max(1, FrameMs * speed_ / 100), guarded([this] { nextFrame(); }), true);
    }
    void stopClock() {
        if (timer_) loop_.stopTimer(timer_);
        timer_ = 0;
    }
    void nextFrame() {
        timer_ = 0;  // its single shot is spent
        if (++pos_ >= stop_) return endRun();
        // The next frame is due before the handler runs: it may wait inside, and the song plays on.
        startClock();
        if (interval_ > 0 && pos_ % interval_ == 0 && onFrameNotify) onFrameNotify(pos_);
    }
    void endRun() {
        stopClock();
        state_ = State::Ended;
        raiseStreamEnd(runToken_);
    }
    void raiseStreamEnd(StreamEndRule::Token token) {
        loop_.post(guarded([this, token] {
            if (!ends_.deliver(token)) return;
            record("event StreamEnd");
            if (onStreamEnd) onStreamEnd();
        }));
    }
    // Ends a run that plays or is paused, then closes.
    void closeFile() {
        if (state_ == State::Playing || state_ == State::Paused)
            ends_.runSilenced(runToken_);
        else
            ends_.closed();
        stopClock();
        state_ = State::Closed;
    }

    EventLoop& loop_;
    QHash<QString, File> files_;  // by upper-case path

    State state_ = State::Closed;
    StreamEndRule ends_;
    StreamEndRule::Token runToken_ = 0;
    QString file_;
    std::int32_t pos_ = 0, end_ = 0, stop_ = 0;
    EventLoop::TimerId timer_ = 0;
    std::int16_t speed_ = 100, interval_ = 32;
};

}  // namespace sonarium
