// The CD reader on images made here: drives and tracks as the images list them, each track
// ripped byte for byte as written and as cd-paranoia rips it, progress to 1000, one finish per
// started job (also after a stop or a failed write), and bad images and targets refused at the
// start or ended with one finish.
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QDir>
#include <QTemporaryDir>

#include "engine/cd/CdioCdReader.h"
#include "fixtures/CdImage.h"
#include "fixtures/Files.h"
#include "fixtures/ThreadedTestLoop.h"
#include "fixtures/ToolRunner.h"

namespace sonarium {
namespace {

TEST(CdReaderTest, ImageTracksRipAsWrittenStopsAndBadJobsFinishOnceOrNotAtAll) {
    QTemporaryDir dir;
    const fixtures::CdImage album = fixtures::makeCdImage(dir.path(), "Album", {160, 200, 175, 4500});
    const fixtures::CdImage cut = fixtures::makeCdImage(dir.path(), "Cut", {160, 200, 100});
    QFile(cut.bin).resize(160 * 2352 + 100 * 2352);
    fixtures::writeFile(dir.filePath("Lost.cue"),
                        "FILE \"lost.bin\" BINARY\nTRACK 01 AUDIO\nINDEX 01 00:00:00");
    fixtures::ThreadedTestLoop loop{std::chrono::seconds(60)};
    CdioCdReader cd{loop, album.cue + "::" + dir.filePath("none.cue") + ":" + album.toc + ":" + cut.cue +
                              ":" + dir.filePath("Lost.cue")};
    auto bytes = [&](const QString& file) { return fixtures::fileBytes(dir.filePath(file)); };
    std::vector<std::int32_t> progress;
    int finished = 0;
    cd.onExtractProgress = [&](std::int32_t p) { progress.push_back(p); };
    cd.onExtractFinished = [&] { ++finished; };
    auto rip = [&](int track, const QString& out) {  // the start's code; one finish follows a 0
        progress.clear();
        const int before = finished, code = cd.ExtractTrack(std::int16_t(track), dir.filePath(out));
        if (code == 0) loop.waitUntil([&] { return finished > before; });
        loop.runFor(20);
        EXPECT_EQ(finished, before + (code == 0)) << track << " " << out.toStdString();
        return code;
    };
    const int system = cd.DriveCount() - 4;  // the machine's drives come first
    for (const auto& [drive, name] :
         {std::pair{system + 1, "Album.cue"}, {system + 2, "Album.toc"}, {system + 5, ""}})
        EXPECT_EQ(cd.DriveName(std::int16_t(drive)), name);

    // Stopped while its writes wait on a pipe that nobody reads yet, whatever the machine's
    // speed: a shorter WAV of the track's first samples, and one finish.
    cd.SelectDrive(std::int16_t(system + 1));
    const QByteArray fifo = QFile::encodeName(dir.filePath("stop.wav"));
    const int reader =
        mkfifo(fifo.constData(), 0600) == 0 ? ::open(fifo.constData(), O_RDONLY | O_NONBLOCK) : -1;
    ASSERT_TRUE(reader >= 0 && cd.ExtractTrack(4, dir.filePath("stop.wav")) == 0);
    cd.StopExtract();
    fcntl(reader, F_SETFL, 0);
    QByteArray stopped;
    char chunk[1 << 16];
    for (ssize_t n; (n = ::read(reader, chunk, sizeof chunk)) > 0;) stopped.append(chunk, n);
    ::close(reader);
    loop.waitUntil([&] { return finished == 1; });
    stopped = stopped.mid(44);
    EXPECT_TRUE(stopped.size() < album.tracks[3].size() && album.tracks[3].startsWith(stopped));
    EXPECT_FALSE(cd.ExtractComplete());
    cd.StopExtract();  // harmless with no job
    for (const auto& [drive, image] : {std::pair{system + 1, album.cue}, {system + 2, album.toc}}) {
        cd.SelectDrive(std::int16_t(drive));
        ASSERT_EQ(cd.TrackCount(), 4);
        for (int t = 1; t <= 3; ++t) {  // the next jobs, one after the other
            EXPECT_EQ(cd.TrackLength(std::int16_t(t)), album.tracks[t - 1].size() / 2352 * 1000 / 75);
            EXPECT_EQ(cd.TrackSize(std::int16_t(t)), 44 + album.tracks[t - 1].size());
            ASSERT_EQ(rip(t, "ours.wav"), 0);
            EXPECT_TRUE(progress.size() <= 1000 && progress.back() == 1000 &&
                        std::is_sorted(progress.begin(), progress.end()));
            EXPECT_EQ(bytes("ours.wav").mid(44), album.tracks[t - 1]);
            EXPECT_TRUE(cd.ExtractComplete());
            // The tool finds a .toc's files from its working directory only, so it rips the .cue.
            if (image == album.toc) continue;
            fixtures::runTool(
                {"cd-paranoia", "-q", "-d", image, "-w", QString::number(t), dir.filePath("cdp.wav")});
            EXPECT_EQ(bytes("ours.wav"), bytes("cdp.wav"));
        }
    }
    EXPECT_EQ(cd.TrackLength(0) + cd.TrackLength(5) + cd.TrackSize(5), 0);
    // No drive, a .cue naming a file that is not there, tracks out of range, a missing folder,
    // and a .bin cut short in its second track: that track up to the cut, the rest not there.
    // clang-format off
    for (const auto& [drive, tracks, track, target] : {std::tuple{0, 0, 1, "x.wav"}, {system + 4, 0, 1, "x.wav"},
             {system + 1, 4, 0, "x.wav"}, {system + 1, 4, 5, "x.wav"}, {system + 1, 4, -1, "x.wav"},
             {system + 1, 4, 1, "no/such/x.wav"}, {system + 3, 2, 3, "x.wav"}}) {
        // clang-format on
        cd.SelectDrive(std::int16_t(drive));
        EXPECT_EQ(cd.TrackCount(), tracks);
        EXPECT_NE(rip(track, target), 0) << drive << " " << track << " " << target;
    }
    EXPECT_FALSE(QFile::exists(dir.filePath("x.wav")));
    ASSERT_EQ(rip(2, "cut.wav"), 0);
    EXPECT_EQ(bytes("cut.wav").mid(44), cut.tracks[1].left(100 * 2352));

    // A full disk: a small tmpfs refuses the track with 712; a sparse old target, whose size
    // the check counts as room that the write does not get back, ends the job in a failed write.
    const QString small = dir.filePath("small");
    QDir(dir.path()).mkdir("small");
    if (geteuid() != 0 || fixtures::runTool({"mount", "-t", "tmpfs", "-o", "size=400k", "tmpfs", small}) != 0)
        GTEST_SKIP() << "mounting a small tmpfs needs root";
    cd.SelectDrive(std::int16_t(system + 1));
    EXPECT_EQ(rip(2, "small/big.wav"), CdioCdReader::kNoRoom);
    fixtures::writeFile(small + "/fill", QByteArray(300 * 1024, 'x'));
    fixtures::writeFile(small + "/old.wav", {});
    QFile(small + "/old.wav").resize(300 * 1024);  // sparse
    EXPECT_EQ(rip(1, "small/old.wav"), 0);
    EXPECT_LT(QFile(small + "/old.wav").size(), album.tracks[0].size());
    fixtures::runTool({"umount", small});
}

}  // namespace
}  // namespace sonarium
