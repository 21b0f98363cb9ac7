// The real player on MP3 files made at test time: ranges decoded bit-exact against the mpg123
// tool, notifications, one StreamEnd per run across the threads, pause, seek, speed and volume
// through the paced null sink, a device lost mid-song, and bad files that must neither crash,
// hang nor change. Each kind of file decoded whole against the tool is the length test's.
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <atomic>
#include <chrono>
#include <functional>
#include <memory>

#include "engine/audio/FallbackSink.h"
#include "fixtures/Files.h"
#include "fixtures/Mp3Fixtures.h"
#include "fixtures/PlayerHarness.h"
#include "fixtures/ToolRunner.h"
#include "fixtures/WavFile.h"

namespace sonarium {
namespace {

using namespace fixtures;

// The song the tests play, 2 s at 44.1 kHz, made on first use and shared by the tests of the
// process: encoding is the slow part. It has no Info frame, so frame f is samples f*1152.. of
// its WAV.
QString song() {
    static const QTemporaryDir dir;
    const QString path = dir.filePath("cbr.mp3");
    if (!QFileInfo::exists(path) && !makeMp3(path, {})) ADD_FAILURE() << "could not encode the song";
    return path;
}

constexpr int kSamplesPerFrame = 1152;  // MPEG-1 layer III

std::vector<int> range(int first, int last, int step = 1) {
    std::vector<int> v;
    for (int f = first; f <= last; f += step) v.push_back(f);
    return v;
}

// Decodes `mp3` to `wav` through the player: Open, the given start, then wait for the end.
void decodeWithPlayer(
    PlayerHarness& h, const QString& mp3, const QString& wav,
    const std::function<void(Mp3Play&)>& start = [](Mp3Play& p) { p.Play(); }) {
    ASSERT_EQ(h.player.Open(mp3, wav), 0);
    const int ended = h.ends;
    start(h.player);
    h.finish(ended + 1);
}

// --- Decoding to WAV: ranges, seek, stop, names ---

class PlayerWavTest : public ::testing::Test {
protected:
    QString wav(const char* name) const { return out.filePath(name); }
    QTemporaryDir out;
    PlayerHarness h;
};

TEST_F(PlayerWavTest, PlayRangeWritesExactlyTheFramesAskedAndNotifiesEach) {
    const QString mp3 = song();
    ASSERT_EQ(mpg123ToWav(mp3, wav("tool.wav"), {"--no-gapless", "-k", "10", "-n", "20"}), 0);
    h.player.setNotifyInterval(0);  // below 1 counts as 1
    decodeWithPlayer(h, mp3, wav("range.wav"), [](Mp3Play& p) { p.PlayRange(10, 29); });
    EXPECT_TRUE(readWav(wav("range.wav")).data == readWav(wav("tool.wav")).data) << "frames 10..29 differ";
    EXPECT_EQ(h.frames, range(10, 29));
    EXPECT_EQ(h.ends, 1);

    // Clamped to the file; an end before the start plays nothing and still ends, once.
    h.clear();
    ASSERT_EQ(h.player.Open(mp3, ""), 0);
    const int frames = h.player.FrameCount();
    decodeWithPlayer(h, mp3, wav("all.wav"), [](Mp3Play& p) { p.PlayRange(-5, 1000000); });
    EXPECT_EQ(h.frames, range(0, frames - 1));
    for (auto [first, last] : {std::pair{30, 10}, std::pair{frames + 5, frames + 9}}) {
        h.clear();
        decodeWithPlayer(h, mp3, wav("empty.wav"), [=](Mp3Play& p) { p.PlayRange(first, last); });
        EXPECT_EQ(fileBytes(wav("empty.wav")).size(), 44) << "a header and no samples";
        EXPECT_EQ(h.events, QStringList({"end"}));
    }
}

TEST_F(PlayerWavTest, SeekBeforePlayStopMidwayAndFileNames) {
    const QString mp3 = song();
    decodeWithPlayer(h, mp3, wav("full.wav"));
    const QByteArray full = readWav(wav("full.wav")).data;

    // A seek before Play sets where it starts; the next run starts from the start again.
    ASSERT_EQ(h.player.Open(mp3, wav("seek.wav")), 0);
    EXPECT_EQ(h.player.SeekFrame(-1), 1);
    EXPECT_EQ(h.player.SeekFrame(40), 0);
    h.player.Play();
    h.waitForEnds(2);
    EXPECT_TRUE(readWav(wav("seek.wav")).data == full.mid(40 * kSamplesPerFrame * 4));
    h.player.Play();
    h.waitForEnds(3);
    EXPECT_TRUE(readWav(wav("seek.wav")).data == full);
    h.settle();

    // Stopped at once: whatever was written is whole frames of the song, and the header
    // states exactly what the file holds.
    h.clear();
    ASSERT_EQ(h.player.Open(mp3, wav("stopped.wav")), 0);
    h.player.Play();
    h.player.Stop();
    h.finish();
    const WavFile stopped = readWav(wav("stopped.wav"));
    ASSERT_TRUE(stopped.parsed);
    EXPECT_EQ(stopped.dataSize, stopped.fileSize - 44);
    EXPECT_EQ(stopped.riffSize, stopped.fileSize - 8);
    EXPECT_TRUE(stopped.data == full.left(stopped.data.size()));
    EXPECT_EQ(h.ends, 1);

    // Decoding a file into itself, named in another case, is refused before anything is
    // written. (How a name in another case is found is the file names' unit test's.)
    QFile::copy(mp3, out.filePath("Song.mp3"));
    EXPECT_EQ(h.player.Open(out.filePath("Song.mp3"), out.filePath("SONG.MP3")), 1);
    EXPECT_TRUE(fileBytes(out.filePath("Song.mp3")) == fileBytes(mp3));
    // A WAV that cannot be made ends the run at once.
    decodeWithPlayer(h, mp3, out.filePath("no/such/dir/x.wav"));
    EXPECT_EQ(h.ends, 2);
    EXPECT_FALSE(QFileInfo::exists(out.filePath("no")));
}

// --- Runs on the worker thread through the paced sink ---

class PlayerRunTest : public ::testing::Test {
protected:
    // A fresh run of the file, under way.
    void startRun() {
        h.clear();
        ASSERT_EQ(h.player.Open(mp3, ""), 0);
        h.player.Play();
        h.waitForFrame(1);
    }
    QString mp3 = song();
    PlayerHarness h;
};

// When an end is owed is the rule's matter (stream_end_rule_test); here, that the worker's
// end and frames arrive as it says across the threads.
TEST_F(PlayerRunTest, EveryStartedRunEndsWithExactlyOneStreamEnd) {
    h.player.setNotifyInterval(1);

    // Stopped while playing: one StreamEnd, after Stop has returned; no frame after it.
    startRun();
    h.player.Stop();
    h.player.Stop();  // the same run: nothing more
    EXPECT_EQ(h.ends, 0);
    h.finish();
    EXPECT_EQ(h.ends, 1);
    EXPECT_EQ(h.events.last(), "end");

    // Ended by Close: no StreamEnd and no more of its frames; the next Stop pays the end that
    // run is owed.
    startRun();
    h.player.Close();
    const std::size_t framesBefore = h.frames.size();
    h.settle();
    EXPECT_EQ(h.ends, 0);
    EXPECT_EQ(h.frames.size(), framesBefore);
    h.player.Stop();
    h.finish();
    EXPECT_EQ(h.ends, 1);

    // A PlayRange over a live run ends that run first: two runs, two ends.
    startRun();
    h.player.PlayRange(70, 72);
    h.finish(2);
    EXPECT_EQ(h.ends, 2);
    EXPECT_EQ(std::vector<int>(h.frames.end() - 3, h.frames.end()), range(70, 72));

    // A run started from inside the end's handler, as the queue starts its next song there:
    // the chain goes on, each run ending once.
    const auto recordEnd = h.player.onStreamEnd;
    h.player.onStreamEnd = [&] {
        recordEnd();
        if (h.ends < 3 && h.player.Open(mp3, "") == 0) h.player.PlayRange(0, 2);
    };
    h.clear();
    ASSERT_EQ(h.player.Open(mp3, ""), 0);
    h.player.PlayRange(0, 2);
    h.finish(3);
    EXPECT_EQ(h.ends, 3);
    EXPECT_EQ(h.frames, std::vector<int>({0, 1, 2, 0, 1, 2, 0, 1, 2}));
}

TEST_F(PlayerRunTest, PauseHoldsThePositionAndSeekMovesIt) {
    h.player.setNotifyInterval(1);
    ASSERT_EQ(h.player.Open(mp3, ""), 0);
    h.player.PlayRange(0, 20);
    h.waitForFrame(3);
    h.player.Pause();
    h.loop.runFor(150);  // what was under way when paused arrives
    const std::size_t held = h.frames.size();
    h.loop.runFor(250);
    EXPECT_EQ(h.frames.size(), held);
    EXPECT_EQ(h.ends, 0);
    h.player.Play();
    h.waitForEnds();
    EXPECT_EQ(h.frames, range(0, 20));  // nothing lost or repeated across the pause

    // A seek during play: notifications go on from the new place, none from before it.
    h.clear();
    h.player.Play();
    h.waitForFrame(2);
    ASSERT_EQ(h.player.SeekFrame(70), 0);
    const std::size_t before = h.frames.size();
    h.waitForEnds();
    EXPECT_EQ(std::vector<int>(h.frames.begin() + long(before), h.frames.end()),
              range(70, h.player.FrameCount() - 1));
    EXPECT_LT(h.frames[before - 1], 20);

    // A seek while paused moves the position; Play resumes there.
    h.clear();
    h.player.PlayRange(0, 77);
    h.waitForFrame(1);
    h.player.Pause();
    h.player.SeekFrame(75);
    h.player.Play();
    h.waitForEnds();
    EXPECT_EQ(std::vector<int>(h.frames.end() - 3, h.frames.end()), range(75, 77));
}

// The speed stage's tempo and the volume curve are the audio tests' matter; here, that the
// run goes through them.
TEST_F(PlayerRunTest, SpeedVolumeAndPeakThroughTheSink) {
    h.player.setNotifyInterval(1);
    ASSERT_EQ(h.player.Open(mp3, ""), 0);
    const auto playRange = [&](int first, int last) {
        h.clear();
        const auto t0 = std::chrono::steady_clock::now();
        h.player.PlayRange(first, last);
        h.waitForEnds();
        EXPECT_EQ(h.frames, range(first, last));
        return std::chrono::duration<double>(std::chrono::steady_clock::now() - t0).count();
    };
    h.player.SetSpeed(50);
    const double fast = playRange(0, 15);
    h.player.SetSpeed(200);
    EXPECT_GT(playRange(0, 15), 2 * fast) << "speed 200 should take about four times as long as 50";
    h.player.SetSpeed(100);

    // At its own level the sweep reaches half scale; volume 0 sends silence.
    h.peak.takeReading();
    playRange(10, 14);
    EXPECT_NEAR(h.peak.takeReading(), PeakLevel::Maximum / 2, PeakLevel::Maximum / 8);
    h.player.SetVolume(0, 0);
    playRange(10, 14);
    EXPECT_EQ(h.peak.takeReading(), 0);
}

// A sound device that plays at real-time pace, as the null sink does, until its write number
// `failAt`, where it fails for good, as a server that stops or a card that is unplugged.
struct FailingDevice : NullSink {
    FailingDevice(int failAt, std::atomic<int>& writes) : failAt(failAt), writes(writes) {}
    bool write(const float* samples, int frames) override {
        return ++writes < failAt && NullSink::write(samples, frames);
    }
    bool drain() override { return NullSink::drain() && writes < failAt; }

    int failAt;
    std::atomic<int>& writes;
};

TEST(PlayerSinkTest, ADeviceLostMidSongLeavesTheRestToTheSilentOutputAtTheSongsPace) {
    std::atomic<int> writes{0};
    PlayerHarness h(
        [&] { return std::make_unique<FallbackSink>(std::make_unique<FailingDevice>(10, writes)); });
    h.player.setNotifyInterval(1);
    ASSERT_EQ(h.player.Open(song(), ""), 0);
    const int frames = h.player.FrameCount();
    const double length = h.player.Length();
    const auto t0 = std::chrono::steady_clock::now();
    h.player.Play();
    h.waitForEnds();
    const double took = std::chrono::duration<double>(std::chrono::steady_clock::now() - t0).count();
    h.settle();
    EXPECT_EQ(h.frames, range(0, frames - 1));
    EXPECT_EQ(h.events.last(), "end");
    EXPECT_EQ(h.ends, 1);
    EXPECT_EQ(writes, 10) << "the failed device is written to no more";
    EXPECT_GT(took, 0.8 * length) << "the rest of the song was raced through";
}

// --- Bad input ---

// Arbitrary bytes through the decoder are the fuzz test's matter (fuzz_decode); here, what the
// player makes of a few: refused, or played to the end and the sink, the file untouched.
TEST(PlayerBadInputTest, NeverCrashesHangsOrChangesTheFile) {
    QTemporaryDir dir;
    const QByteArray good = fileBytes(song());
    struct Bad {
        const char* name;
        QByteArray bytes;
        bool plays;  // refused at Open, or played to its end
    };
    const Bad files[] = {
        {"zero-length", QByteArray(), false},
        {"text", QByteArray("Not a song.\r\nJust some text.\r\n").repeated(200), false},
        {"truncated", good.left(good.size() * 2 / 5 + 77), true},
        {"damaged", QByteArray(good).replace(good.size() / 2, 3000, QByteArray(3000, '\xA5')), true},
    };
    for (const Bad& f : files) {
        SCOPED_TRACE(f.name);
        const QString path = dir.filePath(QString(f.name) + ".mp3");
        ASSERT_TRUE(writeFile(path, f.bytes));
        PlayerHarness h;
        EXPECT_EQ(h.player.Open(path, dir.filePath("out.wav")), f.plays ? 0 : 1);
        EXPECT_EQ(h.player.FrameCount() > 0, f.plays);
        h.player.Play();
        if (f.plays) h.waitForEnds();
        h.player.Stop();
        h.settle();
        EXPECT_EQ(h.ends, f.plays ? 1 : 0);
        EXPECT_TRUE(fileBytes(path) == f.bytes) << "the file was changed";
    }

    // Missing files, directories and a FIFO (which must not wait for a writer) fail too.
    PlayerHarness h;
    EXPECT_EQ(h.player.Open(dir.filePath("missing.mp3"), ""), 1);
    EXPECT_EQ(h.player.Open(dir.path(), ""), 1);
    const QString fifo = dir.filePath("pipe.mp3");
    ASSERT_EQ(::mkfifo(QFile::encodeName(fifo).constData(), 0600), 0);
    EXPECT_EQ(h.player.Open(fifo, ""), 1);
    EXPECT_EQ(h.player.SeekFrame(3), 1);

    // The decoder opens the file only to play it: one gone by then ends the run at once.
    const QString gone = dir.filePath("gone.mp3");
    ASSERT_TRUE(QFile::copy(song(), gone));
    ASSERT_EQ(h.player.Open(gone, dir.filePath("gone.wav")), 0);
    ASSERT_TRUE(QFile::remove(gone));
    h.player.setNotifyInterval(1);
    h.player.Play();
    h.finish();
    EXPECT_EQ(h.ends, 1);
    EXPECT_TRUE(h.frames.empty());
}

}  // namespace
}  // namespace sonarium
