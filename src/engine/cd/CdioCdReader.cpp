#include "engine/cd/CdioCdReader.h"

#include <cdio/cdio.h>
#include <cdio/logging.h>
#include <cdio/paranoia/cdda.h>
#include <cdio/paranoia/paranoia.h>
#include <sys/statvfs.h>

#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QtEndian>
#include <QtGlobal>
#include <cstdio>
#include <functional>
#include <memory>
#include <thread>

#include "controls/FileNames.h"
#include "engine/player/WavWriter.h"

namespace sonarium {

struct CdioCdReader::Job {
    CdIo_t* cdio = nullptr;  // the worker's own handle
    Track track;
    bool exact = false;  // an image
    WavWriter wav;
    ~Job() {
        if (cdio) cdio_destroy(cdio);
    }
};

namespace {

constexpr int kFramesPerSector = CDIO_CD_FRAMESIZE_RAW / 4;
constexpr int kWavHeaderBytes = 44;
constexpr int kImageChunk = CDIO_CD_FRAMES_PER_SEC;
// Reads of one bad sector on a real drive before paranoia gives up on it; a scratched disc
// then costs minutes at most rather than forever.
constexpr int kRetries = 20;

// libcdio's default log handler prints to stderr and exits the process on an error; ours
// never exits, and stays silent unless SONARIUM_DEBUG asks for the messages.
void logHandler(cdio_log_level_t level, const char* message) {
    static const bool debug = qEnvironmentVariableIsSet("SONARIUM_DEBUG");
    if (debug) std::fprintf(stderr, "sonarium: libcdio (%d): %s\n", int(level), message);
}

void installLogHandler() {
    static const bool installed = (cdio_log_set_handler(logHandler), true);
    (void)installed;
}

using CdioHandle = std::unique_ptr<CdIo_t, decltype(&cdio_destroy)>;

CdioHandle open(const CdioCdReader::Drive& drive) {
    driver_id_t driver = DRIVER_DEVICE;
    if (drive.image)
        driver = drive.name.endsWith(".cue", Qt::CaseInsensitive)   ? DRIVER_BINCUE
                 : drive.name.endsWith(".toc", Qt::CaseInsensitive) ? DRIVER_CDRDAO
                                                                    : DRIVER_UNKNOWN;
    return CdioHandle(cdio_open(drive.source.constData(), driver), &cdio_destroy);
}

// The audio tracks of the disc in `cdio`, in order; none when there is no readable disc.
std::vector<CdioCdReader::Track> audioTracks(CdIo_t* cdio) {
    std::vector<CdioCdReader::Track> tracks;
    if (!cdio) return tracks;
    const track_t first = cdio_get_first_track_num(cdio);
    const track_t count = cdio_get_num_tracks(cdio);
    // The disc ends where an image's data ends, whatever its tracks claim.
    const lsn_t end = cdio_get_disc_last_lsn(cdio);
    if (first == CDIO_INVALID_TRACK || count == CDIO_INVALID_TRACK || end == CDIO_INVALID_LSN) return tracks;
    for (int t = first; t < first + count && t <= CDIO_CD_MAX_TRACKS; ++t) {
        if (cdio_get_track_format(cdio, track_t(t)) != TRACK_FORMAT_AUDIO) continue;
        const lsn_t from = cdio_get_track_lsn(cdio, track_t(t));
        const lsn_t to = std::min(cdio_get_track_last_lsn(cdio, track_t(t)), end - 1);
        // A track an image describes with no sectors, or backwards, cannot be read.
        if (from != CDIO_INVALID_LSN && to != CDIO_INVALID_LSN && from >= 0 && to >= from)
            tracks.push_back({from, to});
    }
    return tracks;
}

constexpr qint64 kMaxTocBytes = 1 << 20;

// The .toc's text with the data files it names by relative names named by absolute ones, as
// libcdio looks for them from the current directory rather than from the .toc's.
QByteArray absoluteNames(const QFileInfo& toc) {
    QFile in(toc.absoluteFilePath());
    if (!in.open(QIODevice::ReadOnly) || in.size() > kMaxTocBytes) return {};
    // Latin-1 keeps every byte as it is, whatever the names' encoding.
    QString text = QString::fromLatin1(in.readAll());
    static const QRegularExpression file(R"re((?:AUDIO|DATA)?FILE\s+"([^"/][^"]*)")re");
    const QString folder = QString::fromLatin1(QFile::encodeName(toc.absolutePath())) + '/';
    for (qsizetype at = 0;;) {
        const QRegularExpressionMatch m = file.match(text, at);
        if (!m.hasMatch()) break;
        text.insert(m.capturedStart(1), folder);
        at = m.capturedEnd(0) + folder.size();
    }
    return text.toLatin1();
}

// An image's sectors copied as they are, a second's worth at a time: the data is exact, so
// paranoia's verification would only cost time, and its reads, unlike these, can loop forever
// on sectors an odd image describes but does not hold. Ends at the track's last sector, a stop,
// a read that fails or a failed write.
void copyImage(CdioCdReader::Job& job, const WorkerJob& worker,
               const std::function<void(std::int64_t)>& progress) {
    std::vector<std::int16_t> samples(std::size_t(kImageChunk) * CDIO_CD_FRAMESIZE_RAW / 2);
    for (std::int64_t done = 0; done < job.track.sectors() && !worker.stopRequested();) {
        const auto n = int(std::min<std::int64_t>(kImageChunk, job.track.sectors() - done));
        if (cdio_read_audio_sectors(job.cdio, samples.data(), lsn_t(job.track.first + done), n) !=
            DRIVER_OP_SUCCESS)
            break;
        qFromLittleEndian<qint16>(samples.data(), n * CDIO_CD_FRAMESIZE_RAW / 2, samples.data());
        if (!job.wav.write(samples.data(), n * kFramesPerSector)) break;
        progress(done += n);
    }
}

// Paranoia's full checks on a drive's read, sector by sector, each sector retried a bounded
// number of times; ends as above.
void readDrive(CdioCdReader::Job& job, const WorkerJob& worker,
               const std::function<void(std::int64_t)>& progress) {
    cdrom_drive_t* drive = cdio_cddap_identify_cdio(job.cdio, CDDA_MESSAGE_FORGETIT, nullptr);
    if (!drive) return;
    cdio_cddap_verbose_set(drive, CDDA_MESSAGE_FORGETIT, CDDA_MESSAGE_FORGETIT);
    if (cdio_cddap_open(drive) == 0) {
        if (cdrom_paranoia_t* paranoia = cdio_paranoia_init(drive)) {
            cdio_paranoia_modeset(paranoia, PARANOIA_MODE_FULL ^ PARANOIA_MODE_NEVERSKIP);
            cdio_paranoia_seek(paranoia, job.track.first, SEEK_SET);
            for (std::int64_t done = 0; done < job.track.sectors() && !worker.stopRequested();) {
                const std::int16_t* samples = cdio_paranoia_read_limited(paranoia, nullptr, kRetries);
                if (!samples || !job.wav.write(samples, kFramesPerSector)) break;
                progress(++done);
            }
            cdio_paranoia_free(paranoia);
        }
    }
    cdio_cddap_close_no_free_cdio(drive);
}

}  // namespace

CdioCdReader::CdioCdReader(EventLoop& loop, QString images) : images_(std::move(images)), job_(loop) {
    installLogHandler();
    InitCD();
}

CdioCdReader::~CdioCdReader() = default;

std::int16_t CdioCdReader::InitCD() {
    drives_.clear();
    if (char** devices = cdio_get_devices(DRIVER_DEVICE)) {
        for (char** d = devices; *d; ++d) drives_.push_back({QFile::decodeName(*d), QByteArray(*d), false});
        cdio_free_device_list(devices);
    }
    for (const QString& entry : images_.split(':', Qt::SkipEmptyParts)) {
        const QFileInfo file(entry);
        if (!file.isFile()) continue;
        Drive drive{file.fileName(), QFile::encodeName(file.absoluteFilePath()), true};
        if (drive.name.endsWith(".toc", Qt::CaseInsensitive)) {
            if (!copies_) copies_ = std::make_unique<QTemporaryDir>();
            QFile copy(copies_->filePath(QString::number(drives_.size()) + ".toc"));
            const QByteArray text = absoluteNames(file);
            if (!text.isEmpty() && copy.open(QIODevice::WriteOnly) && copy.write(text) == text.size())
                drive.source = QFile::encodeName(copy.fileName());
        }
        drives_.push_back(drive);
    }
    if (selected_ > int(drives_.size())) selected_ = 0;
    tracksRead_ = false;
    return 0;
}

void CdioCdReader::SelectDrive(std::int16_t drive) {
    selected_ = drive >= 1 && drive <= DriveCount() ? drive : 0;
    tracksRead_ = false;
}

QString CdioCdReader::DriveName(std::int16_t drive) {
    return drive >= 1 && drive <= DriveCount() ? drives_[std::size_t(drive - 1)].name : QString();
}

const CdioCdReader::Drive* CdioCdReader::selected() const {
    return selected_ > 0 ? &drives_[std::size_t(selected_ - 1)] : nullptr;
}

const std::vector<CdioCdReader::Track>& CdioCdReader::tracks() {
    if (!tracksRead_) {
        tracks_ = selected() ? audioTracks(open(*selected()).get()) : std::vector<Track>();
        tracksRead_ = true;
    }
    return tracks_;
}

const CdioCdReader::Track* CdioCdReader::track(std::int16_t number) {
    const auto& all = tracks();
    return number >= 1 && number <= int(all.size()) ? &all[std::size_t(number - 1)] : nullptr;
}

std::int16_t CdioCdReader::TrackCount() {
    tracksRead_ = false;  // the disc may have changed since the last look
    return std::int16_t(tracks().size());
}

std::int32_t CdioCdReader::TrackLength(std::int16_t number) {
    const Track* t = track(number);
    return t ? std::int32_t(t->sectors() * 1000 / CDIO_CD_FRAMES_PER_SEC) : 0;
}

std::int32_t CdioCdReader::TrackSize(std::int16_t number) {
    const Track* t = track(number);
    return t ? std::int32_t(
                   std::min<std::int64_t>(kWavHeaderBytes + t->sectors() * CDIO_CD_FRAMESIZE_RAW, INT32_MAX))
             : 0;
}

std::int16_t CdioCdReader::ExtractTrack(std::int16_t number, const QString& file) {
    if (job_.running() || !selected()) return kNoTrack;
    // The disc is read afresh: the job takes this handle, and the track's bounds from it.
    auto job = std::make_shared<Job>();
    CdioHandle cdio = open(*selected());
    const std::vector<Track> all = audioTracks(cdio.get());
    if (number < 1 || number > int(all.size())) return kNoTrack;
    job->track = all[std::size_t(number - 1)];
    job->exact = selected()->image;

    // The whole WAV must fit, counting the room an old file of that name gives back.
    const QString target = resolveFileName(file);
    struct statvfs fs {};
    if (file.isEmpty() ||
        ::statvfs(QFile::encodeName(QFileInfo(target).absolutePath()).constData(), &fs) != 0)
        return kCannotWrite;
    const QFileInfo old(target);
    const std::int64_t room =
        std::int64_t(fs.f_bavail) * std::int64_t(fs.f_frsize) + (old.isFile() ? old.size() : 0);
    if (room < kWavHeaderBytes + job->track.sectors() * CDIO_CD_FRAMESIZE_RAW) return kNoRoom;
    if (!job->wav.open(target, 44100, 2)) return kCannotWrite;

    job->cdio = cdio.release();
    complete_ = false;
    const std::int64_t total = job->track.sectors();
    job_.start(
        [this, job, total] {
            ProgressSteps steps(total, 1000);
            std::int64_t read = 0;
            const auto progress = [&](std::int64_t done) {
                read = done;
                if (!steps.next(done)) return;
                const auto perMille = std::int32_t(std::min(done, total) * 1000 / total);
                job_.post([this, perMille] {
                    if (onExtractProgress) onExtractProgress(perMille);
                });
            };
            (job->exact ? copyImage : readDrive)(*job, job_, progress);
            // The WAV's header gets its sizes before the finish is posted; the handle goes with
            // the job when the worker ends.
            const bool written = job->wav.close();
            complete_ = written && read == total && !job_.stopRequested();
        },
        [this] {
            if (onExtractFinished) onExtractFinished();
        });
    return 0;
}

void CdioCdReader::moveTray(bool out) {
    const Drive* drive = selected();
    if (!drive || drive->image) return;
    std::thread([device = drive->source, out] {
        driver_id_t driver = DRIVER_DEVICE;
        if (out)
            cdio_eject_media_drive(device.constData());
        else
            cdio_close_tray(device.constData(), &driver);
    }).detach();
}

}  // namespace sonarium
