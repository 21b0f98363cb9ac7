#pragma once
// Components that the program can run with before the real engines exist: each does nothing,
// or fails the way a missing device fails, so that every rule of the program still holds
// (no song opens, no CD drive, no peak meter). Each says once on stderr, when it is made,
// that it is only a stand-in.
#include "controls/CdReader.h"
#include "controls/ChildProcess.h"
#include "controls/DataControl.h"
#include "controls/Mp3Encoder.h"
#include "controls/Mp3Player.h"
#include "controls/PeakMeter.h"
#include "controls/ToneMixer.h"

namespace sonarium {

// Refuses every file, so nothing plays; with nothing open, nothing is ever notified.
class StandInPlayer : public Mp3Player {
public:
    StandInPlayer();
    std::int16_t Open(const QString&, const QString&) override { return 1; }
    void Close() override {}
    void Play() override {}
    void PlayRange(std::int32_t, std::int32_t) override {}
    void Pause() override {}
    void Stop() override {}
    std::int16_t SeekFrame(std::int32_t) override { return 1; }
    std::int16_t SetVolume(std::int16_t, std::int16_t) override { return 0; }
    std::int16_t SetSpeed(std::int16_t) override { return 0; }
    void setNotifyInterval(std::int16_t) override {}
    std::int32_t FrameCount() override { return 0; }
    float Length() override { return 0; }
    std::int32_t BitRate() override { return 0; }
    std::int32_t Frequency() override { return 0; }
    std::int16_t ChannelMode() override { return 0; }
    QString TagTitle() override { return {}; }
    QString TagArtist() override { return {}; }
    QString TagAlbum() override { return {}; }
    QString TagComment() override { return {}; }
    std::int16_t TagYear() override { return 0; }
    std::int16_t TagGenre() override { return 0; }
    QString GenreName(std::int16_t) override { return {}; }
    void SetTagTitle(const QString&) override {}
    void SetTagArtist(const QString&) override {}
    void SetTagAlbum(const QString&) override {}
    void SetTagComment(const QString&) override {}
    void SetTagYear(std::int16_t) override {}
    void SetTagGenre(std::int16_t) override {}
    void WriteTag() override {}
};

// Refuses every job, so a run ends at once with the program's own "open error" message.
class StandInEncoder : public Mp3Encoder {
public:
    StandInEncoder();
    void setEncoderBitRate(double) override {}
    void setEncoderSampleRate(double) override {}
    std::int16_t OpenFiles(const QString&, const QString&) override { return 1; }
    std::int32_t EncodeTotal() override { return 0; }
    void StartEncoding() override {}
    void StopEncoding() override {}
};

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

// Starts nothing.
class StandInProcesses : public ChildProcesses {
public:
    StandInProcesses();
    std::int64_t Start(const QString&, const QString&, bool) override { return 0; }
    int WaitForSingleObject(std::int64_t, int) override { return 0; }
    void TerminateProcess(std::int64_t, int) override {}
    void CloseHandle(std::int64_t) override {}
};

// Reports the three controls that the program looks for; values go nowhere.
class StandInMixer : public ToneMixer {
public:
    StandInMixer();
    void OpenMixer() override;
    bool SetControlValue(std::int32_t, std::int32_t, std::int16_t, std::int32_t) override { return true; }
};

// No mixer to open: the program then disables its VU meter.
class StandInPeakMeter : public PeakMeter {
public:
    StandInPeakMeter();
    int OpenMixer() override { return 1; }
    bool FindPeakControl() override { return false; }
    std::int32_t Maximum() override { return 0; }
    bool Prepare() override { return false; }
    std::optional<std::int32_t> Read() override { return std::nullopt; }
    void Free() override {}
};

// Keeps its three settings; everything that would open or create a database file fails with
// "No database engine yet". The record set is empty and has no current record.
class StandInDataControl : public DataControl {
public:
    StandInDataControl();
    ~StandInDataControl() override;
    QString DatabaseName() const override { return databaseName_; }
    void setDatabaseName(const QString& file) override { databaseName_ = file; }
    QString Connect() const override { return connect_; }
    void setConnect(const QString& connect) override { connect_ = connect; }
    QString RecordSource() const override { return recordSource_; }
    void setRecordSource(const QString& source) override { recordSource_ = source; }
    void Refresh() override;
    Database& database() override;
    Recordset& recordset() override;
    std::unique_ptr<Database> CreateDatabase(const QString& file, const QString& locale) override;

private:
    QString databaseName_, connect_, recordSource_;
    std::unique_ptr<Database> database_;
    std::unique_ptr<Recordset> recordset_;
};

}  // namespace sonarium
