// The MP3 encoder on LAME, on WAV files written here in the sample formats libsndfile reads: the
// MP3 that mpg123 decodes has the WAV's length within one frame, the rate and channels asked
// for and about the bit rate; progress rises to the total; one finish per job, also after a
// stop; and jobs it cannot do are refused without touching a file.
#include <gtest/gtest.h>
#include <sndfile.h>

#include <QDir>
#include <QTemporaryDir>
#include <cmath>

#include "engine/encoder/LameEncoder.h"
#include "fixtures/ThreadedTestLoop.h"
#include "fixtures/ToolRunner.h"
#include "fixtures/WavFile.h"

namespace sonarium {
namespace {

struct EncoderTest : ::testing::Test {
    // A tone of `seconds` in the given libsndfile format.
    QString tone(int format, int rate, int channels, double seconds = 2.0) {
        SF_INFO info{0, rate, channels, SF_FORMAT_WAV | format, 0, 0};
        SNDFILE* f = sf_open(QFile::encodeName(dir.filePath("in.wav")).constData(), SFM_WRITE, &info);
        std::vector<float> pcm(std::size_t(seconds * rate * channels));
        for (std::size_t i = 0; i < pcm.size(); ++i) pcm[i] = 0.5f * float(std::sin(i / channels * 0.0627));
        sf_writef_float(f, pcm.data(), sf_count_t(seconds * rate));
        sf_close(f);
        return dir.filePath("in.wav");
    }
    // Runs the prepared job to its finish, and a moment more in which nothing may come.
    void run() {
        const int before = finished;
        encoder.StartEncoding();
        loop.waitUntil([&] { return finished > before; });
        loop.runFor(50);
    }
    QTemporaryDir dir;
    fixtures::ThreadedTestLoop loop{std::chrono::seconds(60)};
    LameEncoder encoder{loop};
    std::vector<std::int32_t> progress;
    int finished = 0;
};

TEST_F(EncoderTest, EachWavFormatBecomesAnMp3OfItsLengthAtTheRateAndBitRateAsked) {
    encoder.onEncodeProgress = [this](std::int32_t done) { progress.push_back(done); };
    encoder.onEncodeFinished = [this] { ++finished; };
    // Format, rate, channels, bit rate (the start-up's in bit/s), rate asked (0: the WAV's).
    for (const auto [format, rate, channels, kbps, outRate] :
         {std::array<int, 5>{SF_FORMAT_PCM_16, 44100, 2, 128000, 0},
          {SF_FORMAT_PCM_U8, 8000, 1, 32, 0},
          {SF_FORMAT_PCM_24, 48000, 2, 192, 44100},
          {SF_FORMAT_FLOAT, 22050, 1, 64, 0}}) {
        SCOPED_TRACE(format);
        encoder.setEncoderBitRate(kbps);
        encoder.setEncoderSampleRate(outRate);
        progress.clear();
        ASSERT_EQ(encoder.OpenFiles(tone(format, rate, channels), dir.filePath("out.mp3")), 0);
        EXPECT_EQ(encoder.EncodeTotal(), 2 * rate);
        run();
        EXPECT_TRUE(!progress.empty() && progress.back() == 2 * rate && progress.size() <= 101u);
        EXPECT_TRUE(std::is_sorted(progress.begin(), progress.end()));
        ASSERT_EQ(fixtures::mpg123ToWav(dir.filePath("out.mp3"), dir.filePath("out.wav")), 0);
        const fixtures::WavFile out = fixtures::readWav(dir.filePath("out.wav"));
        const int outputRate = outRate ? outRate : rate;
        EXPECT_TRUE(out.rate == outputRate && out.blockAlign == 2 * channels);
        EXPECT_NEAR(double(out.frames()), 2.0 * outputRate, outputRate < 32000 ? 576 : 1152);
        const double asked = kbps >= 1000 ? kbps / 1000 : kbps;
        EXPECT_NEAR(QFileInfo(dir.filePath("out.mp3")).size() * 8 / 2.0 / 1000, asked, asked * 0.15);
    }
    EXPECT_EQ(finished, 4) << "one finish a job";
}

TEST_F(EncoderTest, AStopStillFinishesTheNextJobRunsAndBadJobsTouchNoFile) {
    encoder.onEncodeProgress = [this](std::int32_t) { encoder.StopEncoding(); };
    encoder.onEncodeFinished = [this] { ++finished; };
    ASSERT_EQ(encoder.OpenFiles(tone(SF_FORMAT_PCM_16, 44100, 2, 60.0), dir.filePath("l.mp3")), 0);
    run();
    EXPECT_LT(QFileInfo(dir.filePath("l.mp3")).size(), 60 * 16000) << "stopped well before the end";
    encoder.StopEncoding();  // harmless with no job
    ASSERT_EQ(encoder.OpenFiles(tone(SF_FORMAT_PCM_16, 44100, 2, 0.5), dir.filePath("l.mp3")), 0);
    run();
    EXPECT_EQ(finished, 2);

    QFile(dir.filePath("empty.wav")).open(QIODevice::WriteOnly);
    const QStringList before = QDir(dir.path()).entryList(QDir::Files), in{dir.filePath("in.wav")};
    for (const QStringList& job : {QStringList{dir.filePath("missing.wav"), dir.filePath("a.mp3")},
                                   {dir.filePath("empty.wav"), dir.filePath("b.mp3")},
                                   in + QStringList{dir.filePath("no/such/dir/c.mp3")},
                                   in + in,
                                   {"rem.wav", "rem.old"}})
        EXPECT_NE(encoder.OpenFiles(job[0], job[1]), 0) << job.join(' ').toStdString();
    EXPECT_EQ(QDir(dir.path()).entryList(QDir::Files), before);
    EXPECT_FALSE(QFile::exists("rem.old"));
}

}  // namespace
}  // namespace sonarium
