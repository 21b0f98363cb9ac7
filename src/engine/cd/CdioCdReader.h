#pragma once
// The audio CD reader on libcdio and cdio-paranoia. The drives are the system's CD drives and
// then CD images (.cue with its .bin, or cdrdao .toc) named as drives, so that an image can be
// ripped without a drive. Every query opens the source afresh, so a disc changed in a drive is
// seen on the next TrackCount. Tracks are numbered among the disc's audio tracks only.
//
// ExtractTrack checks the whole job on the caller's thread (disc, track, room for the WAV, the
// target created) and then reads the track on a worker thread into a 16-bit stereo 44.1 kHz
// WAV. A drive is read through paranoia with its full checks and a bound on retries of a bad
// sector; an image is an exact copy, so its sectors are copied as they are. Reads never go past
// the track's last sector nor past where an image's data ends.
//
// Threading: every call is for the event loop's thread. The worker posts ExtractProgress at
// each whole thousandth and ExtractFinished once per started job, also after StopExtract.
#include <QByteArray>
#include <QString>
#include <atomic>
#include <memory>
#include <vector>

class QTemporaryDir;

#include "controls/CdReader.h"
#include "engine/jobs/WorkerJob.h"

namespace sonarium {

class CdioCdReader : public CdReader {
public:
    // ExtractTrack's codes other than 0.
    static constexpr std::int16_t kNoTrack = 1;      // no drive, disc or such track, or a job runs
    static constexpr std::int16_t kCannotWrite = 2;  // the target cannot be created
    static constexpr std::int16_t kNoRoom = 712;     // the target's file system lacks the room

    // `images`: CD image files separated by ':', offered as drives after the system's drives;
    // empty entries and files that do not exist are left out.
    CdioCdReader(EventLoop& loop, QString images);
    ~CdioCdReader() override;  // stops the job and waits for its worker

    std::int16_t InitCD() override;  // reads the drive list again
    void SelectDrive(std::int16_t drive) override;
    std::int16_t DriveCount() override { return std::int16_t(drives_.size()); }
    // A device's path, or an image's file name.
    QString DriveName(std::int16_t drive) override;
    std::int16_t TrackCount() override;
    std::int32_t TrackLength(std::int16_t track) override;
    // The WAV's size in bytes.
    std::int32_t TrackSize(std::int16_t track) override;
    void SetOwnerName(const QString&) override {}
    std::int16_t ExtractTrack(std::int16_t track, const QString& file) override;
    void StopExtract() override { job_.requestStop(); }
    bool ExtractComplete() const override { return complete_; }
    // A drive's tray moves on a thread of its own, as it takes seconds; nothing for an image.
    void OpenTray() override { moveTray(true); }
    void CloseTray() override { moveTray(false); }

    struct Drive {
        QString name;
        QByteArray source;  // what libcdio opens
        bool image = false;
    };
    struct Track {
        std::int32_t first = 0, last = 0;  // sectors, both included
        std::int64_t sectors() const { return std::int64_t(last) - first + 1; }
    };
    struct Job;  // an extraction handed to the worker

private:
    const Drive* selected() const;
    // The selected disc's audio tracks, read once after each TrackCount or change of drive.
    const std::vector<Track>& tracks();
    const Track* track(std::int16_t number);
    void moveTray(bool out);

    QString images_;
    std::unique_ptr<QTemporaryDir> copies_;  // the .toc files as libcdio is given them
    std::vector<Drive> drives_;
    int selected_ = 0;  // 1-based; 0 none
    std::vector<Track> tracks_;
    bool tracksRead_ = false;
    std::atomic<bool> complete_{false};  // written by the worker before its finish is posted
    WorkerJob job_;  // last: it goes first, stopping the worker before what the worker uses
};

}  // namespace sonarium
