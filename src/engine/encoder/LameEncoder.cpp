#include "engine/encoder/LameEncoder.h"

#include <lame/lame.h>
#include <sndfile.h>
#include <unistd.h>

#include <QFile>
#include <QFileInfo>
#include <algorithm>
#include <cmath>
#include <cstdio>
#include <functional>
#include <vector>

namespace sonarium {

struct LameEncoder::Job {
    SNDFILE* wav = nullptr;
    SF_INFO info{};
    lame_global_flags* lame = nullptr;
    QByteArray target;
    ~Job() {
        if (wav) sf_close(wav);
        if (lame) lame_close(lame);
    }
};

namespace {

constexpr int BlockFrames = 4096;

// LAME's float input is in the 16-bit range. A float WAV can hold anything, and LAME's
// psychoacoustic model stops the process on an infinity or a NaN: those become silence, and
// samples past full scale are clipped as any player would.
float toLame(float sample) {
    if (!std::isfinite(sample)) return 0.0f;
    return std::clamp(sample, -1.0f, 1.0f) * 32767.0f;
}

// The WAV read and encoded into `out`, block by block; false when writing failed.
bool encode(LameEncoder::Job& job, std::FILE* out, const WorkerJob& worker,
            const std::function<void(std::int64_t)>& progress) {
    const int channels = job.info.channels;
    std::vector<float> pcm(std::size_t(BlockFrames) * std::size_t(channels));
    std::vector<float> left(BlockFrames), right(BlockFrames);
    std::vector<unsigned char> mp3(std::size_t(1.25 * BlockFrames + 7200));
    std::int64_t done = 0;
    while (!worker.stopRequested()) {
        const sf_count_t n = sf_readf_float(job.wav, pcm.data(), BlockFrames);
        if (n <= 0) break;
        for (sf_count_t i = 0; i < n; ++i) {
            left[std::size_t(i)] = toLame(pcm[std::size_t(i * channels)]);
            right[std::size_t(i)] = toLame(pcm[std::size_t(i * channels + (channels > 1 ? 1 : 0))]);
        }
        const int bytes = lame_encode_buffer_float(job.lame, left.data(), right.data(), int(n), mp3.data(),
                                                   int(mp3.size()));
        if (bytes < 0 || std::fwrite(mp3.data(), 1, std::size_t(bytes), out) != std::size_t(bytes))
            return false;
        progress(done += n);
    }
    const int bytes = lame_encode_flush(job.lame, mp3.data(), int(mp3.size()));
    if (bytes < 0 || std::fwrite(mp3.data(), 1, std::size_t(bytes), out) != std::size_t(bytes)) return false;
    if (std::fflush(out) != 0) return false;
    // The Info frame goes over the first frame that LAME left for it.
    lame_mp3_tags_fid(job.lame, out);
    return std::fflush(out) == 0;
}

// A RIFF (or RF64) WAVE file by its first twelve bytes. libsndfile would also take MP3 and
// other files, and its MPEG reader talks on stderr about each file that is none.
bool looksLikeWav(const QString& name) {
    QFile f(name);
    if (!f.open(QIODevice::ReadOnly)) return false;
    const QByteArray head = f.read(12);
    return head.size() == 12 &&
           (head.startsWith("RIFF") || head.startsWith("RIFX") || head.startsWith("RF64")) &&
           head.mid(8) == "WAVE";
}

}  // namespace

LameEncoder::LameEncoder(EventLoop& loop) : job_(loop) {}

LameEncoder::~LameEncoder() = default;

void LameEncoder::setEncoderBitRate(double bitRate) {
    kbps_ = int(bitRate >= 1000 ? bitRate / 1000 : bitRate);
}

std::int16_t LameEncoder::OpenFiles(const QString& wavFile, const QString& mp3File) {
    prepared_.reset();
    total_ = 0;
    if (job_.running()) return 1;
    if (!looksLikeWav(wavFile)) return 1;
    auto job = std::make_unique<Job>();
    const QByteArray source = QFile::encodeName(wavFile);
    job->wav = sf_open(source.constData(), SFM_READ, &job->info);
    if (!job->wav || (job->info.format & SF_FORMAT_TYPEMASK) != SF_FORMAT_WAV || job->info.frames <= 0 ||
        job->info.channels < 1 || job->info.channels > 2)
        return 1;
    // The target is made when the job starts; its folder must take it, and it must not be
    // the source or a folder.
    const QFileInfo target(mp3File);
    const QByteArray folder = QFile::encodeName(target.absolutePath());
    if (mp3File.isEmpty() || target.isDir() || ::access(folder.constData(), W_OK) != 0 ||
        (target.exists() && (::access(QFile::encodeName(mp3File).constData(), W_OK) != 0 ||
                             target.canonicalFilePath() == QFileInfo(wavFile).canonicalFilePath())))
        return 1;
    job->target = QFile::encodeName(mp3File);
    job->lame = lame_init();
    if (!job->lame) return 1;
    lame_set_num_channels(job->lame, job->info.channels);
    lame_set_in_samplerate(job->lame, job->info.samplerate);
    if (sampleRate_ > 0) lame_set_out_samplerate(job->lame, sampleRate_);
    lame_set_mode(job->lame, job->info.channels == 1 ? MONO : JOINT_STEREO);
    lame_set_VBR(job->lame, vbr_off);
    lame_set_brate(job->lame, kbps_);
    lame_set_quality(job->lame, 3);  // the lame tool's own default: its quality at its speed
    lame_set_bWriteVbrTag(job->lame, 1);
    if (lame_init_params(job->lame) < 0) return 1;
    total_ = std::int32_t(std::min<sf_count_t>(job->info.frames, INT32_MAX));
    prepared_ = std::move(job);
    return 0;
}

void LameEncoder::StartEncoding() {
    if (!prepared_) return;
    // The worker owns the job; the shared pointer lets the work be copied into its thread.
    std::shared_ptr<Job> job = std::move(prepared_);
    const std::int32_t total = total_;
    job_.start(
        [this, job, total] {
            ProgressSteps steps(total, 100);
            auto progress = [&](std::int64_t done) {
                if (!steps.next(done)) return;
                const auto value = std::int32_t(std::min<std::int64_t>(done, total));
                job_.post([this, value] {
                    if (onEncodeProgress) onEncodeProgress(value);
                });
            };
            if (std::FILE* out = std::fopen(job->target.constData(), "w+b")) {
                encode(*job, out, job_, progress);
                std::fclose(out);
            }
        },
        [this] {
            if (onEncodeFinished) onEncodeFinished();
        });
}

void LameEncoder::StopEncoding() { job_.requestStop(); }

}  // namespace sonarium
