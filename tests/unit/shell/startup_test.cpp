// Start-up in its order, the command line and F4. (The library's attach on the first
// activation is where every library test starts from. The settings a
// first start takes are checked whole in the Config.dat it writes on closing; About's modal
// splash is the main window's test.)
#include "ProgramFixture.h"

using namespace sonarium;

namespace {
QByteArray lines(const char* word, std::initializer_list<int> steps) {
    QByteArray out;
    for (int s : steps) out += QByteArray(word) + ' ' + QByteArray::number(s) + "\r\n";
    return out;
}
}  // namespace

using StartUp = ProgramFixture;

TEST_F(StartUp, AFirstStartLeavesTheInitTraceAndSetsTheEncoderAndTheTone) {
    program().Main();
    EXPECT_EQ(read("Debug.dat"), lines("Init", {1, 2, 3, 4, 5, 6, 7, 8}));
    // No Bladeenc beside the program: the Blade entry is chosen and disabled at once.
    EXPECT_FALSE(form1().mnuBlade.Enabled() || form1().mnuInternal.Checked());
    EXPECT_TRUE(form1().mnuBlade.Checked());
    // Tone: bass then treble to the pairs the mixer reported.
    EXPECT_EQ(tc.mixer.calls(),
              QStringList({"OpenMixer", "SetControlValue(2,102,0,50)", "SetControlValue(1,101,0,50)"}));
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
    struct Case {
        const char* line;
        QStringList rows;
        const char* dir;
    };
    const Case cases[] = {
        {"/home/me/My Music/A, B.MP3", {"A, B"}, "/home/me/My Music/"},
        {"Song.Mp3", {"Song"}, ""},     // no directory: relative to the current one
        {"/home/me/Song.wav", {}, ""},  // not an MP3: ignored
    };
    for (const Case& c : cases) {
        prog.reset();
        tc.commandLine = QString::fromUtf8(c.line);
        if (!c.rows.isEmpty()) tc.mp3.addFile(QString::fromUtf8(c.dir) + c.rows[0] + ".MP3", 380, 10.0f);
        form1().CheckForSong();
        EXPECT_EQ(form1().lstSongs.rows(), c.rows) << c.line;
        EXPECT_EQ(M().SongPath[0], QString::fromUtf8(c.dir)) << c.line;
        EXPECT_EQ(form1().lstSongs.ListIndex(), c.rows.isEmpty() ? -1 : 0) << c.line;
    }
    EXPECT_TRUE(tc.dialogs.shown().empty()) << "no message for a refused argument";
}

TEST_F(StartUp, F4IsSwallowedUnlessTheEditorOrTheLibraryHasTheWindow) {
    tc.dialogs.setAutoAnswerOk(true);  // F4 on an empty queue says so
    program().Main();
    EXPECT_TRUE(form1().KeyDown(115, 0));
    for (MenuItem* panel : {&form1().mnuDatabase, &form1().mnuEdit}) {
        panel->setChecked(true);
        EXPECT_FALSE(form1().KeyDown(115, 0)) << panel->Name().toStdString();
        panel->setChecked(false);
    }
}
