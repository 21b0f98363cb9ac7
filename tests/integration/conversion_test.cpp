// The converter in the program on the real components, on a CD image made here: CD to WAV gives
// each track's samples byte for byte; CD to MP3 through LAME gives MP3s of the tracks' lengths
// and leaves no temporary file; WAV to MP3 through the outside-encoder adapter keeps a name with
// a blank; MP3 to WAV with the punch dialog's section decodes exactly its frames.
#include <gtest/gtest.h>

#include <QDir>
#include <QTemporaryDir>

#include "fixtures/CdImage.h"
#include "fixtures/Files.h"
#include "fixtures/RealPlayerProgram.h"
#include "fixtures/ToolRunner.h"
#include "fixtures/WavFile.h"

namespace sonarium {
namespace {

TEST(ConversionIntegration, CdToWavCdToMp3AndWavToMp3ThroughTheAdapter) {
    QTemporaryDir dir;
    const fixtures::CdImage image = fixtures::makeCdImage(dir.path(), "Disc", {150, 225, 300});
    fixtures::RealPlayerProgram<> parts{std::chrono::seconds(60), image.cue};
    parts.dialogs.setAutoAnswerOk(true);
    Form1& f = parts.start(dir.path()).form1;
    f.CurrentDir = dir.path() + "/";
    f.mnuInternal.Click();
    auto rip = [&](MenuItem& mode, int titles, const std::function<bool()>& done) {
        mode.Click();
        for (int t = 0; t < titles; ++t) f.Title_DblClick(t);
        f.BtnPlay.MouseDown(LeftButton, 0, 0, 0);
        f.BtnPlay.MouseUp(LeftButton, 0, 0, 0);
        parts.loop.waitUntil(done);
    };

    // CD to WAV ends without a word: the last WAV whole, its header written, marks the end.
    rip(f.mnuCdToWav, 3,
        [&] { return QFileInfo(dir.filePath("Track03.WAV")).size() == 44 + image.tracks[2].size(); });
    for (int t = 0; t < 3; ++t)
        EXPECT_EQ(
            fixtures::fileBytes(dir.filePath(QString("Track%1.WAV").arg(t + 1, 2, 10, QChar('0')))).mid(44),
            image.tracks[std::size_t(t)]);
    f.mnuCdToWav.Click();

    rip(f.mnuCDtoMP3, 3, [&] { return parts.dialogs.texts().contains("Encoding complete...."); });
    // One MP3 a track; how long an encoded file decodes is the encoder's test.
    EXPECT_EQ(QDir(dir.path()).entryList({"*.MP3"}),
              QStringList({"Track01.MP3", "Track02.MP3", "Track03.MP3"}));
    EXPECT_FALSE(QFile::exists(dir.filePath("Temp.WAV")));
    f.mnuCDtoMP3.Click();

    // MP3 to WAV of the longest track with the punch dialog's defaults switched on: frame 1 to
    // 81 frames before the end, as the outside decoder gives them.
    const QString punch = dir.filePath("punch") + "/";
    ASSERT_TRUE(QDir(dir.path()).mkdir("punch") &&
                QFile::copy(dir.filePath("Track03.MP3"), punch + "Track03.MP3"));
    f.CurrentDir = punch;
    f.mnuMP3ToWav.Click();
    f.GetTitles();
    f.Title_DblClick(0);
    Form2& dialog = parts.program->form2;
    parts.loop.post([&] {
        dialog.chkPunchInOutActivate.setValue(1);
        dialog.cmdPunchInOutOK.Click();
    });
    f.cmdSetPunchInOut.Click();
    const int frames = dialog.PunchTotalFrames - 81;
    ASSERT_GT(frames, 50);
    f.BtnPlay.MouseDown(LeftButton, 0, 0, 0);
    f.BtnPlay.MouseUp(LeftButton, 0, 0, 0);
    parts.loop.waitUntil([&] { return !parts.program->M.SongPlaying; });
    ASSERT_EQ(fixtures::mpg123ToWav(punch + "Track03.MP3", dir.filePath("section.wav"),
                                    {"--no-gapless", "-k", "1", "-n", QString::number(frames)}),
              0);
    EXPECT_TRUE(fixtures::readWav(punch + "Track03.WAV").data ==
                fixtures::readWav(dir.filePath("section.wav")).data);
    EXPECT_EQ(fixtures::readWav(punch + "Track03.WAV").frames(), frames * 1152);
    f.mnuMP3ToWav.Click();

    // WAV to MP3 through the project's outside-encoder adapter, on a song named with a blank in
    // a folder of its own: both files end under the name with the blank, and the copy of the
    // encoder is gone.
    const QString music = dir.filePath("music") + "/";
    ASSERT_TRUE(QDir(dir.path()).mkdir("music") && QFile::copy(SONARIUM_BLADEENC, dir.filePath("Bladeenc")) &&
                QFile::copy(dir.filePath("Track01.WAV"), music + "My Song.WAV"));
    f.CurrentDir = music;
    f.mnuBlade.Click();
    rip(f.mnuWavToMp3, 1, [&] { return parts.dialogs.texts().count("Encoding complete....") == 2; });
    EXPECT_EQ(parts.program->M.BladeSourceName, "My Song.WAV") << "the outside encoder did the job";
    EXPECT_EQ(QDir(music).entryList(QDir::Files), QStringList({"My Song.MP3", "My Song.WAV"}));
    ASSERT_EQ(fixtures::mpg123ToWav(music + "My Song.MP3", dir.filePath("back.wav")), 0);
    EXPECT_NEAR(double(fixtures::readWav(dir.filePath("back.wav")).frames()),
                double(image.tracks[0].size() / 4), 1152);
}

}  // namespace
}  // namespace sonarium
