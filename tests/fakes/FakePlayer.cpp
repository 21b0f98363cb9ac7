#include "FakePlayer.h"

#include <algorithm>

namespace sonarium {

const FakePlayer::File& FakePlayer::open() const {
    static const File none;
    auto it = files_.find(file_.toUpper());
    return state_ == State::Closed || it == files_.end() ? none : *it;
}

// --- Running ---

void FakePlayer::startRun(std::int32_t from) {
    pos_ = from;
    state_ = State::Playing;
    runToken_ = ends_.runStarted();
    startClock();
}

// One frame at a time, each on its own single-shot timer.
void FakePlayer::startClock() {
    stopClock();
    const int frameMs = std::max(1, FrameMs * speed_ / 100);
    timer_ = loop_.startTimer(frameMs, guarded([this] {
                                  timer_ = 0;
                                  nextFrame();
                              }),
                              true);
}

void FakePlayer::stopClock() {
    if (timer_) loop_.stopTimer(timer_);
    timer_ = 0;
}

void FakePlayer::nextFrame() {
    if (++pos_ >= end_) return endRun();
    // The next frame is due before the handler runs: it may wait inside, and the song plays on.
    startClock();
    if (interval_ > 0 && pos_ % interval_ == 0 && onFrameNotify) onFrameNotify(pos_);
}

void FakePlayer::endRun() {
    stopClock();
    state_ = State::Ended;
    raiseStreamEnd(runToken_);
}

void FakePlayer::raiseStreamEnd(StreamEndRule::Token token) {
    loop_.post(guarded([this, token] {
        if (!ends_.deliver(token)) return;
        record("event StreamEnd");
        if (onStreamEnd) onStreamEnd();
    }));
}

// --- Mp3Player ---

// The WAV name is only recorded: the fake writes no file.
std::int16_t FakePlayer::Open(const QString& file, const QString& wav) {
    record("Open", file, wav);
    closeFile();
    ends_.opened();
    auto it = files_.find(file.toUpper());
    const bool fails = it == files_.end() || it->frames <= 0 || it->failuresLeft != 0;
    if (it != files_.end() && it->failuresLeft > 0) --it->failuresLeft;
    file_ = fails ? QString() : file;
    tag_ = fails ? Id3Fields{} : it->tag;
    if (fails) {
        ends_.closed();
        return 1;
    }
    state_ = State::Ready;
    pos_ = 0;
    end_ = it->frames;
    return 0;
}

void FakePlayer::closeFile() {
    if (state_ == State::Playing || state_ == State::Paused)
        ends_.runSilenced(runToken_);
    else
        ends_.closed();
    stopClock();
    state_ = State::Closed;
}

void FakePlayer::Close() {
    record("Close");
    closeFile();
}

void FakePlayer::Play() {
    record("Play");
    if (state_ == State::Ready || state_ == State::Paused)
        startRun(pos_);
    else if (state_ == State::Ended)
        startRun(0);
}

void FakePlayer::Pause() {
    record("Pause");
    if (state_ != State::Playing) return;
    stopClock();
    state_ = State::Paused;
}

void FakePlayer::Stop() {
    record("Stop");
    if (state_ == State::Playing || state_ == State::Paused)
        endRun();
    else if (const StreamEndRule::Token t = ends_.stopWithoutRun())
        raiseStreamEnd(t);
}

std::int16_t FakePlayer::SeekFrame(std::int32_t frame) {
    record("SeekFrame", frame);
    if (state_ == State::Closed || frame < 0 || frame > end_) return 1;
    pos_ = frame;
    if (state_ == State::Playing) startClock();
    return 0;
}

std::int16_t FakePlayer::SetSpeed(std::int16_t speed) {
    record("SetSpeed", speed);
    speed_ = speed;
    if (state_ == State::Playing) startClock();
    return 0;
}

}  // namespace sonarium
