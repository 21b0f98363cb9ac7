// The real program on the silent output, from start to end: the start's rules the window
// tests do not reach (the command line, the platform). A user's close stops the song,
// saves the settings and ends the event loop with 0. A termination signal (a kill, a logout)
// ends the program's process within five seconds whatever it is doing, here with a modal
// question open (a paused song is the shutdown unit tests' case). Each end leaves both
// settings files whole.
#include <QtCore/qtestsupport_core.h>
#include <gtest/gtest.h>
#include <signal.h>

#include <QApplication>
#include <QDir>
#include <QLabel>
#include <QProcess>
#include <QTimer>

#include "ProgramFixture.h"
#include "app/Application.h"
#include "app/StartFolder.h"
#include "ui/MainWindow.h"

namespace {

using namespace sonarium;

// The arguments are one name with its blanks, made absolute against the folder the program
// was launched from; its own folder is SONARIUM_HOME, relative to that folder too, else
// ~/Sonarium. A Wayland session gets the X11 platform unless the user chose one.
TEST(Startup, CommandLineFolderAndPlatform) {
    EXPECT_EQ(commandLineOf({"sonarium", "/music/My", "Song.mp3"}, "/home/u"), "/music/My Song.mp3");
    EXPECT_EQ(commandLineOf({"sonarium", "../Music/A", "b.mp3"}, "/home/u/x"), "/home/u/Music/A b.mp3");
    EXPECT_EQ(commandLineOf({"sonarium"}, "/home/u"), "");
    EXPECT_EQ(startFolderFor("", "/home/u", "/tmp"), "/home/u/Sonarium");
    EXPECT_EQ(startFolderFor("Jukebox/", "/home/u", "/tmp"), "/tmp/Jukebox");
    EXPECT_EQ(startFolderFor("/srv/music", "/home/u", "/tmp"), "/srv/music");
    EXPECT_EQ(platformFor("", "wayland-0", ""), "xcb");
    EXPECT_EQ(platformFor("wayland", "wayland-0", "wayland"), "");
}

// The real program; the program fixture serves for its temporary folder and file helpers.
class ProgramProcess : public ProgramFixture {
protected:
    // Config.dat's twelve lines and Mixer.dat's levels and queue, each whole, in `folder`.
    void expectSettingsSavedWith(const QString& queuedTitle, const QString& folder = ".") {
        const QByteArray config = read(folder + "/Config.dat");
        EXPECT_EQ(config.count("\r\n"), 12) << config.constData();
        EXPECT_TRUE(config.endsWith("\r\n"));
        const QByteArray mixer = read(folder + "/Mixer.dat");
        EXPECT_TRUE(mixer.endsWith("\r\n")) << mixer.constData();
        EXPECT_TRUE(mixer.contains(queuedTitle.toUtf8())) << mixer.constData();
    }
};

// The program object main() builds, in this process, so that the test can close its window.
TEST_F(ProgramProcess, ASongPlaysAndTheWindowsCloseEndsTheProgram) {
    // Twenty seconds of MPEG-1 Layer III frames (128 kbit/s, 44.1 kHz) whose zero side
    // information decodes as silence.
    QByteArray frame(417, '\0');
    frame.replace(0, 4, QByteArray::fromHex("FFFB9064"));
    write("Tone.MP3", frame.repeated(800));
    const QByteArray sessionBus = qgetenv("DBUS_SESSION_BUS_ADDRESS");
    qunsetenv("DBUS_SESSION_BUS_ADDRESS");
    qputenv("SONARIUM_AUDIO", "null");
    QApplication::setQuitOnLastWindowClosed(false);
    QString time;
    bool closeRefused = false;
    int exitCode = -1;
    {
        Application application(path("Tone.MP3"), dir.path());
        MainWindow& window = application.views().main();
        application.start();
        // Once the song has played a second, the user closes the window.
        QTimer poll;
        QObject::connect(&poll, &QTimer::timeout, [&] {
            time = window.findChild<QLabel*>("lblTime")->text();  // "length / elapsed"
            if (window.windowTitle() != "Tone" || !time.contains(" / ") || time.endsWith("00:00")) return;
            poll.stop();
            closeRefused = !window.close();  // the program ends the process itself
        });
        poll.start(50);
        QTimer giveUp;  // goes with this block, so that it cannot end a later test's loop
        giveUp.callOnTimeout([] { QCoreApplication::exit(-2); });
        giveUp.start(20000);
        exitCode = QApplication::exec();
    }
    QApplication::setQuitOnLastWindowClosed(true);
    qunsetenv("SONARIUM_AUDIO");
    if (!sessionBus.isEmpty()) qputenv("DBUS_SESSION_BUS_ADDRESS", sessionBus);
    EXPECT_EQ(exitCode, 0) << "last time shown: " << time.toStdString();
    EXPECT_TRUE(closeRefused);
    expectSettingsSavedWith("Tone");
}

// Launched from another folder with a relative song name, as a terminal or a file manager
// does, the program keeps its files in ~/Sonarium, made for it, and leaves the launch folder
// alone.
TEST_F(ProgramProcess, ItsOwnFolderAndAModalQuestionDoesNotHoldOffTheEnd) {
    ASSERT_TRUE(QDir(dir.path()).mkpath("launch") && QDir(dir.path()).mkpath("user"));
    QProcess process;  // killed as it goes, should it outlive the test
    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    env.insert("QT_QPA_PLATFORM", "offscreen");
    env.insert("SONARIUM_AUDIO", "null");
    env.insert("HOME", path("user"));
    env.remove("SONARIUM_HOME");
    env.remove("DBUS_SESSION_BUS_ADDRESS");  // no media controls
    process.setProcessEnvironment(env);
    process.setWorkingDirectory(path("launch"));
    process.setProcessChannelMode(QProcess::ForwardedChannels);
    // A song that isn't there: "Open failed ... Retry?" stays up.
    process.start(QStringLiteral(SONARIUM_PROGRAM), {"Missing.MP3"});
    ASSERT_TRUE(process.waitForStarted());
    const QString own = "user/Sonarium";
    ASSERT_TRUE(QTest::qWaitFor([&] { return read(own + "/Debug.dat").contains("Init 7"); }, 20000));
    QTest::qSleep(300);
    ASSERT_EQ(process.state(), QProcess::Running);

    // It ends in time, by itself and without error.
    ::kill(pid_t(process.processId()), SIGTERM);
    ASSERT_TRUE(process.waitForFinished(5000));
    EXPECT_EQ(process.exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(process.exitCode(), 0);
    expectSettingsSavedWith("Missing", own);
    EXPECT_TRUE(read(own + "/Mixer.dat").contains((path("launch") + "/\r\n").toUtf8()));
    EXPECT_TRUE(QFile::exists(path(own + "/SonariumData.mdb")));
    EXPECT_TRUE(QDir(path("launch")).isEmpty());
    EXPECT_EQ(QDir(path("user")).entryList(QDir::AllEntries | QDir::NoDotAndDotDot), QStringList{"Sonarium"});
}

}  // namespace
