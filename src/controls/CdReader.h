#pragma once
// The audio CD reader component: drives, tracks, and extraction of a track to a WAV file.
#include <QString>
#include <cstdint>
#include <functional>

namespace sonarium {

class CdReader {
public:
    virtual ~CdReader() = default;
    virtual std::int16_t InitCD() = 0;                 // 0 = ready
    virtual void SelectDrive(std::int16_t drive) = 0;  // 1-based
    virtual std::int16_t DriveCount() = 0;
    virtual QString DriveName(std::int16_t drive) = 0;         // 1-based
    virtual std::int16_t TrackCount() = 0;                     // 0 when no readable disc
    virtual std::int32_t TrackLength(std::int16_t track) = 0;  // milliseconds
    virtual std::int32_t TrackSize(std::int16_t track) = 0;
    virtual void SetOwnerName(const QString& name) = 0;
    // Starts copying; returns at once. 0 started, 712 not enough disk space, else a read error.
    virtual std::int16_t ExtractTrack(std::int16_t track, const QString& file) = 0;
    virtual void StopExtract() = 0;  // ExtractFinished still follows
    // After ExtractFinished: whether that extraction wrote every sector of its track. A reader
    // that cannot tell says false.
    virtual bool ExtractComplete() const = 0;
    virtual void OpenTray() = 0;
    virtual void CloseTray() = 0;

    std::function<void(std::int32_t perMille)> onExtractProgress;
    std::function<void()> onExtractFinished;
};

}  // namespace sonarium
