// The media controls on a private session bus, driven by the desktop's own command-line
// client: a command reaches the program, and a property shows a pause made in the window.
// What each command does and what each property holds is MediaControlsTest's to check; the
// program without a bus runs in program_process_test.
#include <QtCore/qtestsupport_core.h>

#include <QDBusConnection>
#include <QProcess>
#include <QStandardPaths>

#include "WindowsFixture.h"
#include "ui/mpris/MprisService.h"

using namespace sonarium;

namespace {

constexpr int TimeoutMs = 20000;

using MprisTest = WindowsFixture;

TEST_F(MprisTest, TheDesktopsClientPlaysAndReadsTheStatus) {
    if (QStandardPaths::findExecutable("dbus-daemon").isEmpty() ||
        QStandardPaths::findExecutable("playerctl").isEmpty())
        GTEST_SKIP() << "dbus-daemon and playerctl are needed (tools/common.sh installs them)";
    QProcess daemon;  // killed as it goes, after the service and the connection
    daemon.start("dbus-daemon", {"--session", "--nofork", "--print-address"});
    ASSERT_TRUE(daemon.waitForReadyRead(TimeoutMs)) << "the private bus did not start";
    const QString address = QString::fromUtf8(daemon.readLine()).trimmed();
    QDBusConnection bus = QDBusConnection::connectToBus(address, "mpris-test");
    ASSERT_TRUE(bus.isConnected());

    program().Main();
    tc.mp3.addFile(path("Blue Night.MP3"), 7800, 204.0f);
    form1().AddToQueue("Blue Night", dir.path() + "/");
    MediaControls controls(form1());
    const std::unique_ptr<MprisService> service = MprisService::start(controls, {&main()}, bus);
    ASSERT_NE(service, nullptr);

    // One run of the desktop's client, on the private bus, against this program; its output.
    auto playerctl = [&](const QString& command) {
        QProcess p;
        QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
        env.insert("DBUS_SESSION_BUS_ADDRESS", address);
        p.setProcessEnvironment(env);
        p.start("playerctl", {"-p", "sonarium", command});
        EXPECT_TRUE(QTest::qWaitFor([&] { return p.state() == QProcess::NotRunning; }, TimeoutMs))
            << command.toStdString();
        EXPECT_EQ(p.exitCode(), 0) << command.toStdString() << ": " << p.readAllStandardError().toStdString();
        return QString::fromUtf8(p.readAllStandardOutput()).trimmed();
    };
    playerctl("play-pause");
    EXPECT_TRUE(M().SongPlaying);
    form1().BtnPause.MouseUp(LeftButton, 0, 0, 0);
    EXPECT_EQ(playerctl("status"), "Paused");
}

}  // namespace
