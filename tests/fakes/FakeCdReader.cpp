#include "FakeCdReader.h"

namespace sonarium {

void FakeCdReader::addDrive(const QString& name, std::vector<std::int32_t> trackLengthsMs) {
    drives_.push_back(Drive{name, std::move(trackLengthsMs)});
}

const FakeCdReader::Drive* FakeCdReader::current() const {
    if (drive_ < 1 || drive_ > int(drives_.size())) return nullptr;
    return &drives_[drive_ - 1];
}

std::int16_t FakeCdReader::InitCD() {
    record(QStringLiteral("InitCD"));
    return initResult_;
}

void FakeCdReader::SelectDrive(std::int16_t drive) {
    record(QStringLiteral("SelectDrive(%1)").arg(drive));
    drive_ = drive;
}

QString FakeCdReader::DriveName(std::int16_t drive) {
    if (drive < 1 || drive > int(drives_.size())) return {};
    return drives_[drive - 1].name;
}

std::int16_t FakeCdReader::TrackCount() {
    const Drive* d = current();
    return d ? std::int16_t(d->tracks.size()) : 0;
}

std::int32_t FakeCdReader::TrackLength(std::int16_t track) {
    const Drive* d = current();
    if (!d || track < 1 || track > int(d->tracks.size())) return 0;
    return d->tracks[track - 1];
}

// Bytes of 16-bit stereo at 44.1 kHz: 176.4 per millisecond.
std::int32_t FakeCdReader::TrackSize(std::int16_t track) {
    record(QStringLiteral("TrackSize(%1)").arg(track));
    return std::int32_t(std::int64_t(TrackLength(track)) * 1764 / 10);
}

void FakeCdReader::SetOwnerName(const QString& name) {
    record(QStringLiteral("SetOwnerName(%1)").arg(name));
}

std::int16_t FakeCdReader::ExtractTrack(std::int16_t track, const QString& file) {
    record(QStringLiteral("ExtractTrack(%1,%2)").arg(track).arg(file));
    if (extractResult_ != 0) return extractResult_;
    if (extracting()) return 1;  // the drive is busy: a read error to the caller
    track_ = track;
    file_ = file;
    stepsDone_ = 0;
    timer_ = loop_.startTimer(std::max(durationMs_ / steps_, 1), guarded([this] { step(); }));
    return 0;
}

void FakeCdReader::StopExtract() {
    record(QStringLiteral("StopExtract"));
    if (extracting()) finish();
}

void FakeCdReader::OpenTray() {
    record(QStringLiteral("OpenTray"));
    trayOpen_ = true;
}

void FakeCdReader::CloseTray() {
    record(QStringLiteral("CloseTray"));
    trayOpen_ = false;
}

void FakeCdReader::step() {
    ++stepsDone_;
    if (stepsDone_ >= steps_) finish();  // posted: the last progress still comes first
    if (onExtractProgress) onExtractProgress(std::int32_t(1000LL * stepsDone_ / steps_));
}

void FakeCdReader::finish() {
    stopTimer();
    loop_.post(guarded([this] {
        record(QStringLiteral("event ExtractFinished"));
        if (onExtractFinished) onExtractFinished();
    }));
}

void FakeCdReader::stopTimer() {
    if (timer_) loop_.stopTimer(timer_);
    timer_ = 0;
}

}  // namespace sonarium
