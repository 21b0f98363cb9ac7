// Conversion runs on the fake encoder and CD reader: the chain of jobs down the queue, the
// six-second rule with its six retries and double stop, Stop in each state, the end of a run,
// the bar's numbers and the messages of failed starts.
#include <QDir>

#include "ProgramFixture.h"

namespace sonarium {
namespace {

class ConversionRun : public StartedProgramFixture {
protected:
    void SetUp() override {
        StartedProgramFixture::SetUp();
        tc.dialogs.setAutoAnswerOk(true);
        form1().CurrentDir = path("") + "/";
        form1().mnuInternal.setChecked(true);
        calls();
    }
    // A CD mode with `tracks` rows, as the CD's listing spells them.
    void cdMode(MenuItem& mode, int tracks) {
        mode.setChecked(true);
        for (int t = 1; t <= tracks; ++t)
            form1().lstSongs.AddItem(QString::asprintf(" Track %02d \r 3:5 Mns", t));
    }
    void play() { form1().BtnPlay.MouseUp(LeftButton, 0, 0, 0); }
    void stop() { form1().BtnStop.MouseUp(LeftButton, 0, 0, 0); }
    // The components' calls since the last look, encoder's and reader's in one list.
    QStringList calls() {
        QStringList all = tc.cd.calls() + tc.encoder.calls();
        tc.cd.clearCalls(), tc.encoder.clearCalls();
        all.removeIf([](const QString& c) { return c.startsWith("BitRate") || c.startsWith("SampleRate"); });
        return all;
    }
    QStringList files() { return QDir(path("")).entryList({"*.WAV", "*.MP3"}, QDir::Files); }
};

TEST_F(ConversionRun, CdToMp3ExtractsThenEncodesEachRowAndEndsWithTheTemporaryFileGone) {
    cdMode(form1().mnuCDtoMP3, 3);
    form1().lstSongs.setListIndex(1);  // the run goes from the selected row to the end
    play();
    tc.loop.advance(7000);
    EXPECT_EQ(calls(), QStringList({"ExtractTrack(2," + path("Temp.WAV") + ")",
                                    "OpenFiles(" + path("Temp.WAV") + "," + path("Track02.MP3") + ")",
                                    "StartEncoding"}));
    EXPECT_EQ(form1().lblTrackProgress.Caption(), "Encoding to MP3");
    // Half way the fake reports 505 of 1000: 50 per cent, the tie going to the even number, and
    // 50 hundredths of the bar's 3165 twips are 1582.5, kept whole the same way.
    tc.loop.advance(1500);
    EXPECT_EQ(form1().Shape1.Width(), 1582);
    tc.loop.advance(1500 + 7000 + 3000);
    EXPECT_EQ(calls(), QStringList({"ExtractTrack(3," + path("Temp.WAV") + ")",
                                    "OpenFiles(" + path("Temp.WAV") + "," + path("Track03.MP3") + ")",
                                    "StartEncoding", "OpenFiles(rem.wav,rem.old)"}));
    EXPECT_EQ(tc.dialogs.texts(), QStringList({"Encoding complete...."}));
    EXPECT_EQ(files(), QStringList()) << "the fake encoder writes no MP3; Temp.WAV is gone";
    EXPECT_TRUE(form1().Ball.picture().sameAs(form1().imgRedBall.picture()));
}

// Under six seconds an extraction counts as failed and the row starts again; the sixth such
// finish stops the run twice over and says so, and the stop's own finish ends it quietly. At
// 6.0 seconds it counts as good.
TEST_F(ConversionRun, ShortExtractionsRetrySixTimesAndSixSecondsIsEnough) {
    cdMode(form1().mnuCdToWav, 2);
    tc.cd.jobMs = 5999;
    play();
    tc.loop.advance(6 * 5999);
    EXPECT_EQ(calls().size(), 7) << "the first try, then six starts, the last stopped at once";
    tc.loop.advance(10);
    EXPECT_EQ(tc.dialogs.texts(), QStringList({"Error Reading Track"}));
    EXPECT_FALSE(form1().StopRequested) << "the stop's finish took the stop branch";
    EXPECT_EQ(form1().ReadRetries, 0);

    tc.cd.jobMs = 6000;
    form1().BtnPlay.MouseDown(LeftButton, 0, 0, 0);
    play();
    tc.loop.advance(12000);
    EXPECT_EQ(calls(), QStringList({"ExtractTrack(1," + path("Track01.WAV") + ")",
                                    "ExtractTrack(2," + path("Track02.WAV") + ")"}));
    EXPECT_EQ(tc.dialogs.texts().size(), 1) << "CD to WAV ends without a word";

    // A reader that wrote the whole track is believed however fast it was (an image).
    tc.cd.jobMs = 50;
    tc.cd.complete = true;
    form1().lstSongs.setListIndex(0);
    play();
    tc.loop.advance(100);
    EXPECT_EQ(calls().size(), 2);
}

// A stop while extracting ends the run with the temporary file deleted and the flag cleared;
// a stop while encoding ends it with the end-of-run message though rows were left.
TEST_F(ConversionRun, StopInEachStateEndsTheRun) {
    cdMode(form1().mnuCDtoMP3, 3);
    play();
    tc.loop.advance(1000);
    stop();
    tc.loop.advance(10);
    EXPECT_TRUE(files().isEmpty() && !form1().StopRequested && tc.dialogs.texts().isEmpty());

    form1().BtnPlay.MouseDown(LeftButton, 0, 0, 0);
    play();
    tc.loop.advance(7000 + 1000);
    stop();
    tc.loop.advance(10);
    EXPECT_EQ(tc.dialogs.texts(), QStringList({"Encoding complete...."}));
    EXPECT_TRUE(form1().StopRequested) << "only the next press of Play clears it";
    calls();
    stop();  // with nothing running: no job, no message
    tc.loop.advance(10000);
    EXPECT_EQ(calls(), QStringList());

    // Leaving the mode mid-extraction stops the run first, and its temporary file goes.
    form1().BtnPlay.MouseDown(LeftButton, 0, 0, 0);
    play();
    tc.loop.advance(1000);
    form1().mnuCDtoMP3.Click();
    tc.loop.advance(10000);
    EXPECT_TRUE(files().isEmpty());
}

TEST_F(ConversionRun, FailedStartsSayWhyAndEndTheRun) {
    cdMode(form1().mnuCDtoMP3, 0);
    play();
    for (const std::int16_t code : {712, 3}) {
        form1().lstSongs.AddItem(" Track 01 \r 3:5 Mns");
        tc.cd.extractResult = code;
        play();
    }
    tc.cd.extractResult = 0;
    tc.encoder.refuse = "Temp.WAV";
    play();
    tc.loop.advance(20000);
    EXPECT_EQ(tc.dialogs.texts(), QStringList({"No tracks in song queue", "Insufficient disk space 712",
                                               "Read Error 3", "Encoder open error"}));
    EXPECT_EQ(files(), QStringList({"Temp.WAV"})) << "an encoder's refusal leaves the extracted track";
}

// WAV to MP3 asks before replacing an MP3; No ends the run there.
TEST_F(ConversionRun, WavToMp3AsksBeforeReplacingAndGoesDownTheQueue) {
    form1().mnuWavToMp3.setChecked(true);
    for (const char* row : {"a", "b", "c"}) form1().lstSongs.AddItem(row);
    write("c.MP3", "old");
    form1().lstSongs.setListIndex(1);
    tc.dialogs.answer(MsgResult::No);
    play();
    tc.loop.advance(3000);
    EXPECT_EQ(calls(),
              QStringList({"OpenFiles(" + path("b.WAV") + "," + path("b.MP3") + ")", "StartEncoding"}));
    EXPECT_EQ(tc.dialogs.texts(), QStringList({"File already exists - overwrite?"}));
    EXPECT_EQ(read("c.MP3"), "old");
}

// The external encoder on a source named with a blank: renamed without it for the job, copied
// into the folder and run there on the command line built; the running time shown with its
// rounding; at the end the copy gone and both files under the name with the blank. A stop
// while it runs kills it and says so.
TEST_F(ConversionRun, BladeRenamesCopiesRunsWatchesAndPutsBackTheNames) {
    QDir(path("")).mkdir("music");
    const QString music = path("music") + "/";
    form1().CurrentDir = music;
    write("Bladeenc", "#!/bin/sh\n");
    write("music/My Song.WAV", "wav");
    form1().mnuWavToMp3.setChecked(true);
    form1().mnuInternal.setChecked(false);
    form1().mnuBlade.setChecked(true);
    form1().lstSongs.AddItem("My Song");
    play();
    EXPECT_EQ(tc.processes.calls(), QStringList({"Start(Bladeenc -quit  -128 MySong.WAV," + music + ")"}));
    EXPECT_TRUE(QFile::exists(music + "MySong.WAV") && QFile::exists(music + "Bladeenc"));
    EXPECT_EQ(form1().currentDirectory.path(), path("music"));
    for (const auto& [ms, shown] : {std::pair{59500, "00:00"}, {500, "01:00"}}) {
        tc.loop.advance(ms);
        EXPECT_EQ(form1().lblBladeEncTime.Caption(), QString(" Using Blade ......Time  ") + shown);
    }
    write("music/MySong.MP3", "mp3");  // what the encoder writes
    tc.processes.end(1001);
    tc.loop.advance(100);
    EXPECT_EQ(QDir(music).entryList(QDir::Files), QStringList({"My Song.MP3", "My Song.WAV"}));
    EXPECT_EQ(tc.dialogs.texts(), QStringList({"Encoding complete...."}));
    EXPECT_EQ(form1().currentDirectory.path(), path(""));

    tc.dialogs.answer(MsgResult::Yes);  // the MP3 made above goes
    play();
    form1().BtnStop.MouseDown(LeftButton, 0, 0, 0);
    EXPECT_EQ(tc.processes.calls().last(), "Terminate(1002)");
    EXPECT_EQ(tc.dialogs.texts().last(), "Encoding aborted....");
    EXPECT_EQ(QDir(music).entryList(QDir::Files), QStringList({"My Song.WAV"}));
}

// The CD modes: entering lists the CD's tracks as rows (the carriage return, the unpadded
// seconds, the title pane without the last four characters) and turns the window into the
// converter; the other CD entry switches modes, its own entry leaves, the bit rate rereads the
// CD and empties the queue, and a CD without tracks asks to retry.
TEST_F(ConversionRun, CdModesListTheTracksSwitchLeaveAndRetry) {
    Form1& f = form1();
    tc.cd.tracks = {185000, 247499, 60000};
    f.lstSongs.AddItem("queued song");
    f.mnuCdToWav.Click();
    EXPECT_TRUE(f.mnuCdToWav.Checked() && f.PanelCdToMP3.Visible() && !f.BtnPause.Visible() &&
                !f.mnuView.Enabled() && !f.cboBitRate.Visible() && f.lstSongs.ListCount() == 0);
    EXPECT_EQ(f.Titles, QStringList({" Track 01 \r 3:5 Mns     ", " Track 02 \r 4:7 Mns     ",
                                     " Track 03 \r 1:0 Mns     "}));
    EXPECT_EQ(f.Title[1].Caption(), " Track 02 \r 4:7 Mns ");

    f.mnuCdToWav.Click();  // its own entry again leaves the mode
    EXPECT_TRUE(!f.mnuCdToWav.Checked() && !f.PanelCdToMP3.Visible() && f.BtnPause.Visible() &&
                f.mnuView.Enabled());
    EXPECT_EQ(f.lstSongs.rows(), QStringList({"queued song"})) << "the player's queue is back";

    f.mnuCdToWav.Click();
    f.mnuCDtoMP3.Click();  // from the other CD mode: entered, not left
    EXPECT_TRUE(f.mnuCDtoMP3.Checked() && !f.mnuCdToWav.Checked() && f.cboBitRate.Visible());
    f.lstSongs.AddItem(f.Title[0].Caption());
    f.cboBitRate.Click();
    EXPECT_TRUE(f.mnuCDtoMP3.Checked() && f.lstSongs.ListCount() == 0) << "reread, the queue emptied";
    f.mnuCDtoMP3.Click();
    // Its save on the way kept the listener's queue, not the track queued for the job.
    EXPECT_EQ(f.lstSongs.rows(), QStringList({"queued song"}));
    tc.cd.tracks.clear();
    tc.dialogs.answer(MsgResult::Yes).answer(MsgResult::No);
    f.mnuCDtoMP3.Click();
    EXPECT_EQ(tc.dialogs.texts(), QStringList(2, "Error reading CD drive - Retry?"));
    EXPECT_FALSE(f.mnuCDtoMP3.Checked());
}

}  // namespace
}  // namespace sonarium
