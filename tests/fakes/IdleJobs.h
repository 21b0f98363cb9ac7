#pragma once
// The encoder, CD reader and child processes for tests of everything but conversion: each does
// nothing, as a machine with no encoder, no drive and nothing to start, but keeps the settings
// start-up gives them. Conversion's tests will bring fakes that run jobs on the virtual clock.
#include "controls/CdReader.h"
#include "controls/ChildProcess.h"
#include "controls/Mp3Encoder.h"

namespace sonarium {

class IdleEncoder : public Mp3Encoder {
public:
    void setEncoderBitRate(double r) override { bitRate_ = r; }
    void setEncoderSampleRate(double r) override { sampleRate_ = r; }
    double bitRate() const { return bitRate_; }
    double sampleRate() const { return sampleRate_; }
    std::int16_t OpenFiles(const QString&, const QString&) override { return 1; }
    std::int32_t EncodeTotal() override { return 0; }
    void StartEncoding() override {}
    void StopEncoding() override {}

private:
    double bitRate_ = 0, sampleRate_ = 0;
};

class IdleCdReader : public CdReader {
public:
    std::int16_t InitCD() override { return 0; }
    void SelectDrive(std::int16_t d) override { drive_ = d; }
    std::int16_t selectedDrive() const { return drive_; }
    std::int16_t DriveCount() override { return 0; }
    QString DriveName(std::int16_t) override { return {}; }
    std::int16_t TrackCount() override { return 0; }
    std::int32_t TrackLength(std::int16_t) override { return 0; }
    std::int32_t TrackSize(std::int16_t) override { return 0; }
    void SetOwnerName(const QString&) override {}
    std::int16_t ExtractTrack(std::int16_t, const QString&) override { return 1; }
    void StopExtract() override {}
    void OpenTray() override {}
    void CloseTray() override {}

private:
    std::int16_t drive_ = 0;
};

class IdleProcesses : public ChildProcesses {
public:
    std::int64_t Start(const QString&, const QString&, bool) override { return 0; }
    int WaitForSingleObject(std::int64_t, int) override { return 0; }
    void TerminateProcess(std::int64_t, int) override {}
    void CloseHandle(std::int64_t) override {}
};

}  // namespace sonarium
