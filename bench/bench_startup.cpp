// Start-up of the real program with a long queue, against start-up with an empty one, in one
// run, so the result does not depend on the machine. The program is the one the user runs:
// its windows on Qt's offscreen platform, the real player (on the null output), library and
// mixer, started in a folder of its own as the README starts it.
//
// One song of 3 minutes at 128 kbit/s, constant bit rate with its Info frame, is made by the
// `lame` tool once and copied, tagged, under as many names as the queue holds, with the lower-case
// extension most collections have: the program names a row's file with ".MP3", so each is
// found without regard to case in a folder of all of them. Then, in turn:
//   empty  start-up with a Mixer.dat that holds no queue
//   queue  start-up with the songs queued in Mixer.dat, which adds up the queue's time
//   click  a mouse click on the queue's first row, which adds it up again and loads the song
// Start-up is timed as the user meets it: from launching the program as a process of its own
// (this executable again, running what main() runs) until its entry procedure is over and the
// events it left, the window's first activation that opens the library, are handled. The click
// is timed inside that process, from the mouse press until its events are handled. Each is the
// best of three runs after a warm-up start; the goal is queue and click each within 1.5 times
// the empty start.
//
// Usage: bench_startup [songs]   (500 by default, the queue's size)
#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QListWidget>
#include <QMouseEvent>
#include <QProcess>
#include <QTemporaryDir>
#include <QTimer>
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <functional>

#include "app/Application.h"
#include "fixtures/Id3v1Block.h"
#include "fixtures/Mp3Fixtures.h"
#include "fixtures/ToolRunner.h"
#include "ui/GeneralWindow.h"
#include "ui/MainWindow.h"

using namespace sonarium;
using namespace sonarium::fixtures;

namespace {

// The song as the `lame` tool makes it from raw samples: its Info frame comes with it.
QByteArray makeSong(const QString& scratch) {
    const std::vector<short> pcm = fixtureSignal(44100, 2, 180.0);
    QFile raw(scratch + QStringLiteral("/song.raw"));
    if (!raw.open(QIODevice::WriteOnly)) return {};
    raw.write(reinterpret_cast<const char*>(pcm.data()), qint64(pcm.size() * sizeof(short)));
    raw.close();
    const QString mp3 = scratch + QStringLiteral("/song.mp3");
    if (runTool({"lame", "--quiet", "-r", "-s", "44.1", "--bitwidth", "16", "--signed", "--little-endian",
                 "-m", "j", "-b", "128", "--cbr", raw.fileName(), mp3},
                300) != 0)
        return {};
    QFile made(mp3);
    if (!made.open(QIODevice::ReadOnly)) return {};
    return made.readAll() + id3v1Block("Evening Song", "The Band", "Long Queue", "2001", "bench", 17);
}

// Mixer.dat with the default levels and `songs` queued (none when empty).
bool writeMixer(const QString& home, const QStringList& songs) {
    QByteArray text = " 35 \r\n 50 \r\n 50 \r\n 0 \r\n 0 \r\n";
    for (const QString& song : songs) {
        const int slash = int(song.lastIndexOf(u'/'));
        text += song.left(slash + 1).toUtf8() + "\r\n" + song.mid(slash + 1).chopped(4).toUtf8() + "\r\n";
    }
    QFile f(home + QStringLiteral("/Mixer.dat"));
    return f.open(QIODevice::WriteOnly) && f.write(text) == text.size();
}

void settle() {
    for (int i = 0; i < 5; ++i) QCoreApplication::processEvents();
}

// The program as main() runs it, in the current directory, in this process; it writes "ready"
// once it has started and, with `click`, the time of a click on the queue's first row.
int runProgram(int argc, char** argv, bool click) {
    Application::prepareProcess();
    QApplication app(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    Application program(QString(), QDir::currentPath());
    program.start();
    // Started: the main window is up and the splash is gone, so the entry procedure is over
    // (its splash lets events through, so a timer can fire inside it).
    std::function<void()> whenStarted = [&] {
        if (!program.views().main().isVisible() || program.views().general().isVisible())
            return QTimer::singleShot(1, whenStarted);
        settle();  // the window's first activation, which opens the library
        std::printf("ready\n");
        std::fflush(stdout);
        auto* queue = program.views().main().findChild<QListWidget*>(QStringLiteral("lstSongs"));
        if (click && queue && queue->count() > 0) {
            QWidget* surface = queue->viewport();
            const QPointF at = queue->visualItemRect(queue->item(0)).center();
            QElapsedTimer clock;
            clock.start();
            for (QEvent::Type type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
                const Qt::MouseButtons held =
                    type == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton;
                QMouseEvent e(type, at, surface->mapToGlobal(at), Qt::LeftButton, held, Qt::NoModifier);
                QCoreApplication::sendEvent(surface, &e);
            }
            settle();
            std::printf("click %.3f\n", double(clock.nsecsElapsed()) / 1e6);
        }
        std::fflush(stdout);
        std::_Exit(0);  // as the process ends: nothing is saved over the prepared files
    };
    QTimer::singleShot(0, whenStarted);
    return app.exec();
}

struct Times {
    double start = 0, click = 0;
};

// One start of the program in `home` as its own process, timed from its launch to "ready".
Times startOnce(const QString& self, const QString& home, const QStringList& songs, bool& ok) {
    Times t;
    ok = writeMixer(home, songs);
    QFile::remove(home + QStringLiteral("/Config.dat"));
    QProcess child;
    child.setWorkingDirectory(home);
    child.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    QElapsedTimer clock;
    clock.start();
    child.start(self, {QStringLiteral("--run"), songs.isEmpty() ? QStringLiteral("0") : QStringLiteral("1")});
    QByteArray out;
    while (!out.contains("ready\n") && child.waitForReadyRead(600000)) out += child.readAllStandardOutput();
    t.start = double(clock.nsecsElapsed()) / 1e6;
    child.waitForFinished(600000);
    out += child.readAllStandardOutput();
    const qsizetype at = out.indexOf("click ");
    if (at >= 0) t.click = out.mid(at + 6).trimmed().toDouble();
    ok = ok && out.contains("ready\n") && (songs.isEmpty() || at >= 0);
    return t;
}

}  // namespace

int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("SONARIUM_AUDIO", "null");
    if (argc == 3 && std::strcmp(argv[1], "--run") == 0) return runProgram(1, argv, argv[2][0] == '1');
    QCoreApplication app(argc, argv);
    const int count = argc > 1 ? std::atoi(argv[1]) : 500;
    const QString self = QCoreApplication::applicationFilePath();

    QTemporaryDir work;
    const QString home = work.filePath(QStringLiteral("home")),
                  music = work.filePath(QStringLiteral("Music"));
    QDir().mkpath(home);
    QDir().mkpath(music);
    std::printf("making %d songs...\n", count);
    const QByteArray song = makeSong(work.path());
    if (song.isEmpty()) {
        std::fprintf(stderr, "could not make the song with lame\n");
        return 1;
    }
    QStringList songs;
    for (int i = 0; i < count; ++i) {
        QFile f(QStringLiteral("%1/Song %2.mp3").arg(music).arg(i, 3, 10, QLatin1Char('0')));
        if (!f.open(QIODevice::WriteOnly) || f.write(song) != song.size()) {
            std::fprintf(stderr, "could not write %s\n", qPrintable(f.fileName()));
            return 1;
        }
        songs << f.fileName();
    }

    bool ok = true, all = true;
    startOnce(self, home, {}, ok);  // warm-up: the library is made, the program's files are in memory
    Times empty{1e300, 0}, queued{1e300, 1e300};
    for (int round = 0; round < 3; ++round) {
        empty.start = std::min(empty.start, startOnce(self, home, {}, ok).start);
        all = all && ok;
        const Times q = startOnce(self, home, songs, ok);
        all = all && ok;
        queued.start = std::min(queued.start, q.start);
        queued.click = std::min(queued.click, q.click);
    }
    if (!all) std::fprintf(stderr, "a start did not get ready, or the queue did not come back\n");
    std::printf("songs             %d of %.2f MB (3 min, 128 kbit/s CBR with Info frame)\n", count,
                double(song.size()) / 1e6);
    std::printf("empty start       %8.1f ms\n", empty.start);
    std::printf("start with queue  %8.1f ms  ratio %6.2f  (goal <= 1.5)\n", queued.start,
                queued.start / empty.start);
    std::printf("click on row 1    %8.1f ms  ratio %6.2f  (goal <= 1.5)\n", queued.click,
                queued.click / empty.start);
    return all ? 0 : 1;
}
