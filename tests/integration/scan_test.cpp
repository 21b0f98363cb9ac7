// A scan of a generated tree of tagged MP3 files through the real player into the real
// library: every column the real player's reading fills, of every record. The walk's order,
// the counts and the columns left alone are the scanner's unit tests' matter.
#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QHash>
#include <QTemporaryDir>

#include "engine/data/SqliteDataControl.h"
#include "engine/id3/Id3v1Genres.h"
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

    // One two-second file made by the encoder, copied with each song's own tag after it: 6
    // directories of 50 songs, some in lower case, some with texts of the tag's code page.
    void makeTree() {
        Mp3Recipe recipe;
        recipe.rate = 22050;
        recipe.channels = 1;
        recipe.kbps = 32;
        const QByteArray audio = untaggedMp3(dir.filePath(QStringLiteral("base.bin")), recipe);
        ASSERT_FALSE(audio.isEmpty());
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
                expected[file] = QStringList{dir.filePath(sub), name} +
                                 QStringList{QString::fromLatin1(title), QString::fromLatin1(artist),
                                             QString::fromLatin1(album), QString::fromLatin1(comment),
                                             id3v1GenreName(genre),      "00:02",
                                             QString::fromLatin1(year)};
            }
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
        g.chkSubs.setValue(1);
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
