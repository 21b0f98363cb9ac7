// The library scanner on a music collection of realistic songs, against the floor of what
// finding a song's tag and length must read, in the same run, so the result does not depend
// on the machine.
//
// The collection: 24 distinct songs ("masters") encoded with LAME at the start, 1 to 5 minutes
// long, 128 to 320 kbit/s, CBR with and without an Info frame and VBR with its Xing frame, half
// of them tagged. VBR files without a header are left out: only a scan of every frame tells
// their length, whatever reads them. The tree holds 2,000 files as a collection is laid out, an
// artist's folder holding albums of 12 songs, each file a copy of a master with an ID3v1 tag of
// its own (about 10 GB: every file is its own data on the disk, as in a real collection).
// Then, in turn:
//   floor  for each file: open, read its first 4 KiB and its last 128 bytes, close (POSIX)
//   scan   the scan command from the top of the tree with sub-directories, into a new library:
//          the walk, the player's Open with the tag and length, one record per file
// Twice: with the files in memory (warm), the floor before and after the scan and its best
// time counting, so the page cache favours neither; and, where the process may empty the
// system's page cache (root), from the disk (cold), each run after the cache was emptied.
// Ratio = scan / floor; the goal is under 3.
//   sqlite3  the sqlite3 tool writing the records the scan made into a new library of the same
//          schema, a transaction per folder as the scan commits them: what any program that
//          keeps these records pays on top of reading the files, whatever else it does
//
// Then the walk alone on a wide tree: one folder holding N album folders of one song each,
// scanned with sub-directories for N = 1,500 and 3,000. A walk that grows linearly with the
// folders takes about twice as long for twice as many.
//
// Usage: bench_scan [files [flat]]   (2,000 files, a flat tree of 1,500 then 3,000; flat 0 skips it)
#include <fcntl.h>
#include <unistd.h>

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <thread>
#include <vector>

#include "BenchClock.h"
#include "engine/data/SqliteDataControl.h"
#include "fixtures/Id3v1Block.h"
#include "fixtures/Mp3Fixtures.h"
#include "fixtures/RealPlayerProgram.h"
#include "fixtures/ToolRunner.h"

using namespace sonarium;
using namespace sonarium::fixtures;

namespace {

using bench::timeMs;

constexpr int kMasters = 24;

Mp3Recipe masterRecipe(int i) {
    static const int rates[] = {128, 160, 192, 256, 320};
    Mp3Recipe r;
    r.name = "master";
    r.seconds = 60 + (i * 97) % 241;  // 1 to 5 minutes, spread
    r.rate = i % 4 == 3 ? 48000 : 44100;
    r.kbps = rates[i % 5];
    r.vbr = i % 3 == 2;
    r.vbrQuality = 2 + i % 5;
    r.info = i % 3 == 0;  // the other CBR third has no Info frame
    r.id3v1 = i % 2 == 0;
    return r;
}

// Encodes the masters on two threads; empty on failure.
QStringList makeMasters(const QString& dir) {
    QStringList paths;
    for (int i = 0; i < kMasters; ++i) paths << QStringLiteral("%1/master%2.mp3").arg(dir).arg(i);
    std::vector<char> ok(kMasters, 0);
    auto encode = [&](int from) {
        for (int i = from; i < kMasters; i += 2) ok[i] = makeMp3(paths[i], masterRecipe(i));
    };
    std::thread other(encode, 1);
    encode(0);
    other.join();
    return std::all_of(ok.begin(), ok.end(), [](char c) { return c != 0; }) ? paths : QStringList();
}

bool hardLink(const QString& target, const QString& name) {
    return ::link(QFile::encodeName(target).constData(), QFile::encodeName(name).constData()) == 0;
}

// Each song a file of its own: the master's audio and a tag naming this song.
QStringList makeCollection(const QString& root, const QStringList& masters, int files) {
    std::vector<QByteArray> audio;
    for (const QString& m : masters) {
        QFile f(m);
        if (!f.open(QIODevice::ReadOnly)) return {};
        QByteArray bytes = f.readAll();
        if (bytes.size() >= 128 && bytes.right(128).startsWith("TAG")) bytes.chop(128);
        audio.push_back(bytes);
    }
    QStringList made;
    for (int i = 0; i < files; ++i) {
        const QString album = QStringLiteral("%1/Artist %2/Album %3")
                                  .arg(root)
                                  .arg(i / 24, 3, 10, QLatin1Char('0'))
                                  .arg(i / 12, 4, 10, QLatin1Char('0'));
        const QString file = QStringLiteral("%1/Song %2.mp3").arg(album).arg(i, 5, 10, QLatin1Char('0'));
        QFile out(file);
        const QByteArray tag =
            id3v1Block("Song " + QByteArray::number(i), "Artist " + QByteArray::number(i / 24),
                       "Album " + QByteArray::number(i / 12), "2001", "", std::uint8_t(i % 80));
        const QByteArray& a = audio[std::size_t(i) % audio.size()];
        if (!QDir().mkpath(album) || !out.open(QIODevice::WriteOnly) || out.write(a) != a.size() ||
            out.write(tag) != tag.size())
            return {};
        made << file;
    }
    return made;
}

qint64 bytesOf(const QStringList& files) {
    qint64 total = 0;
    for (const QString& f : files) total += QFileInfo(f).size();
    return total;
}

// Empties the system's page cache, so that what follows reads from the disk. Needs root.
bool dropCaches() {
    ::sync();
    QFile drop(QStringLiteral("/proc/sys/vm/drop_caches"));
    return drop.open(QIODevice::WriteOnly) && drop.write("3\n") == 2 && drop.flush();
}

bool makeFlat(const QString& root, const QString& master, int albums) {
    for (int i = 0; i < albums; ++i) {
        const QString album = QStringLiteral("%1/Album %2").arg(root).arg(i, 5, 10, QLatin1Char('0'));
        if (!QDir().mkpath(album) || !hardLink(master, album + QStringLiteral("/Song.mp3"))) return false;
    }
    return true;
}

// The least a scan must read of each file: where the audio and a header start, and the tag.
double floorLoop(const QStringList& files) {
    std::vector<QByteArray> names;
    for (const QString& f : files) names.push_back(QFile::encodeName(f));
    char buffer[4096];
    long sink = 0;
    const double ms = timeMs([&] {
        for (const QByteArray& name : names) {
            const int fd = ::open(name.constData(), O_RDONLY);
            if (fd < 0) continue;
            sink += ::read(fd, buffer, sizeof buffer);
            if (::lseek(fd, -128, SEEK_END) >= 0) sink += ::read(fd, buffer, 128);
            ::close(fd);
        }
    });
    if (sink == 42) std::puts("");
    return ms;
}

// The scan command over the drive `root`, into a new library in `home`; `message` gets the
// count message.
double scan(const QString& root, const QString& home, QString& message) {
    RealPlayerProgram<SqliteDataControl> parts{std::chrono::minutes(30)};
    parts.dialogs.setAutoAnswerOk(true);
    // The tree is a drive of its own, as a music disk would be: the walk starts at its top.
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
    return ms;
}

// A scan of a tree made by `make` in a fresh folder, with a library of its own.
double scanFresh(const QString& base, const QString& name, QString& message, const QString& run = {}) {
    const QString home = QStringLiteral("%1/%2-home%3").arg(base, name, run);
    QDir().mkpath(home);
    return scan(QStringLiteral("%1/%2").arg(base, name), home, message);
}

bool writeFile(const QString& name, const QByteArray& bytes) {
    QFile f(name);
    return f.open(QIODevice::WriteOnly) && f.write(bytes) == bytes.size();
}

// The sqlite3 tool inserting the records of `library` into a new library of the same schema
// and page size, on the write-ahead log, committing whenever the folder changes; -1 on failure.
double sqliteInserts(const QString& library, const QString& dir) {
    const QString query = QStringLiteral(
        "SELECT CASE WHEN lag(Path) OVER (ORDER BY rowid) IS NOT Path AND rowid > 1 THEN 'COMMIT;BEGIN;' "
        "ELSE '' END || 'INSERT INTO SongData VALUES(' || quote(Path) || ',' || quote(File) || ',' || "
        "quote(\"Song Title\") || ',' || quote(Artist) || ',' || quote(Album) || ',' || quote(Comment) || "
        "',' || quote(Genre) || ',' || quote(Duration) || ',' || quote(Year) || ',' || quote(Tempo) || ',' "
        "|| quote(Lyricist) || ',' || quote(Composer) || ',' || quote(Key) || ',' || quote(\"Web Address\") "
        "|| ',' || quote(\"E-Mail\") || ',' || quote(Info) || ',' || quote(\"Path\\File\") || ');' "
        "FROM SongData ORDER BY rowid");
    QByteArray schema, inserts;
    const QString fresh = dir + QStringLiteral("/reference.db");
    const QString schemaFile = dir + QStringLiteral("/schema.sql"),
                  insertFile = dir + QStringLiteral("/inserts.sql");
    if (fixtures::runTool({"sqlite3", library, ".schema"}, 60, &schema) != 0 ||
        fixtures::runTool({"sqlite3", library, query}, 60, &inserts) != 0 ||
        !writeFile(schemaFile, "PRAGMA page_size=1024;\n" + schema + "PRAGMA journal_mode=WAL;\n") ||
        !writeFile(insertFile, "PRAGMA synchronous=NORMAL;\nBEGIN;\n" + inserts + "COMMIT;\n") ||
        fixtures::runTool({"sqlite3", fresh, ".read " + schemaFile}) != 0)
        return -1;
    int status = -1;
    const double ms = timeMs([&] {
        status = fixtures::runTool({"sqlite3", fresh, ".read " + insertFile}, 60);
    });
    return status == 0 ? ms : -1;
}

}  // namespace

int main(int argc, char** argv) {
    QCoreApplication app(argc, argv);
    const int count = argc > 1 ? std::max(1, std::atoi(argv[1])) : 2000;
    const int flat = argc > 2 ? std::max(0, std::atoi(argv[2])) : 1500;
    QTemporaryDir base;
    const QString masterDir = base.filePath(QStringLiteral("masters"));
    QDir().mkpath(masterDir);
    std::printf("encoding %d songs of 1 to 5 minutes...\n", kMasters);
    const QStringList masters = makeMasters(masterDir);
    const QStringList files = masters.isEmpty()
                                  ? QStringList()
                                  : makeCollection(base.filePath(QStringLiteral("Music")), masters, count);
    if (files.size() != count || !makeFlat(base.filePath(QStringLiteral("Flat1")), masters[0], flat) ||
        !makeFlat(base.filePath(QStringLiteral("Flat2")), masters[0], 2 * flat)) {
        std::fprintf(stderr, "could not make the files\n");
        return 1;
    }

    // Folder lists keep a directory's listing once it was read a tick of the file system's
    // clock after the directory's last change, up to two seconds where times are whole
    // seconds; a collection is rarely scanned the moment it was copied.
    std::this_thread::sleep_for(std::chrono::milliseconds(2500));
    const double floor1 = floorLoop(files);
    QString message;
    const double scanned = scanFresh(base.path(), QStringLiteral("Music"), message);
    const double floor2 = floorLoop(files);
    const double floor = std::min(floor1, floor2);
    std::printf("files            %d, copies of %d songs with tags of their own, %.1f GB (%s)\n", count,
                kMasters, double(bytesOf(files)) / 1e9, qPrintable(message));
    std::printf("warm floor       %8.1f ms  (%.4f ms a file; runs %.1f, %.1f)\n", floor, floor / count,
                floor1, floor2);
    std::printf("warm scan        %8.1f ms  (%.4f ms a file)\n", scanned, scanned / count);
    std::printf("ratio warm       %8.2f  (goal < 3)\n", scanned / floor);
    const QString library = base.filePath(QStringLiteral("Music-home/SonariumData.mdb"));
    const double inserts = sqliteInserts(library, base.path());
    std::printf("sqlite3 inserts  %8.1f ms  (the same records by the sqlite3 tool, a commit per folder)\n",
                inserts);
    std::printf("ratio warm       %8.2f  against floor + sqlite3 inserts\n", scanned / (floor + inserts));
    if (dropCaches()) {
        const double coldFloor = floorLoop(files);
        dropCaches();
        QString coldMessage;
        const double coldScan =
            scanFresh(base.path(), QStringLiteral("Music"), coldMessage, QStringLiteral("cold"));
        std::printf("cold floor       %8.1f ms  (%.4f ms a file)\n", coldFloor, coldFloor / count);
        std::printf("cold scan        %8.1f ms  (%.4f ms a file; %s)\n", coldScan, coldScan / count,
                    qPrintable(coldMessage));
        std::printf("ratio cold       %8.2f  (goal < 3)\n", coldScan / coldFloor);
    } else {
        std::printf("cold             not measured: emptying the page cache needs root\n");
    }

    if (flat == 0) return 0;
    QString flatMessage1, flatMessage2;
    const double flat1 = scanFresh(base.path(), QStringLiteral("Flat1"), flatMessage1);
    const double flat2 = scanFresh(base.path(), QStringLiteral("Flat2"), flatMessage2);
    std::printf("flat %5d       %8.1f ms  (%s)\n", flat, flat1, qPrintable(flatMessage1));
    std::printf("flat %5d       %8.1f ms  (%s)\n", 2 * flat, flat2, qPrintable(flatMessage2));
    std::printf("ratio flat       %8.2f  (linear: about 2)\n", flat2 / flat1);
    return 0;
}
