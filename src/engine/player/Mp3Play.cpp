#include "engine/player/Mp3Play.h"

#include <QFileInfo>
#include <algorithm>

#include "controls/FileNames.h"
#include "engine/id3/Id3v1Genres.h"
#include "engine/player/WavOutput.h"

namespace sonarium {

Mp3Play::Mp3Play(EventLoop& loop, SinkFactory sinks, ToneSettings& tone, PeakLevel& peak)
    : loop_(loop), sinks_(std::move(sinks)), processor_(tone, peak) {}

Mp3Play::~Mp3Play() {
    run_.reset();  // the worker uses the decoder and the processor: join it first
    alive_.reset();
}

bool Mp3Play::runLive() const { return run_ && !run_->stopRequested() && !run_->finished(); }

// Called on the worker at a run's end, or on the UI thread by Stop; delivered on the UI thread.
void Mp3Play::raiseStreamEnd(StreamEndRule::Token token) {
    std::weak_ptr<int> alive = alive_;
    loop_.post([this, alive, token] {
        if (alive.expired() || !ends_.deliver(token)) return;
        if (onStreamEnd) onStreamEnd();
    });
}

RunReports Mp3Play::makeReports(StreamEndRule::Token token) {
    // Made here, called on the worker: they only post. The posted calls check on the UI
    // thread that the player still exists, and for frames that the epoch is still current.
    EventLoop* loop = &loop_;
    std::weak_ptr<int> alive = alive_;
    RunReports r;
    r.frame = [this, loop, alive](std::int32_t frame, std::uint64_t epoch) {
        loop->post([this, alive, frame, epoch] {
            if (alive.expired() || epoch != epoch_) return;
            if (onFrameNotify) onFrameNotify(frame);
        });
    };
    // Safe on the worker: the destructor joins the worker before alive_ goes.
    r.end = [this, token] { raiseStreamEnd(token); };
    return r;
}

void Mp3Play::startRun(std::int32_t first, std::int32_t last) {
    run_.reset();  // a run that ended or was told to stop: its worker is done or nearly
    RunPlan plan;
    plan.decoder = &decoder_;
    if (wav_.isEmpty())
        plan.output = std::make_unique<DeviceOutput>(sinks_, processor_, speed_);
    else
        plan.output = std::make_unique<WavOutput>(wav_);
    plan.first = std::max(first, 0);
    // A range to the counted end runs to the file's real end: the count may be an estimate a
    // frame short, and the decoder stops at the end of the audio by itself.
    plan.last = last >= info().frames - 1 ? INT32_MAX : last;
    plan.notifyInterval = &notifyInterval_;
    plan.epoch = ++epoch_;
    runToken_ = ends_.runStarted();
    plan.reports = makeReports(runToken_);
    startFrame_ = 0;
    run_ = std::make_unique<PlayerRun>(std::move(plan));
}

namespace {
// Decoding a file into itself would destroy it.
bool sameFile(const QString& a, const QString& b) {
    const QString ca = QFileInfo(resolveFileName(a)).canonicalFilePath();
    return !ca.isEmpty() && ca == QFileInfo(resolveFileName(b)).canonicalFilePath();
}
}  // namespace

std::int16_t Mp3Play::Open(const QString& file, const QString& wav) {
    Close();
    // The program has moved on to another file: StreamEnds still on their way are dropped.
    ends_.opened();
    // The tag is read whether or not the audio opens; the decoder's read of the file's end
    // holds it.
    if (!wav.isEmpty() && sameFile(file, wav)) {
        tags_.open(file);
        ends_.closed();
        return 1;
    }
    QByteArray fileEnd;
    const int failed = decoder_.open(file, &fileEnd);
    tags_.open(file, fileEnd);
    if (failed) {
        ends_.closed();
        return 1;
    }
    wav_ = wav;
    return 0;
}

void Mp3Play::Close() {
    if (runLive())
        ends_.runSilenced(runToken_);
    else
        ends_.closed();
    run_.reset();  // a live run stops; a StreamEnd of a run stopped before stays due
    ++epoch_;
    decoder_.close();
    wav_.clear();
    startFrame_ = 0;
}

void Mp3Play::Play() {
    if (!decoder_.isOpen()) return;
    if (runLive()) {
        run_->setPaused(false);  // resumes a paused run; a playing one goes on
        return;
    }
    startRun(startFrame_, info().frames - 1);
}

void Mp3Play::PlayRange(std::int32_t startFrame, std::int32_t endFrame) {
    if (!decoder_.isOpen()) return;
    if (runLive()) {
        run_->requestStop();  // the run before ends with its own StreamEnd
        ++epoch_;
    }
    startRun(startFrame, endFrame);
}

void Mp3Play::Pause() {
    if (runLive()) run_->setPaused(true);
}

void Mp3Play::Stop() {
    if (!runLive()) {
        if (const StreamEndRule::Token t = ends_.stopWithoutRun()) raiseStreamEnd(t);
        return;
    }
    run_->requestStop();
    ++epoch_;
}

std::int16_t Mp3Play::SeekFrame(std::int32_t frame) {
    if (!decoder_.isOpen() || frame < 0) return 1;
    frame = std::min(frame, info().frames);  // the end itself: a run there ends at once
    if (runLive())
        run_->requestSeek(frame, ++epoch_);
    else
        startFrame_ = frame;
    return 0;
}

std::int16_t Mp3Play::SetVolume(std::int16_t left, std::int16_t right) {
    processor_.setVolume(left, right);
    return 0;
}

std::int16_t Mp3Play::SetSpeed(std::int16_t speed) {
    speed_.store(speed, std::memory_order_relaxed);
    return 0;
}

void Mp3Play::setNotifyInterval(std::int16_t frames) {
    notifyInterval_.store(std::max<int>(frames, 1), std::memory_order_relaxed);
}

QString Mp3Play::GenreName(std::int16_t genre) { return id3v1GenreName(genre); }

}  // namespace sonarium
