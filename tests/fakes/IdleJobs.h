#pragma once
// The encoder, CD reader and child processes for tests of everything but conversion: each does
// nothing, as a machine with no encoder, no drive and nothing to start, but the encoder keeps the
// bit rate start-up gives it. Conversion's tests will bring fakes that run jobs on the virtual clock.
#include "controls/CdReader.h"
#include "controls/ChildProcess.h"
#include "controls/Mp3Encoder.h"

namespace sonarium {

class IdleEncoder : public Mp3Encoder {
public:
    void setEncoderBitRate(double r) override { bitRate_ = r; }
    void setEncoderSampleRate(double) override {}
    double bitRate() const { return bitRate_; }
    std::int16_t OpenFiles(const QString&, const QString&) override { return 1; }
    std::int32_t EncodeTotal() override { return 0; }
    void StartEncoding() override {}
    void StopEncoding() override {}

private:
    double bitRate_ = 0;
};

class IdleCdReader : public CdReader {
public:
    std::int16_t InitCD() override { return 0; }
    void SelectDrive(std::int16_t) override {}
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
};

class IdleProcesses : public ChildProcesses {
public:
    std::int64_t Start(const QString&, const QString&, bool) override { return 0; }
    int WaitForSingleObject(std::int64_t, int) override { return 0; }
    void TerminateProcess(std::int64_t, int) override {}
    void CloseHandle(std::int64_t) override {}
};

}  // namespace sonarium
