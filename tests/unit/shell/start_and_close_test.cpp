// Start-up in its order, the command line and F4; LoadConfig on short, hand-edited and failing
// files; and closing, which writes Config.dat byte for byte and ignores a second close during its
// wait, while SQuit saves nothing and a signal saves without waiting. (The library's attach on
// the first activation is where every library test starts from; About's modal splash is the
// main window's test. A comma that shifts the fields is the text field reader's rule. The
// settings a first start takes are checked whole in the Config.dat it writes on closing, and
// the round trip of a full file is a start and a quit. A paused song keeping the close waiting,
// and the fade's volume steps, are the transport's tests.)
#include "ProgramFixture.h"

using namespace sonarium;

namespace {

QByteArray lines(const char* word, std::initializer_list<int> steps) {
    QByteArray out;
    for (int s : steps) out += QByteArray(word) + ' ' + QByteArray::number(s) + "\r\n";
    return out;
}

class Config : public ProgramFixture {
protected:
    // The load's own state before LoadConfig, as Form1's load leaves it.
    void load(const QByteArray& file) {
        write("Config.dat", file);
        M().AppDir = dir.path();
        M().EncoderChoice = 1;
        form1().tryStep([&] { form1().LoadConfig(); });
    }
    // What the load set, field by field in the file's order: mini mode, meter, library, photo
    // width, encoder, skin, stop after song, info interval, info timer (menu and timer), mini
    // skin, alarm time, alarm (menu and timer), caption, encoder menu (internal, rate shown).
    QString state() {
        Form1& f = form1();
        const auto n = [](double v) { return QString::number(v); };
        const auto on = [](bool menu, bool other) { return QString::number(menu) + QString::number(other); };
        QStringList fields;
        fields << n(M().MiniMode) << n(M().VUMeterOn) << M().DatabasePath << n(f.PhotoWidth)
               << n(M().EncoderChoice) << M().SkinPath << n(f.mnuStopAfterSong.Checked())
               << n(f.tmrInfo.Interval()) << on(f.mnuTimerOn.Checked(), f.tmrInfo.Enabled())
               << M().MiniSkinPath << M().AlarmTime << on(f.mnuAlarmOnOff.Checked(), f.tmrAlarm.Enabled())
               << f.Caption() << on(f.mnuInternal.Checked(), f.cboSampleRate.Visible());
        return fields.join(u'|');
    }
};

}  // namespace

using StartUp = ProgramFixture;

TEST_F(StartUp, AFirstStartLeavesTheInitTraceSetsTheEncoderAndTheToneAndSwallowsF4) {
    program().Main();
    EXPECT_EQ(read("Debug.dat"), lines("Init", {1, 2, 3, 4, 5, 6, 7, 8}));
    // No Bladeenc beside the program: the Blade entry is chosen and disabled at once.
    EXPECT_FALSE(form1().mnuBlade.Enabled() || form1().mnuInternal.Checked());
    EXPECT_TRUE(form1().mnuBlade.Checked());
    // Tone: bass then treble to the pairs the mixer reported.
    EXPECT_EQ(tc.mixer.calls(),
              QStringList({"OpenMixer", "SetControlValue(2,102,0,50)", "SetControlValue(1,101,0,50)"}));
    // F4 is swallowed unless the editor or the library has the window.
    tc.dialogs.setAutoAnswerOk(true);  // F4 on an empty queue says so
    EXPECT_TRUE(form1().KeyDown(115, 0));
    form1().mnuDatabase.setChecked(true);  // the library's panel (the editor's is the same test)
    EXPECT_FALSE(form1().KeyDown(115, 0));
}

// In mini mode the load leaves its own trace; a peak meter with no peak control stops the
// meter's steps where they fail and disables the meter.
TEST_F(StartUp, MiniModeLeavesTheLoadTraceAndTheMetersStepsStopWhereTheyFail) {
    write("Config.dat", " 1 \r\n");
    tc.commandLine = "/music/Blues/Song.mp3";
    tc.mp3.addFile("/music/Blues/Song.MP3", 380, 10.0f);
    program().Main();
    EXPECT_EQ(read("Debug.dat"), lines("Load", {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16}));
    EXPECT_FALSE(form1().Visible());
    EXPECT_TRUE(program().frmMiniPlayer.Visible());
    EXPECT_EQ(form1().lstSongs.rows(), QStringList({"Song"})) << "queued before the mini player comes up";

    prog.reset();
    tc.peak.setFindResult(false);
    program().Main();
    EXPECT_EQ(read("Debug.dat"), lines("Load", {1, 2, 3, 4, 5, 6, 11, 12, 13, 14, 15, 16}));
    EXPECT_FALSE(form1().mnuVU.Enabled());
}

TEST_F(StartUp, TheCommandLineIsTakenWhole) {
    for (auto [line, row, songDir] : {std::tuple{"/home/me/My Music/A, B.MP3", "A, B", "/home/me/My Music/"},
                                      {"Song.Mp3", "Song", ""},  // no directory: relative to the current one
                                      {"/home/me/Song.wav", "", ""}}) {  // not an MP3: ignored
        prog.reset();
        tc.commandLine = line;
        tc.mp3.addFile(QString(songDir) + row + ".MP3", 380, 10.0f);
        form1().CheckForSong();
        EXPECT_EQ(form1().lstSongs.rows(), *row ? QStringList({row}) : QStringList()) << line;
        EXPECT_EQ(M().SongPath[0], songDir) << line;
        EXPECT_EQ(form1().lstSongs.ListIndex(), *row ? 0 : -1) << line;
    }
    EXPECT_TRUE(tc.dialogs.shown().empty()) << "no message for a refused argument";
}

TEST_F(Config, ShortHandEditedAndFailingFiles) {
    const std::pair<QByteArray, QString> cases[] = {
        // Three lines: the rest stay as they were, and 0 stands for the default interval.
        {" 0 \r\n 1 \r\n/data/Songs.mdb\r\n", "0|1|/data/Songs.mdb|0|1||0|10000|00||00:00|00||00"},
        // An alarm that was on is on again with its caption; encoder 0 is the internal one.
        {" 0 \r\n 0 \r\n/db.mdb\r\n 3465 \r\n 0 \r\n/skin\r\n 1 \r\n 15000 \r\n 1 \r\n\r\n06:45\r\n 1 \r\n",
         "0|0|/db.mdb|3465|0|/skin|1|15000|11||06:45|11|Sonarium           Alarm Time : 06:45|11"},
        // Only exactly 1 counts as on; encoder 2 is the internal one too.
        {" 0 \r\n 0 \r\n/db.mdb\r\n 3465 \r\n 2 \r\n/skin\r\n-1 \r\n 0 \r\n 2 \r\n/deck\r\n07:00\r\n-1 \r\n",
         "0|0|/db.mdb|3465|2|/skin|0|10000|00|/deck|07:00|00||11"},
        // A field that fails ends the load and skips its later steps: the library path stays
        // empty, the design interval (30000) stays, the encoder menu is never set.
        {" 0 \r\n 0 \r\n\r\n 99999 \r\n 0 \r\n", "0|0||0|1||0|30000|00||00:00|00||01"},
    };
    for (const auto& [file, expected] : cases) {
        prog.reset();
        load(file);
        EXPECT_EQ(state(), expected) << file.constData();
    }
}

using Shutdown = StartedProgramFixture;

// Closing writes the twelve settings byte for byte: at first the first start's defaults, as a
// missing file leaves them; then every field of a full file read at start is written back as it
// was, but the mini mode (quitting from the mini player makes the next start open the main
// window) and a mini player skin that isn't one, for which the program's folder is tried instead.
TEST_F(Shutdown, ClosingWritesTheTwelveSettingsByteForByteAndLeavesMiniMode) {
    EXPECT_FALSE(form1().QueryUnload()) << "the close runs to its end itself";
    const QByteArray expected =
        " 0 \r\n 0 \r\n" + path("SonariumData.mdb").toUtf8() + "\r\n 3465 \r\n 1 \r\n" + dir.path().toUtf8() +
        "\r\n 0 \r\n 10000 \r\n 0 \r\n" + dir.path().toUtf8() + "\r\n00:00\r\n 0 \r\n";
    EXPECT_EQ(read("Config.dat"), expected);
    EXPECT_TRUE(tc.mp3.calls().contains("Close"));
    EXPECT_FALSE(tc.peak.prepared()) << "the meter's buffer is freed";

    const QByteArray rest =
        " 1 \r\n/db/Ünïcode Songs.mdb\r\n 1920 \r\n 0 \r\n/skins/Blue\r\n 1 \r\n 20000 \r\n 1 \r\n"
        "/skins/Deck\r\n07:30\r\n 1 \r\n";
    write("Config.dat", " 1 \r\n" + rest);
    prog.reset();
    program().Main();
    form1().mnuQuit.Click();
    EXPECT_EQ(read("Config.dat"), " 0 \r\n" + QByteArray(rest).replace("/skins/Deck", dir.path().toUtf8()));
}

TEST_F(Shutdown, ASecondCloseRequestDuringTheWaitIsIgnored) {
    M().SongPlaying = true;
    int quitsSeenInside = -1;
    tc.loop.startTimer(
        100,
        [&] {
            form1().QueryUnload();  // the user presses the close button again
            quitsSeenInside = tc.desktop.quitCode().has_value() ? 1 : 0;
            M().SongPlaying = false;
        },
        true);
    form1().QueryUnload();
    EXPECT_EQ(quitsSeenInside, 0);
    EXPECT_EQ(tc.desktop.quitCode(), 0);
}

TEST_F(Shutdown, TheStickMenusQuitEndsAtOnceWithoutSavingAndASignalSavesWithoutWaiting) {
    M().SongPlaying = true;
    form1().SQuit.Click();
    EXPECT_EQ(tc.desktop.quitCode(), 0);
    EXPECT_FALSE(QFile::exists(path("Config.dat")));

    M().SongPaused = true;
    form1().SavedVolume = 30;
    M().Volume = 12;  // a fade under way
    form1().EndOnSignal();
    EXPECT_TRUE(read("Config.dat").endsWith("\r\n"));
    EXPECT_TRUE(read("Mixer.dat").startsWith(" 30 \r\n")) << "the listener's volume, not the fade's";
}
