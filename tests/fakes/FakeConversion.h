#pragma once
// The encoder, CD reader and child processes on the event loop's clock, with no files read or
// sound made. Each records its calls. A job runs for a set time: its progress comes at half way,
// its finish at the end, and a stop brings the finish at once (posted, as the real components'
// notifications are). An extraction leaves an empty file of the target's name, where its folder
// exists, so that the program's deletions can be seen.
#include <QFile>

#include "CallLog.h"
#include "controls/CdReader.h"
#include "controls/ChildProcess.h"
#include "controls/EventLoop.h"
#include "controls/Mp3Encoder.h"

namespace sonarium {

// One job at a time for the two fakes below: half way, then the end, or the end at once on stop.
class FakeJob : public CallLog {
protected:
    explicit FakeJob(EventLoop& loop) : loop_(loop) {}
    ~FakeJob() { cancel(); }
    void startJob(int ms, std::function<void()> half, std::function<void()> end) {
        end_ = std::move(end);
        half_ = loop_.startTimer(ms / 2, guarded(std::move(half)), true);
        whole_ = loop_.startTimer(ms, guarded([this] { finish(); }), true);
    }
    void stopJob() {
        if (!end_) return;
        cancel();
        loop_.post(guarded([this] { finish(); }));
    }

private:
    void cancel() { loop_.stopTimer(half_), loop_.stopTimer(whole_); }
    void finish() {
        cancel();
        if (auto end = std::exchange(end_, nullptr)) end();
    }
    EventLoop& loop_;
    EventLoop::TimerId half_ = 0, whole_ = 0;
    std::function<void()> end_;
};

class FakeEncoder : public Mp3Encoder, public FakeJob {
public:
    explicit FakeEncoder(EventLoop& loop) : FakeJob(loop) {}
    int jobMs = 3000;
    std::int32_t total = 1000;
    QString refuse;  // a WAV name (its end) that OpenFiles refuses

    void setEncoderBitRate(double r) override { record("BitRate", std::int64_t(r)); }
    void setEncoderSampleRate(double r) override { record("SampleRate", std::int64_t(r)); }
    std::int16_t OpenFiles(const QString& wav, const QString& mp3) override {
        record("OpenFiles", wav, mp3);
        return wav == "rem.wav" || (!refuse.isEmpty() && wav.endsWith(refuse)) ? 1 : 0;
    }
    std::int32_t EncodeTotal() override { return total; }
    void StartEncoding() override {
        record("StartEncoding");
        startJob(
            jobMs, [this] { onEncodeProgress(total / 2 + 5); }, [this] { onEncodeFinished(); });
    }
    void StopEncoding() override { stopJob(); }
};

class FakeCdReader : public CdReader, public FakeJob {
public:
    explicit FakeCdReader(EventLoop& loop) : FakeJob(loop) {}
    QStringList drives;
    std::vector<std::int32_t> tracks;  // lengths in ms
    int jobMs = 7000;
    std::int16_t extractResult = 0;
    bool complete = false;  // what ExtractComplete says

    std::int16_t InitCD() override { return 0; }
    void SelectDrive(std::int16_t d) override { record("SelectDrive", d); }
    std::int16_t DriveCount() override { return std::int16_t(drives.size()); }
    QString DriveName(std::int16_t d) override { return drives.value(d - 1); }
    std::int16_t TrackCount() override { return std::int16_t(tracks.size()); }
    std::int32_t TrackLength(std::int16_t t) override {
        return t >= 1 && t <= int(tracks.size()) ? tracks[t - 1] : 0;
    }
    std::int32_t TrackSize(std::int16_t t) override { return TrackLength(t) * 176; }
    void SetOwnerName(const QString&) override {}
    std::int16_t ExtractTrack(std::int16_t t, const QString& file) override {
        record("ExtractTrack", t, file);
        if (extractResult != 0) return extractResult;
        QFile(file).open(QIODevice::WriteOnly);
        startJob(
            jobMs, [this] { onExtractProgress(500); }, [this] { onExtractFinished(); });
        return 0;
    }
    void StopExtract() override { stopJob(); }
    bool ExtractComplete() const override { return complete; }
    void OpenTray() override { record("OpenTray"); }
    void CloseTray() override { record("CloseTray"); }
};

class FakeProcesses : public ChildProcesses, public CallLog {
public:
    std::int64_t Start(const QString& line, const QString& dir, bool) override {
        record("Start", line, dir);
        return running_.emplace_back(++last_);
    }
    int WaitForSingleObject(std::int64_t p, int) override {
        return std::count(running_.begin(), running_.end(), p);
    }
    void TerminateProcess(std::int64_t p, int) override { record("Terminate", p), end(p); }
    void CloseHandle(std::int64_t p) override { record("CloseHandle", p); }
    void end(std::int64_t p) {
        running_.erase(std::remove(running_.begin(), running_.end(), p), running_.end());
    }

private:
    std::vector<std::int64_t> running_;
    std::int64_t last_ = 1000;
};

}  // namespace sonarium
