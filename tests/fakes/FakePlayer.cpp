#include "FakePlayer.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace sonarium {

FakePlayer::FakePlayer(EventLoop& loop) : loop_(loop) {}

FakePlayer::~FakePlayer() { cancelTimer(); }

void FakePlayer::addFile(const QString& path, std::int32_t frames, float lengthSeconds,
                         std::int32_t bitRate, std::int32_t frequency, std::int16_t channelMode,
                         const Id3Fields& tag) {
    File f;
    f.frames = frames;
    f.length = lengthSeconds;
    f.bitRate = bitRate;
    f.frequency = frequency;
    f.channelMode = channelMode;
    f.tag = tag;
    files_.insert(key(path), f);
}

void FakePlayer::failOpen(const QString& path, int times, std::int16_t code) {
    File& f = files_[key(path)];
    f.failuresLeft = times;
    f.failCode = code;
}

Id3Fields FakePlayer::tagOf(const QString& path) const {
    auto it = files_.find(key(path));
    return it == files_.end() ? Id3Fields{} : it->tag;
}

const FakePlayer::File* FakePlayer::open() const {
    if (state_ == State::Closed) return nullptr;
    auto it = files_.find(key(file_));
    return it == files_.end() ? nullptr : &*it;
}

Id3Fields FakePlayer::openTag() const {
    const File* f = open();
    return f ? f->tag : Id3Fields{};
}

double FakePlayer::frameDuration() const {
    return frameMs_ * std::max<int>(speed_, 1) / 100.0;
}

std::int32_t FakePlayer::position() const {
    if (state_ != State::Playing) return pos_;
    double played = double(loop_.now() - runStartMs_) / frameDuration();
    return std::min<std::int32_t>(end_, pos_ + std::int32_t(std::floor(played + 1e-9)));
}

// --- Running ---

void FakePlayer::cancelTimer() {
    if (timer_) loop_.stopTimer(timer_);
    timer_ = 0;
}

void FakePlayer::startRun(std::int32_t from, std::int32_t to) {
    pos_ = from;
    end_ = to;
    lastNotified_ = from;
    runStartMs_ = loop_.now();
    state_ = State::Playing;
    runToken_ = ends_.runStarted();
    schedule();
}

void FakePlayer::rebase() {
    if (state_ != State::Playing) return;
    pos_ = position();
    runStartMs_ = loop_.now();
}

// One single-shot timer at a time, due at the next notified frame or at the end.
void FakePlayer::schedule() {
    cancelTimer();
    if (state_ != State::Playing) return;
    std::int32_t cur = position();
    std::int32_t next = interval_ > 0 ? (cur / interval_ + 1) * interval_
                                      : std::numeric_limits<std::int32_t>::max();
    std::int32_t target = std::min(next, end_);
    auto dueAt = runStartMs_ + std::int64_t(std::ceil((target - pos_) * frameDuration() - 1e-9));
    auto delay = std::max<std::int64_t>(0, dueAt - loop_.now());
    timer_ = loop_.startTimer(int(delay), guarded([this] {
        timer_ = 0;
        tick();
    }), true);
}

void FakePlayer::tick() {
    std::int32_t cur = position();
    if (cur >= end_) {
        pos_ = end_;
        endRun();
        return;
    }
    std::int32_t boundary = interval_ > 0 ? cur - cur % interval_ : 0;
    // Re-arm before the handler runs: it may wait inside, and the song plays on meanwhile.
    schedule();
    if (interval_ > 0 && boundary > lastNotified_) {
        lastNotified_ = boundary;
        if (onFrameNotify) onFrameNotify(boundary);
    }
}

void FakePlayer::endRun() {
    cancelTimer();
    if (state_ == State::Playing) pos_ = position();
    state_ = State::Ended;
    raiseStreamEnd(runToken_);
}

void FakePlayer::raiseStreamEnd(StreamEndRule::Token token) {
    loop_.post(guarded([this, token] {
        if (!ends_.deliver(token)) return;
        record(QStringLiteral("event StreamEnd"));
        if (onStreamEnd) onStreamEnd();
    }));
}

// --- Mp3Player ---

std::int16_t FakePlayer::Open(const QString& file, const QString& wav) {
    record(QStringLiteral("Open(%1,%2)").arg(file, wav));
    closeFile();
    ends_.opened();
    edit_ = {};
    file_.clear();
    wav_.clear();
    tagTarget_.clear();
    auto it = files_.find(key(file));
    if (it == files_.end() || it->frames <= 0) {
        ends_.closed();
        return 1;
    }
    if (it->failuresLeft != 0) {
        if (it->failuresLeft > 0) --it->failuresLeft;
        ends_.closed();
        return it->failCode;
    }
    state_ = State::Ready;
    file_ = file;
    wav_ = wav;
    tagTarget_ = file;
    pos_ = 0;
    end_ = it->frames;
    return 0;
}

void FakePlayer::closeFile() {
    if (state_ == State::Playing || state_ == State::Paused)
        ends_.runSilenced(runToken_);
    else
        ends_.closed();
    cancelTimer();
    state_ = State::Closed;
}

void FakePlayer::Close() {
    record(QStringLiteral("Close"));
    closeFile();
}

void FakePlayer::Play() {
    record(QStringLiteral("Play"));
    if (state_ == State::Ready || state_ == State::Paused)
        startRun(pos_, end_);
    else if (state_ == State::Ended)
        startRun(0, open()->frames);
}

void FakePlayer::PlayRange(std::int32_t startFrame, std::int32_t endFrame) {
    record(QStringLiteral("PlayRange(%1,%2)").arg(startFrame).arg(endFrame));
    const File* f = open();
    if (!f) return;
    if (state_ == State::Playing || state_ == State::Paused) endRun();  // the run before ends first
    std::int32_t from = std::clamp(startFrame, 0, f->frames);
    startRun(from, std::clamp(endFrame, from, f->frames));
}

void FakePlayer::Pause() {
    record(QStringLiteral("Pause"));
    if (state_ != State::Playing) return;
    pos_ = position();
    cancelTimer();
    state_ = State::Paused;
}

void FakePlayer::Stop() {
    record(QStringLiteral("Stop"));
    if (state_ == State::Playing || state_ == State::Paused)
        endRun();
    else if (const StreamEndRule::Token t = ends_.stopWithoutRun())
        raiseStreamEnd(t);
}

std::int16_t FakePlayer::SeekFrame(std::int32_t frame) {
    record(QStringLiteral("SeekFrame(%1)").arg(frame));
    const File* f = open();
    if (!f || frame < 0 || frame > f->frames) return 1;
    pos_ = frame;
    if (state_ == State::Playing) {
        runStartMs_ = loop_.now();
        lastNotified_ = frame;
        schedule();
    }
    return 0;
}

std::int16_t FakePlayer::SetVolume(std::int16_t left, std::int16_t right) {
    record(QStringLiteral("SetVolume(%1,%2)").arg(left).arg(right));
    volLeft_ = left;
    volRight_ = right;
    return 0;
}

std::int16_t FakePlayer::SetSpeed(std::int16_t speed) {
    record(QStringLiteral("SetSpeed(%1)").arg(speed));
    rebase();
    speed_ = speed;
    schedule();
    return 0;
}

void FakePlayer::setNotifyInterval(std::int16_t frames) {
    record(QStringLiteral("NotifyInterval(%1)").arg(frames));
    interval_ = frames;
    schedule();
}

std::int32_t FakePlayer::FrameCount() { return open() ? open()->frames : 0; }
float FakePlayer::Length() { return open() ? open()->length : 0; }
std::int32_t FakePlayer::BitRate() { return open() ? open()->bitRate : 0; }
std::int32_t FakePlayer::Frequency() { return open() ? open()->frequency : 0; }
std::int16_t FakePlayer::ChannelMode() { return open() ? open()->channelMode : 0; }

QString FakePlayer::GenreName(std::int16_t genre) {
    if (genre >= 0 && genre < genreNames_.size()) return genreNames_[genre];
    return QStringLiteral("Genre %1").arg(genre);
}

void FakePlayer::SetTagTitle(const QString& v) {
    record(QStringLiteral("SetTagTitle(%1)").arg(v));
    edit_.title = v;
}
void FakePlayer::SetTagArtist(const QString& v) {
    record(QStringLiteral("SetTagArtist(%1)").arg(v));
    edit_.artist = v;
}
void FakePlayer::SetTagAlbum(const QString& v) {
    record(QStringLiteral("SetTagAlbum(%1)").arg(v));
    edit_.album = v;
}
void FakePlayer::SetTagComment(const QString& v) {
    record(QStringLiteral("SetTagComment(%1)").arg(v));
    edit_.comment = v;
}
void FakePlayer::SetTagYear(std::int16_t v) {
    record(QStringLiteral("SetTagYear(%1)").arg(v));
    edit_.year = v;
}
void FakePlayer::SetTagGenre(std::int16_t v) {
    record(QStringLiteral("SetTagGenre(%1)").arg(v));
    edit_.genre = v;
}

// Only the fields set since the last Open change; the tag's others survive.
void FakePlayer::WriteTag() {
    record(QStringLiteral("WriteTag"));
    auto it = files_.find(key(tagTarget_));
    if (tagTarget_.isEmpty() || it == files_.end()) return;
    Id3Fields& t = it->tag;
    if (edit_.title) t.title = *edit_.title;
    if (edit_.artist) t.artist = *edit_.artist;
    if (edit_.album) t.album = *edit_.album;
    if (edit_.comment) t.comment = *edit_.comment;
    if (edit_.year) t.year = *edit_.year;
    if (edit_.genre) t.genre = *edit_.genre;
}

}  // namespace sonarium
