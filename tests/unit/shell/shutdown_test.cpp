// Closing writes Config.dat byte for byte and ignores a second close during its wait; SQuit saves
// nothing; a signal saves without waiting. (A paused song keeping the close waiting, and the
// fade's volume steps, are the transport's tests.)
#include "ProgramFixture.h"

using namespace sonarium;

using Shutdown = ProgramFixture;

TEST_F(Shutdown, ClosingWritesTheTwelveSettingsByteForByte) {
    program().Main();
    EXPECT_FALSE(form1().QueryUnload()) << "the close runs to its end itself";
    // The first start's defaults, as a missing file leaves them.
    const QByteArray expected = " 0 \r\n 0 \r\n" + path("SonariumData.mdb").toUtf8() +
                                "\r\n 3465 \r\n 1 \r\n" + dir.path().toUtf8() +
                                "\r\n 0 \r\n 10000 \r\n 0 \r\n\r\n00:00\r\n 0 \r\n";
    EXPECT_EQ(read("Config.dat"), expected);
    EXPECT_TRUE(tc.mp3.calls().contains("Close"));
    EXPECT_FALSE(tc.peak.prepared()) << "the meter's buffer is freed";
}

// Every field of a full file is read at start and written back as it was, but the mini mode:
// quitting from the mini player makes the next start open the main window.
TEST_F(Shutdown, QuitWritesBackEveryFieldItReadAndLeavesMiniMode) {
    const QByteArray rest =
        " 1 \r\n/db/Ünïcode Songs.mdb\r\n 1920 \r\n 0 \r\n/skins/Blue\r\n 1 \r\n 20000 \r\n 1 \r\n"
        "/skins/Deck\r\n07:30\r\n 1 \r\n";
    write("Config.dat", " 1 \r\n" + rest);
    program().Main();
    form1().mnuQuit.Click();
    EXPECT_EQ(read("Config.dat"), " 0 \r\n" + rest);
}

TEST_F(Shutdown, ASecondCloseRequestDuringTheWaitIsIgnored) {
    program().Main();
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
    program().Main();
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
