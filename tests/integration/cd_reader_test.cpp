// The CD reader on images made here: drives and tracks as the image lists them, each track
// ripped byte for byte as written and as cd-paranoia rips it, progress to 1000, one finish per
// started job (also after a stop or a failed write), and bad images and targets refused at the
// start or ended with one finish.
#include <gtest/gtest.h>
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
    const fixtures::CdImage cut = fixtures::makeCdImage(dir.path(), "Cut", {160, 200});
    QFile(cut.bin).resize(cut.offset(1) + cut.bytes(1) / 2);
    fixtures::writeFile(dir.filePath("Lost.cue"),
                        "FILE \"lost.bin\" BINARY\n TRACK 01 AUDIO\n INDEX 01 00:00:00\n");
    fixtures::ThreadedTestLoop loop{std::chrono::seconds(60)};
    CdioCdReader cd{loop, album.cue + "::" + dir.filePath("none.cue") + ":" + album.toc + ":" + cut.cue +
                              ":" + dir.filePath("Lost.cue")};
    std::vector<std::int32_t> progress;
    int finished = 0, stopAt = 2000;
    cd.onExtractProgress = [&](std::int32_t p) {
        progress.push_back(p);
        if (p >= stopAt) cd.StopExtract();
    };
    cd.onExtractFinished = [&] { ++finished; };
    auto rip = [&](int track, const QString& out) {  // the start's code, with one finish after a 0
        const int before = finished, code = cd.ExtractTrack(std::int16_t(track), out);
        if (code == 0) loop.waitUntil([&] { return finished > before; });
        loop.runFor(20);
        EXPECT_EQ(finished, before + (code == 0)) << track << " " << out.toStdString();
        return code;
    };

    const int system = cd.DriveCount() - 4;  // the machine's drives come first
    EXPECT_EQ(QStringList({cd.DriveName(system + 1), cd.DriveName(system + 2), cd.DriveName(system + 4),
                           cd.DriveName(system + 5)}),
              QStringList({"Album.cue", "Album.toc", "Lost.cue", ""}));
    const QByteArray bin = fixtures::fileBytes(album.bin);
    cd.SelectDrive(std::int16_t(system + 1));
    stopAt = 1;  // stopped at the first progress: a shorter WAV of the track's first samples
    ASSERT_EQ(rip(4, dir.filePath("stop.wav")), 0);
    stopAt = 2000;
    const QByteArray stopped = fixtures::fileBytes(dir.filePath("stop.wav"));
    EXPECT_TRUE(stopped.size() < 44 + album.bytes(3) && bin.mid(album.offset(3)).startsWith(stopped.mid(44)));
    cd.StopExtract();  // harmless with no job
    // The next jobs, one after the other, each track of the .cue and of the .toc.
    for (const auto& [drive, image] : {std::pair{system + 1, album.cue}, {system + 2, album.toc}}) {
        cd.SelectDrive(std::int16_t(drive));
        ASSERT_EQ(cd.TrackCount(), 4);
        for (int t = 1; t <= 3; ++t) {
            EXPECT_EQ(cd.TrackLength(std::int16_t(t)), album.sectors[t - 1] * 1000 / 75);
            EXPECT_EQ(cd.TrackSize(std::int16_t(t)), 44 + album.bytes(t - 1));
            const QString ours = dir.filePath("ours.wav"), theirs = dir.filePath("theirs.wav");
            progress.clear();
            ASSERT_EQ(rip(t, ours), 0);
            EXPECT_TRUE(progress.size() <= 1000 && progress.back() == 1000 &&
                        std::is_sorted(progress.begin(), progress.end()));
            EXPECT_EQ(fixtures::fileBytes(ours).mid(44), bin.mid(album.offset(t - 1), album.bytes(t - 1)));
            // The tool finds a .toc's files from its working directory only, so it rips the .cue.
            if (image == album.toc) continue;
            ASSERT_EQ(fixtures::runTool({"cd-paranoia", "-q", "-d", image, "-w", QString::number(t), theirs}),
                      0);
            EXPECT_EQ(fixtures::fileBytes(ours), fixtures::fileBytes(theirs));
        }
    }
    EXPECT_EQ(cd.TrackLength(0) + cd.TrackLength(5) + cd.TrackSize(5), 0);
    // No drive, a .cue naming a file that is not there, tracks out of range, a missing folder.
    for (const auto& [drive, tracks, track, target] : {std::tuple{0, 0, 1, "x.wav"},
                                                       {system + 4, 0, 1, "x.wav"},
                                                       {system + 1, 4, 0, "x.wav"},
                                                       {system + 1, 4, 5, "x.wav"},
                                                       {system + 1, 4, -1, "x.wav"},
                                                       {system + 1, 4, 1, "no/such/x.wav"}}) {
        cd.SelectDrive(std::int16_t(drive));
        EXPECT_EQ(cd.TrackCount(), tracks);
        EXPECT_NE(rip(track, dir.filePath(target)), 0) << drive << " " << track << " " << target;
    }
    EXPECT_FALSE(QFile::exists(dir.filePath("x.wav")));
    cd.SelectDrive(std::int16_t(system + 3));  // a .bin cut short: what can be read, or nothing
    for (int t = 1; t <= cd.TrackCount(); ++t)
        EXPECT_TRUE(rip(t, dir.filePath("cut.wav")) != 0 ||
                    QFile(dir.filePath("cut.wav")).size() <= 44 + cut.bytes(t - 1));

    // A full disk: a small tmpfs refuses the track with 712; a sparse old target, whose size
    // the check counts as room that the write does not get back, ends the job in a failed write.
    const QString small = dir.filePath("small");
    QDir().mkpath(small);
    if (geteuid() != 0 || fixtures::runTool({"mount", "-t", "tmpfs", "-o", "size=400k", "tmpfs", small}) != 0)
        GTEST_SKIP() << "mounting a small tmpfs needs root";
    cd.SelectDrive(std::int16_t(system + 1));
    EXPECT_EQ(rip(2, small + "/big.wav"), CdioCdReader::kNoRoom);
    EXPECT_FALSE(QFile::exists(small + "/big.wav"));
    fixtures::writeFile(small + "/fill", QByteArray(300 * 1024, 'x'));
    fixtures::writeFile(small + "/old.wav", {});
    QFile(small + "/old.wav").resize(300 * 1024);  // sparse: it gives back no room
    EXPECT_EQ(rip(1, small + "/old.wav"), 0);
    EXPECT_LT(QFile(small + "/old.wav").size(), album.bytes(0));
    fixtures::runTool({"umount", small});
}

}  // namespace
}  // namespace sonarium
