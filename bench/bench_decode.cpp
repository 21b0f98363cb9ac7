// Decoding speed and playing cost of the real player, measured against the mpg123 tool in
// the same run on the same files, so the result does not depend on the machine.
//
// 1. Decode to WAV: our player (Open(mp3, wav), Play, until StreamEnd) against
//    `timeout -s KILL 60 mpg123 -q -w out.wav file.mp3`, best of several rounds each,
//    interleaved. Ratio = mpg123's time / ours; the goal is >= 1.0. The two outputs are
//    compared byte for byte as a check that both did the same work. The tool's start-up
//    alone is timed too, and the ratio without it is shown, so the margin is not mistaken
//    for faster decoding.
// 2. Playing through the paced null sink for a few seconds: CPU time of the whole process
//    (getrusage, all threads) over wall time, as % of one core; the goal is under 2%.
//
// Usage: bench_decode [rounds] [seconds of playing]
#include <sys/resource.h>

#include <QCoreApplication>
#include <QFile>
#include <QTemporaryDir>
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <vector>

#include "fixtures/Mp3Fixtures.h"
#include "fixtures/PlayerHarness.h"
#include "fixtures/ToolRunner.h"

using namespace sonarium;
using namespace sonarium::fixtures;

namespace {

using Clock = std::chrono::steady_clock;

double msSince(Clock::time_point t0) {
    return std::chrono::duration<double, std::milli>(Clock::now() - t0).count();
}

double cpuSeconds() {
    rusage u{};
    getrusage(RUSAGE_SELF, &u);
    auto s = [](const timeval& t) { return double(t.tv_sec) + double(t.tv_usec) / 1e6; };
    return s(u.ru_utime) + s(u.ru_stime);
}

// Our decode of one file to WAV, Open to delivered StreamEnd, in ms.
double decodeOurs(PlayerHarness& h, const QString& mp3, const QString& wav) {
    const auto t0 = Clock::now();
    h.player.Open(mp3, wav);
    const int ended = h.ends;
    h.player.Play();
    h.waitForEnds(ended + 1);
    h.player.Close();
    return msSince(t0);
}

double decodeTheirs(const QString& mp3, const QString& wav) {
    const auto t0 = Clock::now();
    if (mpg123ToWav(mp3, wav) != 0) std::fprintf(stderr, "mpg123 failed on %s\n", qPrintable(mp3));
    return msSince(t0);
}

// The tool's start alone (the timeout wrapper and mpg123 printing its version): the part of
// its time that is not decoding.
double toolStartUp() {
    const auto t0 = Clock::now();
    runTool({"mpg123", "--version"}, 60);
    return msSince(t0);
}

QByteArray bytesOf(const QString& path) {
    QFile f(path);
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
}

// CPU % of one core while playing `mp3` to the null sink for `seconds`.
double playingCpu(const QString& mp3, int speed, int tone, double seconds) {
    PlayerHarness h;
    h.tone.treble = tone;
    h.tone.bass = tone;
    h.player.Open(mp3, "");
    h.player.setNotifyInterval(32);
    h.player.SetVolume(80, 80);
    h.player.SetSpeed(static_cast<std::int16_t>(speed));
    h.player.Play();
    h.loop.runFor(300);  // past the start-up: thread, sink, first frames
    const double cpu0 = cpuSeconds();
    const auto t0 = Clock::now();
    h.loop.runFor(static_cast<int>(seconds * 1000));
    const double cpu = cpuSeconds() - cpu0, wall = msSince(t0) / 1000;
    h.player.Stop();
    h.waitForEnds();
    h.player.Close();
    return 100.0 * cpu / wall;
}

}  // namespace

int main(int argc, char** argv) {
    QCoreApplication app(argc, argv);
    const int rounds = argc > 1 ? std::max(1, std::atoi(argv[1])) : 7;
    const double playSeconds = argc > 2 ? std::max(1.0, std::atof(argv[2])) : 5.0;

    QTemporaryDir dir;
    std::vector<Mp3Recipe> recipes = {
        {.name = "cbr128_44k_joint", .seconds = 30},
        {.name = "vbr_44k_joint", .vbr = true, .seconds = 30},
        {.name = "cbr192_48k_stereo", .rate = 48000, .joint = false, .kbps = 192, .seconds = 30},
        {.name = "cbr96_32k_mono", .rate = 32000, .channels = 1, .kbps = 96, .seconds = 30},
    };
    std::printf("Making %zu fixtures of 30 s with LAME...\n", recipes.size());
    for (const auto& s : recipes)
        if (!makeMp3(dir.filePath(QString(s.name) + ".mp3"), s)) return 1;

    std::printf("\nDecode to WAV, best of %d rounds (ms)\n", rounds);
    std::printf("%-20s %9s %9s %9s %8s %10s\n", "file", "audio s", "ours", "mpg123", "ratio", "identical");
    PlayerHarness h;
    double oursTotal = 0, theirsTotal = 0;
    for (const auto& s : recipes) {
        const QString mp3 = dir.filePath(QString(s.name) + ".mp3");
        const QString ours = dir.filePath("ours.wav"), theirs = dir.filePath("theirs.wav");
        double bestOurs = 1e18, bestTheirs = 1e18;
        for (int r = 0; r < rounds; ++r) {  // interleaved, so drift in the machine hits both
            bestTheirs = std::min(bestTheirs, decodeTheirs(mp3, theirs));
            bestOurs = std::min(bestOurs, decodeOurs(h, mp3, ours));
        }
        const bool same = bytesOf(ours) == bytesOf(theirs);
        std::printf("%-20s %9.1f %9.2f %9.2f %8.2f %10s\n", s.name, s.seconds, bestOurs, bestTheirs,
                    bestTheirs / bestOurs, same ? "yes" : "NO");
        oursTotal += bestOurs;
        theirsTotal += bestTheirs;
    }
    const double ratio = theirsTotal / oursTotal;
    std::printf("%-20s %9s %9.2f %9.2f %8.2f   goal >= 1.0: %s\n", "total", "", oursTotal, theirsTotal, ratio,
                ratio >= 1.0 ? "met" : "NOT MET");
    double startUp = 1e18;
    for (int r = 0; r < rounds; ++r) startUp = std::min(startUp, toolStartUp());
    const double netTheirs = theirsTotal - startUp * double(recipes.size());
    std::printf(
        "mpg123 start-up alone (timeout + mpg123 --version): %.2f ms a run; "
        "ratio without it: %.2f\n",
        startUp, netTheirs / oursTotal);

    std::printf("\nPlaying through the null sink, %.0f s each: CPU of the whole process\n", playSeconds);
    std::printf("%-36s %14s\n", "setting", "% of one core");
    const QString song = dir.filePath("cbr128_44k_joint.mp3");
    struct Row {
        const char* name;
        int speed, tone;
    };
    double normal = 0;
    for (const Row& row :
         {Row{"speed 100, tone flat", 100, 50}, Row{"speed 100, treble and bass 80", 100, 80},
          Row{"speed 50 (tempo 2x, pitch kept)", 50, 50}}) {
        const double cpu = playingCpu(song, row.speed, row.tone, playSeconds);
        if (row.speed == 100 && row.tone == 50) normal = cpu;
        std::printf("%-36s %13.2f%%\n", row.name, cpu);
    }
    std::printf("goal under 2%% at normal speed: %s\n", normal < 2.0 ? "met" : "NOT MET");
    return 0;
}
