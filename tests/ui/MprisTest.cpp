// The media controls on a private session bus, driven by the desktop's own command-line
// client: a command reaches the program, and the status, read and then followed, changes
// with a pause made in the window. What each command does and what each property holds is
// MediaControlsTest's to check; the program without a bus runs in program_process_test.
#include <QDBusConnection>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QProcess>
#include <QStandardPaths>
#include <QTimer>

#include "WindowsFixture.h"
#include "ui/mpris/MprisService.h"

using namespace sonarium;

namespace {

constexpr int TimeoutMs = 20000;

// Lets Qt run (the service answers on this thread) until `done` or the timeout.
bool spinUntil(const std::function<bool()>& done) {
    QElapsedTimer clock;
    clock.start();
    while (!done()) {
        if (clock.elapsed() > TimeoutMs) return false;
        QEventLoop loop;
        QTimer::singleShot(10, &loop, &QEventLoop::quit);
        loop.exec();
    }
    return true;
}

class MprisTest : public WindowsFixture {
protected:
    void SetUp() override {
        WindowsFixture::SetUp();
        if (QStandardPaths::findExecutable("dbus-daemon").isEmpty() ||
            QStandardPaths::findExecutable("playerctl").isEmpty())
            GTEST_SKIP() << "dbus-daemon and playerctl are needed (tools/common.sh installs them)";
        daemon.start("dbus-daemon", {"--session", "--nofork", "--print-address"});
        ASSERT_TRUE(daemon.waitForReadyRead(TimeoutMs)) << "the private bus did not start";
        address = QString::fromUtf8(daemon.readLine()).trimmed();
        bus = std::make_unique<QDBusConnection>(QDBusConnection::connectToBus(address, "mpris-test"));
        ASSERT_TRUE(bus->isConnected());

        program().Main();
        settle();
        tc.mp3.addFile(path("Blue Night.MP3"), 7800, 204.0f);
        form1().AddToQueue("Blue Night", dir.path() + "/");
        controls = std::make_unique<MediaControls>(form1());
        service = MprisService::start(*controls, {&main()}, *bus);
        ASSERT_NE(service, nullptr);
    }
    void TearDown() override {
        service.reset();
        if (bus) QDBusConnection::disconnectFromBus("mpris-test");
        daemon.kill();
        daemon.waitForFinished();
        WindowsFixture::TearDown();
    }

    // The desktop's client, on the private bus, against this program.
    void startClient(QProcess& p, const QStringList& args) {
        QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
        env.insert("DBUS_SESSION_BUS_ADDRESS", address);
        p.setProcessEnvironment(env);
        p.start("playerctl", QStringList{"-p", "sonarium"} + args);
    }

    QProcess daemon;
    QString address;
    std::unique_ptr<QDBusConnection> bus;
    std::unique_ptr<MediaControls> controls;
    std::unique_ptr<MprisService> service;
};

TEST_F(MprisTest, TheDesktopsClientPlaysAndFollowsTheStatus) {
    QProcess command;
    startClient(command, {"play-pause"});
    ASSERT_TRUE(spinUntil([&] { return command.state() == QProcess::NotRunning; }));
    EXPECT_EQ(command.exitCode(), 0) << command.readAllStandardError().toStdString();
    EXPECT_TRUE(M().SongPlaying);

    // A client that follows the player hears of a pause made in the window.
    QProcess follower;
    startClient(follower, {"--follow", "status"});
    QByteArray heard;
    auto hears = [&](const char* line) {
        return spinUntil([&] {
            heard += follower.readAllStandardOutput();
            return heard.contains(line);
        });
    };
    EXPECT_TRUE(hears("Playing\n"));
    form1().BtnPause.MouseUp(LeftButton, 0, 0, 0);
    EXPECT_TRUE(hears("Paused\n")) << heard.toStdString();
    follower.kill();
    follower.waitForFinished();
}

}  // namespace
