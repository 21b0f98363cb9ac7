// Ripping a CD image of ten tracks of a minute each (a .cue and its .bin, made by the tests'
// fixture) with our reader against `cd-paranoia -d image.cue -w N`, in one run on the same
// image, every track in turn, best of a few rounds each, interleaved. Ratio = cd-paranoia's
// time / ours; the goal is >= 1.0. The tool is also timed with its verification off (-Z), so
// the margin is not mistaken for faster reading alone. Every WAV is compared byte for byte with
// the tool's, as a check that both did the same work.
//
// Usage: bench_rip [rounds]
#include <QCoreApplication>
#include <QDir>
#include <QTemporaryDir>
#include <algorithm>
#include <cstdio>

#include "BenchClock.h"
#include "engine/cd/CdioCdReader.h"
#include "fixtures/CdImage.h"
#include "fixtures/Files.h"
#include "fixtures/ThreadedTestLoop.h"
#include "fixtures/ToolRunner.h"

using namespace sonarium;

int main(int argc, char** argv) {
    QCoreApplication app(argc, argv);
    const int rounds = argc > 1 ? std::max(1, std::atoi(argv[1])) : 3;
    QTemporaryDir dir;
    std::printf("Making a CD image of 10 tracks of 60 s...\n");
    const fixtures::CdImage image = fixtures::makeCdImage(dir.path(), "Disc", std::vector<int>(10, 60 * 75));
    if (image.cue.isEmpty()) return 1;
    fixtures::ThreadedTestLoop loop{std::chrono::minutes(5)};
    CdioCdReader cd{loop, image.cue};
    int finished = 0;
    cd.onExtractFinished = [&] { ++finished; };
    cd.SelectDrive(cd.DriveCount());
    const int tracks = cd.TrackCount();
    auto path = [&](const char* who, int t) { return dir.filePath(QString("%1%2.wav").arg(who).arg(t)); };
    auto ours = [&] {
        for (int t = 1; t <= tracks; ++t) {
            const int before = finished;
            if (cd.ExtractTrack(std::int16_t(t), path("ours", t)) != 0)
                std::fprintf(stderr, "track %d refused\n", t);
            loop.waitUntil([&] { return finished > before; });
        }
    };
    auto theirs = [&](const char* who, const QStringList& options) {
        return [&, who, options] {
            for (int t = 1; t <= tracks; ++t)
                if (fixtures::runTool(
                        QStringList{"cd-paranoia", "-q"} + options +
                            QStringList{"-d", image.cue, "-w", QString::number(t), path(who, t)},
                        300) != 0)
                    std::fprintf(stderr, "cd-paranoia failed on track %d\n", t);
        };
    };
    double best[3] = {1e300, 1e300, 1e300};
    for (int r = 0; r < rounds; ++r) {
        best[0] = std::min(best[0], bench::timeMs(ours));
        best[1] = std::min(best[1], bench::timeMs(theirs("full", {})));
        best[2] = std::min(best[2], bench::timeMs(theirs("bare", {"-Z"})));
    }
    bool identical = tracks == 10;
    for (int t = 1; t <= tracks; ++t)
        identical = identical &&
                    fixtures::fileBytes(path("ours", t)) == fixtures::fileBytes(path("full", t)) &&
                    fixtures::fileBytes(path("ours", t)) == fixtures::fileBytes(path("bare", t));
    std::printf("Rip %d tracks (600 s of audio), best of %d rounds (ms)\n", tracks, rounds);
    std::printf("%-28s %10.1f\n%-28s %10.1f\n%-28s %10.1f\n", "ours", best[0], "cd-paranoia", best[1],
                "cd-paranoia -Z (no checks)", best[2]);
    std::printf("ratio cd-paranoia / ours: %.2f (goal >= 1.0: %s); against -Z: %.2f; WAVs identical: %s\n",
                best[1] / best[0], best[1] >= best[0] ? "met" : "NOT MET", best[2] / best[0],
                identical ? "yes" : "NO");
    return identical ? 0 : 1;
}
