#include "engine/player/Mp3Decoder.h"

#include <fcntl.h>
#include <mpg123.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QFile>
#include <cerrno>
#include <cmath>
#include <cstdlib>
#include <mutex>

#include "controls/FileNames.h"
#include "engine/player/Mp3Survey.h"

namespace sonarium {

namespace {

// A decoder call that fails this many times in a row (a damaged stretch the library cannot
// resync over) ends the stream: every loop over a file is bounded.
constexpr int kMaxFailuresInARow = 32;

void initLibraryOnce() {
    static std::once_flag once;
    std::call_once(once, [] { mpg123_init(); });
}

// Non-blocking, so that a FIFO (which the caller then refuses) does not wait for a writer.
int openForReading(const QByteArray& name) {
    return ::open(name.constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
}

QByteArray readAt(int fd, qint64 at, qint64 bytes) {
    QByteArray out(bytes, Qt::Uninitialized);
    qint64 got = 0;
    while (got < bytes) {
        const ssize_t n = ::pread(fd, out.data() + got, size_t(bytes - got), off_t(at + got));
        if (n < 0 && errno == EINTR) continue;
        if (n <= 0) break;
        got += n;
    }
    out.truncate(got);
    return out;
}

}  // namespace

Mp3Decoder::~Mp3Decoder() {
    close();
    if (handle_) mpg123_delete(handle_);
}

void Mp3Decoder::close() {
    if (streamOpen_) mpg123_close(handle_);
    streamOpen_ = false;
    open_ = false;
    path_.clear();
    info_ = {};
    position_ = 0;
    ended_ = false;
}

int Mp3Decoder::open(const QString& path, QByteArray* fileEnd) {
    close();
    if (fileEnd) fileEnd->clear();
    if (path.isEmpty()) return 1;
    // The name as given first; only when that fails is it looked up without regard to case,
    // which lists the directory.
    QByteArray name = QFile::encodeName(path);
    int fd = openForReading(name);
    if (fd < 0) {
        name = QFile::encodeName(resolveFileName(path));
        fd = openForReading(name);
    }
    struct stat st {};
    if (fd < 0 || ::fstat(fd, &st) != 0 || !S_ISREG(st.st_mode) || st.st_size == 0) {
        if (fd >= 0) ::close(fd);
        return 1;
    }
    const LengthSurvey survey =
        surveyLength(st.st_size, [fd](qint64 at, qint64 bytes) { return readAt(fd, at, bytes); });
    ::close(fd);
    if (fileEnd) *fileEnd = survey.fileEnd;
    path_ = name;

    if (survey.method == LengthSurvey::Scan) {
        if (!openStream() || !probeScanned()) {
            close();
            return 1;
        }
    } else {
        info_.frames = static_cast<std::int32_t>(survey.frames);
        info_.samples = survey.samples;
        info_.exactCount = survey.method == LengthSurvey::XingFrames;
        info_.rate = survey.rate;
        info_.channels = survey.channels;
        info_.channelMode = survey.channelMode;
        info_.bitRate = survey.statedKbps;  // bitRate() below decides whether it stands
        if (info_.samples < 0) {
            close();
            return 1;
        }
    }
    info_.bitRate = bitRate(st.st_size, survey);
    open_ = true;
    return 0;
}

// The library on the open file, made when decoding first needs it. The handle is set up once:
// gapless as the mpg123 tool does by default, no printouts for damaged files, and signed
// 16-bit output at any rate and either channel count, so the file keeps its own format.
bool Mp3Decoder::openStream() {
    if (streamOpen_) return true;
    if (!handle_) {
        initLibraryOnce();
        int err = MPG123_OK;
        handle_ = mpg123_new(nullptr, &err);
        if (!handle_) return false;
        mpg123_param(handle_, MPG123_ADD_FLAGS, MPG123_GAPLESS | MPG123_QUIET, 0);
        mpg123_format_none(handle_);
        const long* rates = nullptr;
        size_t rateCount = 0;
        mpg123_rates(&rates, &rateCount);
        for (size_t i = 0; i < rateCount; ++i)
            mpg123_format(handle_, rates[i], MPG123_MONO | MPG123_STEREO, MPG123_ENC_SIGNED_16);
    }
    if (mpg123_open(handle_, path_.constData()) != MPG123_OK) {
        mpg123_close(handle_);
        return false;
    }
    streamOpen_ = true;
    return true;
}

// A file whose length only its frames tell: the library counts them and reports the format;
// false when the file holds no MPEG audio.
bool Mp3Decoder::probeScanned() {
    if (mpg123_scan(handle_) != MPG123_OK) return false;
    long rate = 0;
    int channels = 0, encoding = 0;
    if (mpg123_getformat(handle_, &rate, &channels, &encoding) != MPG123_OK) return false;
    if (encoding != MPG123_ENC_SIGNED_16 || rate <= 0 || (channels != 1 && channels != 2)) return false;
    mpg123_frameinfo frame{};
    if (mpg123_info(handle_, &frame) != MPG123_OK) return false;
    const off_t frames = mpg123_framelength(handle_);
    const off_t samples = mpg123_length(handle_);
    if (frames <= 0 || frames > INT32_MAX || samples < 0) return false;

    info_.frames = static_cast<std::int32_t>(frames);
    info_.samples = samples;
    info_.exactCount = true;
    info_.rate = static_cast<int>(rate);
    info_.channels = channels;
    info_.channelMode = static_cast<int>(frame.mode);
    // The first frame's rate, for now: bitRate() decides whether it stands for the file.
    info_.bitRate = frame.vbr == MPG123_CBR ? frame.bitrate : 0;
    seekFrame(0);
    return true;
}

// A CBR file's rate is the one its frames state. A VBR file without an Xing frame looks like
// CBR to the library, so the stated rate is kept only when the audio bytes over the playing
// time agree with it; otherwise (VBR, ABR, free format) that average is the rate.
int Mp3Decoder::bitRate(qint64 fileSize, const LengthSurvey& survey) const {
    const int stated = info_.bitRate;
    int average = 0;
    const qint64 bytes = fileSize - survey.id3v2 - (survey.id3v1 ? 128 : 0);
    if (bytes > 0 && info_.seconds() > 0)
        average = static_cast<int>(std::lround(double(bytes) * 8.0 / info_.seconds() / 1000.0));
    if (stated > 0 && (average == 0 || std::abs(average - stated) * 20 <= stated)) return stated;
    return average;
}

void Mp3Decoder::seekFrame(std::int32_t frame) {
    if (!open_ && !streamOpen_) return;
    if (frame < 0) frame = 0;
    if (frame >= info_.frames || !openStream()) {
        position_ = info_.frames;
        ended_ = true;
        return;
    }
    // SEEK_SET: counted from the start, not from where the decoder happens to stand.
    const off_t at = mpg123_seek_frame(handle_, frame, SEEK_SET);
    ended_ = at < 0;
    position_ = at < 0 ? info_.frames : static_cast<std::int32_t>(mpg123_tellframe(handle_));
}

// A stream that changes rate or channels midway (a damaged or spliced file) ends where it
// does: the output was set up for the first format. The library announces a change only
// once, so after a seek past it the format is checked again at every frame.
bool Mp3Decoder::formatUnchanged() const {
    long rate = 0;
    int channels = 0, encoding = 0;
    return mpg123_getformat2(handle_, &rate, &channels, &encoding, 0) == MPG123_OK && rate == info_.rate &&
           channels == info_.channels && encoding == MPG123_ENC_SIGNED_16;
}

bool Mp3Decoder::next(DecodedFrame& out) {
    if (!open_ || ended_) return false;
    if (!openStream()) {
        ended_ = true;
        return false;
    }
    int failures = 0;
    while (failures < kMaxFailuresInARow) {
        off_t num = 0;
        unsigned char* audio = nullptr;
        size_t bytes = 0;
        const int r = mpg123_decode_frame(handle_, &num, &audio, &bytes);
        if (r == MPG123_OK) {
            // An estimated count may fall a frame short of the file: decoding goes on to its end.
            if (num < 0 || (info_.exactCount && num >= info_.frames) || !formatUnchanged()) break;
            out.index = static_cast<std::int32_t>(num);
            out.samples = reinterpret_cast<const std::int16_t*>(audio);
            out.sampleFrames = static_cast<int>(bytes / (sizeof(std::int16_t) * info_.channels));
            position_ = out.index + 1;
            return true;
        }
        if (r == MPG123_NEW_FORMAT) {
            // The first call of a stream announces the format with no samples.
            if (!formatUnchanged()) break;
            ++failures;  // bounded all the same
            continue;
        }
        if (r == MPG123_DONE) break;
        ++failures;
    }
    ended_ = true;
    return false;
}

}  // namespace sonarium
