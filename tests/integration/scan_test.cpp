// A scan of a generated tree of tagged MP3 files through the real player into the real
// library: every column the real player's reading fills, of every record. The walk's order,
// the counts and the columns left alone are the scanner's unit tests' matter.
#include <gtest/gtest.h>

#include <QFile>
#include <QHash>
#include <QTemporaryDir>

#include "engine/data/SqliteDataControl.h"
#include "engine/id3/Id3v1Genres.h"
#include "fixtures/Files.h"
#include "fixtures/Mp3Fixtures.h"
#include "fixtures/RealPlayerProgram.h"

using namespace sonarium;
using namespace sonarium::fixtures;

namespace {

// The columns the scan fills from a file, in the order `expected` holds their values.
const char* const columns[] = {"Path",    "File",  "Song Title", "Artist", "Album",
                               "Comment", "Genre", "Duration",   "Year"};

class ScanIntegration : public ::testing::Test, public RealPlayerProgram<SqliteDataControl> {
protected:
    ScanIntegration() : RealPlayerProgram(std::chrono::seconds(60)) {}

    void SetUp() override {
        ASSERT_TRUE(dir.isValid());
        makeTree();
        start(dir.path()).form1.Form_Activate();  // attaches the library
        dialogs.setAutoAnswerOk(true);
    }
    void TearDown() override { program.reset(); }

    // One two-second file made by the encoder, copied with each song's own tag after it: 300
    // songs, some in lower case, some with texts of the tag's code page. (The walk through
    // directories is the scanner's unit tests'.)
    void makeTree() {
        const QString base = dir.filePath(QStringLiteral("base.bin"));
        ASSERT_TRUE(makeMp3(base, {.rate = 22050, .channels = 1, .kbps = 32}));
        const QByteArray audio = fileBytes(base);
        QFile::remove(base);
        for (int i = 0; i < 300; ++i) {
            const QString name = QStringLiteral("Song %1").arg(i, 3, 10, QLatin1Char('0'));
            const QString file = dir.filePath(name + (i % 7 == 0 ? ".mp3" : ".MP3"));
            // Title, artist, album, comment, year.
            const QByteArrayList tag = {
                "Title " + QByteArray::number(i),
                i % 5 ? "Artist " + QByteArray::number(i % 13) : QByteArray("Beyonc\xe9"),
                "Album " + QByteArray::number(i % 17),
                i % 3 ? "Comment " + QByteArray::number(i) : QByteArray(), QByteArray::number(1970 + i % 50)};
            const int genre = i % 80;
            ASSERT_TRUE(writeFile(file, audio + id3v1Block(tag[0], tag[1], tag[2], tag[4], tag[3], genre)));
            QStringList row = {dir.path(), name};
            for (const QByteArray& text : tag.first(4)) row << QString::fromLatin1(text);
            expected[file] = row << id3v1GenreName(genre) << "00:02" << QString::fromLatin1(tag[4]);
        }
    }

    QTemporaryDir dir;
    QHash<QString, QStringList> expected;  // by key, the values of `columns`
};

TEST_F(ScanIntegration, EveryTaggedFileOfTheTreeBecomesAFullRecord) {
    Form1& f = program->form1;
    FrmGeneral& g = program->frmGeneral;
    loop.post([&] {
        g.Activate();
        g.cmdOK.Click();
    });
    f.cmdSearch.Click();
    ASSERT_EQ(dialogs.texts(), QStringList({"300 new titles found"}));

    SqliteDataControl reader;
    reader.setDatabaseName(dir.filePath(QStringLiteral("SonariumData.mdb")));
    reader.setRecordSource(QStringLiteral("SongData"));
    reader.Refresh();
    Recordset& r = reader.recordset();
    QHash<QString, QStringList> found;
    for (; !r.EOF_(); r.MoveNext()) {
        QStringList row;
        for (const char* column : columns) row << r.Fields(QString::fromLatin1(column)).Value().toString();
        found[r.Fields(QStringLiteral("Path\\File")).Value().toString()] = row;
    }
    EXPECT_EQ(found.size(), expected.size());
    for (auto it = expected.cbegin(); it != expected.cend(); ++it)
        EXPECT_EQ(found.value(it.key()), it.value()) << it.key().toStdString();
}

}  // namespace
