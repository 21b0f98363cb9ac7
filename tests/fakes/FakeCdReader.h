#pragma once
// A CD reader on the event loop's clock: drives and their discs are set by the test. A started
// extraction reports progress in thousandths over its duration, then ExtractFinished;
// StopExtract ends it early with ExtractFinished. ExtractFinished comes exactly once per
// started extraction, posted through the loop; none follows an ExtractTrack that failed.
#include <algorithm>
#include <vector>

#include "CallLog.h"
#include "controls/CdReader.h"
#include "controls/EventLoop.h"

namespace sonarium {

class FakeCdReader : public CdReader, public CallLog {
public:
    explicit FakeCdReader(EventLoop& loop) : loop_(loop) {}
    ~FakeCdReader() override { stopTimer(); }

    // --- Set-up (tests) ---
    // Adds the next drive (numbered from 1); no track lengths means no readable disc.
    void addDrive(const QString& name, std::vector<std::int32_t> trackLengthsMs = {});
    void setInitResult(std::int16_t result) { initResult_ = result; }
    // What the following ExtractTrack calls return (0 starts the extraction).
    void setExtractResult(std::int16_t result) { extractResult_ = result; }
    // An extraction lasts `durationMs` and reports `steps` progress events (the last = 1000).
    void setExtraction(int durationMs, int steps) { durationMs_ = durationMs, steps_ = std::max(steps, 1); }

    // --- Looking in (tests) ---
    std::int16_t selectedDrive() const { return drive_; }
    QString extractFile() const { return file_; }
    std::int16_t extractTrackNumber() const { return track_; }
    bool extracting() const { return timer_ != 0; }
    bool trayOpen() const { return trayOpen_; }

    // --- CdReader ---
    std::int16_t InitCD() override;
    void SelectDrive(std::int16_t drive) override;
    std::int16_t DriveCount() override { return std::int16_t(drives_.size()); }
    QString DriveName(std::int16_t drive) override;
    std::int16_t TrackCount() override;
    std::int32_t TrackLength(std::int16_t track) override;
    std::int32_t TrackSize(std::int16_t track) override;
    void SetOwnerName(const QString& name) override;
    std::int16_t ExtractTrack(std::int16_t track, const QString& file) override;
    void StopExtract() override;
    void OpenTray() override;
    void CloseTray() override;

private:
    struct Drive {
        QString name;
        std::vector<std::int32_t> tracks;
    };
    const Drive* current() const;
    void step();
    void finish();
    void stopTimer();

    EventLoop& loop_;
    std::vector<Drive> drives_;
    std::int16_t drive_ = 0;
    std::int16_t initResult_ = 0, extractResult_ = 0;
    int durationMs_ = 10000, steps_ = 10, stepsDone_ = 0;
    QString file_;
    std::int16_t track_ = 0;
    bool trayOpen_ = false;
    EventLoop::TimerId timer_ = 0;
};

}  // namespace sonarium
