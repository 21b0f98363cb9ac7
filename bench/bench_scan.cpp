// The library scanner on a large tree, measured against a bare loop that reads the same
// files' tags and lengths through the same player, in the same run, so the result does not
// depend on the machine. The outside tool `id3v2 -l` reading the same tags is shown for scale.
//
// One short MP3 is made with LAME and copied into a tree laid out as a music collection is, an
// artist's directory holding albums of 12 songs, each copy with its own tag in its last 128 bytes.
// Then, in turn:
//   bare   for each file: Open, the six tag reads and Length, Close (the files listed first)
//   scan   the scan command from the top of the tree with sub-directories, into a new library:
//          the walk, the known-name search, one record added per file, committed per directory
//   tool   `id3v2 -l` over the same files, 500 names a run
// The bare loop runs before and after the scan and its best time counts, so the page cache
// favours neither. Ratio = scan / bare; the goal is under 2.
//
// Usage: bench_scan [files]   (10,000 by default)
#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <chrono>
#include <cstdio>
#include <functional>
#include <memory>

#include "engine/data/SqliteDataControl.h"
#include "BenchClock.h"
#include "fixtures/Mp3Fixtures.h"
#include "fixtures/PlayerHarness.h"
#include "fixtures/RealPlayerProgram.h"
#include "fixtures/ToolRunner.h"

using namespace sonarium;
using namespace sonarium::fixtures;

namespace {

using bench::timeMs;

QStringList makeTree(const QString& root, int files) {
    Mp3Recipe recipe;
    recipe.rate = 22050;
    recipe.channels = 1;
    recipe.kbps = 32;
    recipe.seconds = 1.0;
    const QByteArray audio = untaggedMp3(root + QStringLiteral("/base.bin"), recipe);
    if (audio.isEmpty()) return {};
    QStringList made;
    for (int i = 0; i < files; ++i) {
        const QString sub = QStringLiteral("%1/Artist %2/Album %3")
                                .arg(root)
                                .arg(i / 120, 3, 10, QLatin1Char('0'))
                                .arg(i / 12, 4, 10, QLatin1Char('0'));
        QDir().mkpath(sub);
        const QString file = QStringLiteral("%1/Song %2.MP3").arg(sub).arg(i, 5, 10, QLatin1Char('0'));
        QFile out(file);
        out.open(QIODevice::WriteOnly);
        out.write(audio + id3v1Block("Title " + QByteArray::number(i), "Artist " + QByteArray::number(i / 120),
                                     "Album " + QByteArray::number(i / 12), "1999",
                                     "Comment " + QByteArray::number(i), static_cast<unsigned char>(i % 80)));
        made << file;
    }
    return made;
}

// What the scan reads of each file, without the walk and the library.
double bareLoop(const QStringList& files) {
    PlayerHarness harness;
    Mp3Play& mp3 = harness.player;
    qint64 sink = 0;
    const double ms = timeMs([&] {
        for (const QString& f : files) {
            mp3.Open(f, QString());
            sink += mp3.TagTitle().size() + mp3.TagArtist().size() + mp3.TagYear() + mp3.TagAlbum().size() +
                    mp3.TagComment().size() + mp3.GenreName(mp3.TagGenre()).size();
            sink += qint64(mp3.Length());
            mp3.Close();
        }
    });
    if (sink == 42) std::puts("");
    return ms;
}

// The scan command over the drive `root`, into a new library in `home`; `message` gets the
// count message.
double scan(const QString& root, const QString& home, QString& message) {
    const QString before = QDir::currentPath();
    QDir::setCurrent(home);
    RealPlayerProgram<SqliteDataControl> parts{std::chrono::minutes(30)};
    parts.dialogs.setAutoAnswerOk(true);
    // The tree is a drive of its own, as a music disk would be: the walk starts at its top,
    // which is the drive's current directory.
    parts.volumes.add(root, QStringLiteral("Music"));
    Program& program = parts.start(home);
    program.form1.Form_Activate();
    FrmGeneral& g = program.frmGeneral;
    parts.loop.post([&] {
        g.Activate();
        g.Drive1.setDrive(root);
        g.chkSubs.setValue(1);
        g.cmdOK.Click();
    });
    const double ms = timeMs([&] { program.form1.cmdSearch.Click(); });
    message = parts.dialogs.texts().value(0);
    parts.program.reset();
    QDir::setCurrent(before);
    return ms;
}

double tool(const QStringList& files) {
    return timeMs([&] {
        for (int i = 0; i < files.size(); i += 500) runTool(QStringList{"id3v2", "-l"} + files.mid(i, 500), 300);
    });
}

}  // namespace

int main(int argc, char** argv) {
    QCoreApplication app(argc, argv);
    const int count = argc > 1 ? std::atoi(argv[1]) : 10000;
    QTemporaryDir home;
    const QString root = home.filePath(QStringLiteral("Music"));
    QDir().mkpath(root);
    std::printf("making %d files...\n", count);
    const QStringList files = makeTree(root, count);
    if (files.size() != count) {
        std::fprintf(stderr, "could not make the files\n");
        return 1;
    }
    const double bare1 = bareLoop(files);
    QString message;
    const double scanned = scan(root, home.path(), message);
    const double bare2 = bareLoop(files);
    const double id3v2 = tool(files);
    const double bare = std::min(bare1, bare2);
    std::printf("files            %d (%s)\n", count, qPrintable(message));
    std::printf("bare tag loop    %8.1f ms  (%.3f ms a file; runs %.1f, %.1f)\n", bare, bare / count, bare1, bare2);
    std::printf("scan             %8.1f ms  (%.3f ms a file)\n", scanned, scanned / count);
    std::printf("id3v2 -l         %8.1f ms  (outside tool, tags only)\n", id3v2);
    std::printf("ratio scan/bare  %8.2f  (goal < 2)\n", scanned / bare);
    return 0;
}
