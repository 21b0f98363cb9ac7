#pragma once
// Components that the program can run with before the real engines exist: each does nothing,
// or fails the way a missing device fails, so that every rule of the program still holds
// (no CD drive, no outside program). Each says once on stderr, when it is made,
// that it is only a stand-in.
#include "controls/CdReader.h"
#include "controls/DataControl.h"

namespace sonarium {

// Ready, with no drives and so no disc.
class StandInCdReader : public CdReader {
public:
    StandInCdReader();
    std::int16_t InitCD() override { return 0; }
    void SelectDrive(std::int16_t) override {}
    std::int16_t DriveCount() override { return 0; }
    QString DriveName(std::int16_t) override { return {}; }
    std::int16_t TrackCount() override { return 0; }
    std::int32_t TrackLength(std::int16_t) override { return 0; }
    std::int32_t TrackSize(std::int16_t) override { return 0; }
    void SetOwnerName(const QString&) override {}
    // A read error, reported at once: no ExtractFinished follows.
    std::int16_t ExtractTrack(std::int16_t, const QString&) override { return 1; }
    void StopExtract() override {}
    void OpenTray() override {}
    void CloseTray() override {}
};

}  // namespace sonarium
