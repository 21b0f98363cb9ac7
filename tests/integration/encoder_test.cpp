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
#include "fixtures/ReadOnlyFolder.h"
#include "fixtures/ThreadedTestLoop.h"
#include "fixtures/ToolRunner.h"
#include "fixtures/WavFile.h"

namespace sonarium {
namespace {

TEST(EncoderTest, WavsOfEachFormatBecomeMp3sAStopStillFinishesAndBadJobsTouchNoFile) {
    QTemporaryDir dir;
    fixtures::ThreadedTestLoop loop{std::chrono::seconds(60)};
    LameEncoder encoder{loop};
    std::vector<std::int32_t> progress;
    int finished = 0;
    encoder.onEncodeProgress = [&](std::int32_t done) { progress.push_back(done); };
    encoder.onEncodeFinished = [&] { ++finished; };
    const QString in = dir.filePath("in.wav"), out = dir.filePath("out.mp3");
    auto prepare = [&](int format, int rate, int channels, double seconds) {
        SF_INFO info{0, rate, channels, SF_FORMAT_WAV | format, 0, 0};
        SNDFILE* f = sf_open(QFile::encodeName(in).constData(), SFM_WRITE, &info);
        std::vector<float> pcm(std::size_t(seconds * rate * channels));
        for (std::size_t i = 0; i < pcm.size(); ++i) pcm[i] = 0.5f * float(std::sin(i / channels * 0.0627));
        sf_writef_float(f, pcm.data(), sf_count_t(seconds * rate));
        sf_close(f);
        progress.clear();
        return encoder.OpenFiles(in, out);
    };
    auto run = [&] {  // to the job's finish, and a moment more in which nothing may come
        const int before = finished;
        encoder.StartEncoding();
        loop.waitUntil([&] { return finished > before; });
        loop.runFor(50);
    };

    // Format, rate, channels, bit rate (the start-up's is in bit/s), the MP3's rate.
    for (const auto [format, rate, channels, kbps, outRate] :
         {std::array<int, 5>{SF_FORMAT_PCM_16, 44100, 2, 128000, 44100},
          {SF_FORMAT_PCM_U8, 8000, 1, 32, 8000},
          {SF_FORMAT_PCM_24, 48000, 2, 192, 44100},
          {SF_FORMAT_FLOAT, 22050, 1, 64, 22050}}) {
        SCOPED_TRACE(format);
        encoder.setEncoderBitRate(kbps);
        encoder.setEncoderSampleRate(outRate);
        ASSERT_EQ(prepare(format, rate, channels, 2.0), 0);
        EXPECT_EQ(encoder.EncodeTotal(), 2 * rate);
        run();
        EXPECT_TRUE(!progress.empty() && progress.back() == 2 * rate && progress.size() <= 101u &&
                    std::is_sorted(progress.begin(), progress.end()));
        ASSERT_EQ(fixtures::mpg123ToWav(out, dir.filePath("out.wav")), 0);
        const fixtures::WavFile decoded = fixtures::readWav(dir.filePath("out.wav"));
        EXPECT_TRUE(decoded.rate == outRate && decoded.blockAlign == 2 * channels);
        EXPECT_NEAR(double(decoded.frames()), 2.0 * outRate, outRate < 32000 ? 576 : 1152);
        const double asked = kbps >= 1000 ? kbps / 1000 : kbps;
        EXPECT_NEAR(QFileInfo(out).size() * 8 / 2.0 / 1000, asked, asked * 0.15);
    }

    encoder.onEncodeProgress = [&](std::int32_t) { encoder.StopEncoding(); };
    ASSERT_EQ(prepare(SF_FORMAT_PCM_16, 44100, 2, 60.0), 0);
    run();
    EXPECT_LT(QFileInfo(out).size(), 60 * 16000) << "stopped well before the end";
    encoder.StopEncoding();  // harmless with no job
    ASSERT_EQ(prepare(SF_FORMAT_PCM_16, 44100, 2, 0.5), 0);
    run();
    EXPECT_EQ(finished, 6) << "one finish a job";

    encoder.onEncodeProgress = nullptr;
    encoder.setEncoderSampleRate(44100);
    // A WAV cut to half its length, whose header still claims the whole, encodes what it holds;
    // a full disk ends the job with its one finish.
    ASSERT_EQ(prepare(SF_FORMAT_PCM_16, 44100, 2, 2.0), 0);
    ASSERT_TRUE(QFile(in).resize(44 + 44100 * 4) && encoder.OpenFiles(in, out) == 0);
    run();
    ASSERT_EQ(fixtures::mpg123ToWav(out, dir.filePath("out.wav")), 0);
    EXPECT_NEAR(double(fixtures::readWav(dir.filePath("out.wav")).frames()), 44100, 1152);
    ASSERT_EQ(encoder.OpenFiles(in, "/dev/full"), 0);
    run();
    EXPECT_EQ(finished, 8);

    QFile(dir.filePath("empty.wav")).open(QIODevice::WriteOnly);
    const QStringList before = QDir(dir.path()).entryList(QDir::Files);
    for (const auto& [wav, mp3] : {std::pair{"missing.wav", "a.mp3"},
                                   {"empty.wav", "b.mp3"},
                                   {"in.wav", "no/such/dir/c.mp3"},
                                   {"in.wav", "in.wav"}})
        EXPECT_NE(encoder.OpenFiles(dir.filePath(wav), dir.filePath(mp3)), 0) << wav << " " << mp3;
    EXPECT_NE(encoder.OpenFiles("rem.wav", "rem.old"), 0);
    const QString readOnly = fixtures::throughReadOnlyFolder(
        dir.path(), [&] { return QString::number(encoder.OpenFiles(in, dir.filePath("d.mp3"))); });
    EXPECT_TRUE(readOnly == "1" || readOnly == "no read-only folder") << readOnly.toStdString();
    EXPECT_EQ(QDir(dir.path()).entryList(QDir::Files), before);
    EXPECT_FALSE(QFile::exists("rem.old"));
}

}  // namespace
}  // namespace sonarium
