// A scan of a generated tree of tagged MP3 files through the real player into the real
// library: every column of every record, and the sqlite3 tool's count of the file.
#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QHash>
#include <QSet>
#include <QTemporaryDir>
#include <memory>

#include "TestComponents.h"
#include "engine/audio/NullSink.h"
#include "engine/audio/SoundProcessor.h"
#include "engine/data/SqliteDataControl.h"
#include "engine/id3/Id3v1Genres.h"
#include "engine/player/Mp3Play.h"
#include "fixtures/Mp3Fixtures.h"
#include "fixtures/ThreadedTestLoop.h"
#include "fixtures/ToolRunner.h"
#include "shell/Program.h"

using namespace sonarium;
using namespace sonarium::fixtures;

namespace {

struct Expected {
    QString path, file, title, artist, album, comment, genre, year;
};

class ScanIntegration : public ::testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(dir.isValid());
        volumes.add(QStringLiteral("/"));
        previous = QDir::currentPath();
        QDir::setCurrent(dir.path());
        makeTree();
        components = std::make_unique<Components>(Components{
            loop, dialogs, desktop, pictures, volumes, mp3, mp32, encoder, cd, mixer, peak, data, processes,
            QString(), dir.path()});
        program = std::make_unique<Program>(*components);
        program->Main();
        program->form1.Form_Activate();  // attaches the library
        dialogs.setAutoAnswerOk(true);
    }
    void TearDown() override {
        program.reset();
        QDir::setCurrent(previous);
    }

    // One two-second file made by the encoder, copied with its last 128 bytes replaced by
    // each song's own tag: 6 directories of 50 songs, some in lower case, some with texts of
    // the tag's code page.
    void makeTree() {
        Mp3Recipe recipe;
        recipe.rate = 22050;
        recipe.channels = 1;
        recipe.kbps = 32;
        recipe.id3v1 = true;
        const QString base = dir.filePath(QStringLiteral("base.bin"));
        ASSERT_TRUE(makeMp3(base, recipe));
        QFile in(base);
        ASSERT_TRUE(in.open(QIODevice::ReadOnly));
        const QByteArray audio = in.readAll().chopped(128);
        for (int d = 0; d < 6; ++d) {
            const QString sub = d < 3 ? QStringLiteral("Disc %1").arg(d) : QStringLiteral("Disc 1/Part %1").arg(d);
            ASSERT_TRUE(QDir(dir.path()).mkpath(sub));
            for (int n = 0; n < 50; ++n) {
                const int i = d * 50 + n;
                const QString name = QStringLiteral("Song %1").arg(i, 3, 10, QLatin1Char('0'));
                const QString file = dir.filePath(sub + u'/' + name + (i % 7 == 0 ? ".mp3" : ".MP3"));
                const QByteArray title = "Title " + QByteArray::number(i);
                const QByteArray artist = i % 5 == 0 ? QByteArray("Beyonc\xe9") : "Artist " + QByteArray::number(i % 13);
                const QByteArray album = "Album " + QByteArray::number(i % 17);
                const QByteArray year = QByteArray::number(1970 + i % 50);
                const QByteArray comment = i % 3 == 0 ? QByteArray() : "Comment " + QByteArray::number(i);
                const int genre = i % 80;
                QFile out(file);
                ASSERT_TRUE(out.open(QIODevice::WriteOnly));
                out.write(audio + id3v1Block(title, artist, album, year, comment, static_cast<unsigned char>(genre)));
                expected[file] = {dir.filePath(sub), name, QString::fromLatin1(title),
                                  QString::fromLatin1(artist), QString::fromLatin1(album), QString::fromLatin1(comment),
                                  id3v1GenreName(genre), QString::fromLatin1(year)};
            }
        }
        QFile::remove(base);
    }

    QTemporaryDir dir;
    QString previous;
    ThreadedTestLoop loop{std::chrono::seconds(60)};
    ScriptedDialogs dialogs;
    FakeDesktop desktop;
    FakePictureLoader pictures;
    FakeVolumes volumes;
    ToneSettings tone;
    PeakLevel level;
    Mp3Play mp3{loop, [] { return std::make_unique<NullSink>(); }, tone, level};
    FakePlayer mp32{loop};
    FakeEncoder encoder{loop};
    FakeCdReader cd{loop};
    FakeMixer mixer;
    FakePeakMeter peak;
    SqliteDataControl data;
    FakeProcesses processes{loop};
    std::unique_ptr<Components> components;
    std::unique_ptr<Program> program;
    QHash<QString, Expected> expected;
};

TEST_F(ScanIntegration, EveryTaggedFileOfTheTreeBecomesAFullRecord) {
    Form1& f = program->form1;
    FrmGeneral& g = program->frmGeneral;
    loop.post([&] {
        g.Activate();
        g.chkSubs.setValue(1);
        g.cmdOK.Click();
    });
    f.cmdSearch.Click();
    ASSERT_EQ(dialogs.texts(), QStringList({"300 new titles found"}));
    EXPECT_EQ(f.lblRecords.Caption(), "300");

    SqliteDataControl reader;
    reader.setDatabaseName(dir.filePath(QStringLiteral("SonariumData.mdb")));
    reader.setRecordSource(QStringLiteral("SongData"));
    reader.Refresh();
    Recordset& r = reader.recordset();
    auto text = [&](const char* column) { return r.Fields(QString::fromLatin1(column)).Value().toString(); };
    int rows = 0;
    QSet<QString> seen;
    for (; !r.EOF_(); r.MoveNext(), ++rows) {
        const QString key = text("Path\\File");
        ASSERT_TRUE(expected.contains(key)) << key.toStdString();
        EXPECT_FALSE(seen.contains(key));
        seen.insert(key);
        const Expected& e = expected[key];
        EXPECT_EQ(text("Path"), e.path);
        EXPECT_EQ(text("File"), e.file);
        EXPECT_EQ(text("Song Title"), e.title);
        EXPECT_EQ(text("Artist"), e.artist);
        EXPECT_EQ(text("Album"), e.album);
        EXPECT_EQ(text("Comment"), e.comment);
        EXPECT_EQ(text("Genre"), e.genre);
        EXPECT_EQ(text("Duration"), "00:02");
        EXPECT_EQ(text("Year"), e.year);
        for (const char* untouched : {"Tempo", "Lyricist", "Composer", "Key", "Web Address", "E-Mail", "Info"})
            EXPECT_TRUE(r.Fields(QString::fromLatin1(untouched)).Value().isNull()) << untouched;
    }
    EXPECT_EQ(rows, 300);

    QByteArray out;
    ASSERT_EQ(runToolCapture({"sqlite3", dir.filePath(QStringLiteral("SonariumData.mdb")),
                              "select count(*) from SongData"},
                             out),
              0);
    EXPECT_EQ(out.trimmed(), "300");

    // A second scan finds them all known.
    dialogs.clear();
    loop.post([&] {
        g.Activate();
        g.cmdOK.Click();
    });
    f.cmdSearch.Click();
    EXPECT_EQ(dialogs.texts(), QStringList({"0 new titles found"}));
}

}  // namespace
