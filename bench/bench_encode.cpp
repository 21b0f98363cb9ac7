// The MP3 encoder against the lame tool on the same WAV files, in the same run, so the result
// does not depend on the machine.
//
// Three songs of three minutes (44.1 kHz, 16-bit stereo: a chord under noise, so that the
// encoder has real work) are encoded at 128 kbit/s by our encoder (OpenFiles to the finish
// notification) and by `lame --quiet -b 128`, best of several rounds each, interleaved.
// Ratio = lame's time / ours; the goal is >= 0.95. Both files' sizes are printed as a check
// that both did the same work.
//
// Usage: bench_encode [rounds]
#include <sndfile.h>

#include <QCoreApplication>
#include <QFileInfo>
#include <QTemporaryDir>
#include <algorithm>
#include <cmath>
#include <cstdio>
#include <random>
#include <vector>

#include "BenchClock.h"
#include "engine/encoder/LameEncoder.h"
#include "fixtures/ThreadedTestLoop.h"
#include "fixtures/ToolRunner.h"

using namespace sonarium;

namespace {

bool makeSong(const QString& path, int seed) {
    constexpr int rate = 44100, seconds = 180;
    SF_INFO info{0, rate, 2, SF_FORMAT_WAV | SF_FORMAT_PCM_16, 0, 0};
    SNDFILE* f = sf_open(QFile::encodeName(path).constData(), SFM_WRITE, &info);
    if (!f) return false;
    std::mt19937 noise(seed);
    std::normal_distribution<float> hiss(0.0f, 0.05f);
    std::vector<float> block(2 * rate);
    bool ok = true;
    for (int s = 0; s < seconds && ok; ++s) {
        for (int i = 0; i < rate; ++i) {
            const double t = double(s * rate + i) / rate;
            const double chord = std::sin(t * 2 * M_PI * (220 + seed * 20)) + std::sin(t * 2 * M_PI * 277.2) +
                                 std::sin(t * 2 * M_PI * 329.6 * (1 + 0.01 * std::sin(t)));
            block[std::size_t(2 * i)] = float(0.2 * chord) + hiss(noise);
            block[std::size_t(2 * i + 1)] = float(0.2 * chord * std::cos(t)) + hiss(noise);
        }
        ok = sf_writef_float(f, block.data(), rate) == rate;
    }
    sf_close(f);
    return ok;
}

}  // namespace

int main(int argc, char** argv) {
    QCoreApplication app(argc, argv);
    const int rounds = argc > 1 ? std::max(1, std::atoi(argv[1])) : 3;
    QTemporaryDir dir;
    QStringList songs;
    for (int i = 0; i < 3; ++i) {
        songs << dir.filePath(QStringLiteral("song%1.wav").arg(i));
        if (!makeSong(songs.back(), i)) {
            std::fprintf(stderr, "could not write %s\n", qPrintable(songs.back()));
            return 1;
        }
    }
    fixtures::ThreadedTestLoop loop{std::chrono::minutes(5)};
    LameEncoder encoder{loop};
    int finished = 0;
    encoder.onEncodeFinished = [&] { ++finished; };
    encoder.setEncoderBitRate(128);
    encoder.setEncoderSampleRate(44100);
    const QString ours = dir.filePath(QStringLiteral("ours.mp3")),
                  theirs = dir.filePath(QStringLiteral("lame.mp3"));

    double best = 1e300, bestTool = 1e300;
    for (int r = 0; r < rounds; ++r) {
        const double ms = bench::timeMs([&] {
            for (const QString& song : songs) {
                if (encoder.OpenFiles(song, ours) != 0)
                    std::fprintf(stderr, "refused %s\n", qPrintable(song));
                const int before = finished;
                encoder.StartEncoding();
                loop.waitUntil([&] { return finished > before; });
            }
        });
        const double tool = bench::timeMs([&] {
            for (const QString& song : songs)
                if (fixtures::runTool({"lame", "--quiet", "-b", "128", song, theirs}, 300) != 0)
                    std::fprintf(stderr, "lame failed on %s\n", qPrintable(song));
        });
        best = std::min(best, ms);
        bestTool = std::min(bestTool, tool);
    }
    std::printf("songs            3 of 3 minutes, 44.1 kHz 16-bit stereo, at 128 kbit/s\n");
    std::printf("ours             %8.1f ms  (last file %lld bytes)\n", best, QFileInfo(ours).size());
    std::printf("lame tool        %8.1f ms  (last file %lld bytes)\n", bestTool, QFileInfo(theirs).size());
    std::printf("ratio            %8.2f  (lame / ours, goal >= 0.95)\n", bestTool / best);
    return 0;
}
