// The ID3v1 tag code on small files made here: a fake MP3 of random bytes stands for the audio,
// which the tag code must never read into or change. Checks the 128 bytes written byte for
// byte, Windows-1252 text, field limits, the year and genre rules, files too short for a tag,
// failures that leave the file alone, and that another tool agrees with what we write and read.
// That a write changes only the fields asked for, whatever bytes the old tag holds, and that
// the reader's text is the stored bytes, is held over arbitrary tags by the fuzz test (fuzz_id3).
#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>
#include <optional>
#include <random>

#include "engine/id3/Id3v1Editor.h"
#include "engine/id3/Id3v1Genres.h"
#include "engine/id3/Id3v1Tag.h"
#include "engine/id3/Id3v1Writer.h"
#include "fixtures/Files.h"
#include "fixtures/Id3v1Block.h"
#include "fixtures/ReadOnlyFolder.h"
#include "fixtures/ToolRunner.h"

namespace sonarium {

// Readable failures; internal, so that other tests may print tags their own way.
[[maybe_unused]] static void PrintTo(const Id3v1Tag& t, std::ostream* os) {
    *os << (t.present ? "tag" : "no tag") << " {" << t.title.toStdString() << " | " << t.artist.toStdString()
        << " | " << t.album.toStdString() << " | " << t.year << " | " << t.comment.toStdString() << " | "
        << t.genre << "}";
}

namespace {

// Random "audio" that starts like an MPEG frame and cannot be taken for a tag.
QByteArray fakeAudio(int size, unsigned seed = 1) {
    std::mt19937 rng(seed);
    QByteArray bytes(size, '\0');
    for (char& b : bytes) b = char(rng());
    return bytes.replace(0, 2, "\xFF\xFB");
}

using fixtures::id3v1Block;

QByteArray tail(const QByteArray& bytes) { return bytes.right(128); }

class Id3v1Test : public ::testing::Test {
protected:
    QString path(const QString& name = "song.mp3") const { return dir.filePath(name); }
    void writeFile(const QByteArray& bytes, const QString& name = "song.mp3") {
        ASSERT_TRUE(fixtures::writeFile(path(name), bytes));
    }
    QByteArray readFile(const QString& name = "song.mp3") const { return fixtures::fileBytes(path(name)); }
    // Writes `changes` into a file holding `before` and returns the file afterwards.
    QByteArray written(const QByteArray& before, const Id3v1Changes& changes) {
        writeFile(before);
        EXPECT_TRUE(writeId3v1(path(), changes));
        return readFile();
    }
    // Runs `id3v2` on the file; what it printed, or nothing when it failed.
    std::optional<QString> id3v2(const QStringList& args) {
        QByteArray out;
        if (fixtures::runTool(QStringList{"id3v2"} + args + QStringList{path()}, 10, &out) != 0) return {};
        return QString::fromLatin1(out);
    }

    QTemporaryDir dir;
};

TEST_F(Id3v1Test, AppendsATagToATaglessFileAndReadsItBack) {
    const QByteArray audio = fakeAudio(5000);
    const Id3v1Changes all{.title = "Title",
                           .artist = "Artist",
                           .album = "Album",
                           .comment = "Comment",
                           .year = 1987,
                           .genre = 17};
    const QByteArray after = written(audio, all);
    EXPECT_EQ(after, audio + id3v1Block("Title", "Artist", "Album", "1987", "Comment", 17));

    const Id3v1Tag tag = readId3v1(path());
    EXPECT_EQ(tag, (Id3v1Tag{true, "Title", "Artist", "Album", "Comment", 1987, 17}));
    EXPECT_EQ(readId3v1(tail(after)), tag);

    // Writing over a tag, and a fresh tag's untouched fields, are the fuzz test's (fuzz_id3).
}

TEST_F(Id3v1Test, TextIsWindows1252CutToThirtyBytes) {
    const Id3v1Changes c{
        .title = QString::fromUtf8("Café € — ‘x’ Ÿ"),
        .artist = QString::fromUtf8("日本 \U0001F600!"),  // one '?' a character, even outside the BMP
        .album = QString(35, 'a') + "b",
        .comment = QString(30, QChar(0x00E9))};
    const QByteArray title = "Caf\xE9 \x80 \x97 \x91x\x92 \x9F";
    EXPECT_EQ(tail(written(fakeAudio(600), c)),
              id3v1Block(title, "?? ?!", QByteArray(30, 'a'), "", QByteArray(30, '\xE9'), 255));

    EXPECT_EQ(readId3v1(path()), (Id3v1Tag{true, *c.title, "?? ?!", QString(30, 'a'), *c.comment, 0, 255}));
    // Every byte read back encodes to itself: the fuzz test holds that over arbitrary tags.
}

TEST_F(Id3v1Test, YearAndGenreRules) {
    const std::pair<int, QByteArray> writes[] = {{99, "0099"}, {-5, "0000"}, {12345, "9999"}};
    for (const auto& [value, bytes] : writes) {
        EXPECT_EQ(tail(written(fakeAudio(300), {.year = value})).mid(93, 4), bytes) << value;
        EXPECT_EQ(readId3v1(path()).year, bytes.toInt());
    }
    const std::pair<QByteArray, int> reads[] = {{"19xx", 19}, {" 987", 987}};
    for (const auto& [bytes, year] : reads)
        EXPECT_EQ(readId3v1(id3v1Block("", "", "", bytes, "", 0)).year, year) << bytes.toHex().data();

    const std::pair<int, int> genres[] = {{147, 147}, {256, 255}};
    for (auto [value, byte] : genres)
        EXPECT_EQ(static_cast<unsigned char>(written(fakeAudio(300), {.genre = value}).back()), byte)
            << value;

    // The table's ends and the names past it.
    const std::pair<int, const char*> names[] = {
        {0, "Blues"}, {191, "Psybient"}, {192, "Unknown"}, {255, "None"}};
    for (auto [genre, name] : names) EXPECT_EQ(id3v1GenreName(genre), name) << genre;
}

TEST_F(Id3v1Test, ShortAndTaglessFiles) {
    const Id3v1Tag none;

    // Shorter than a tag, even when it holds one but for a byte.
    const QByteArray almost = id3v1Block("T", "A", "B", "2000", "C", 1).left(127);
    EXPECT_EQ(readId3v1(almost), none);
    // "TAG" anywhere but at the start of the last 128 bytes is not a tag.
    const QByteArray shifted = fakeAudio(400) + id3v1Block("T", "A", "B", "2000", "C", 1).left(120);
    writeFile(shifted);
    EXPECT_EQ(readId3v1(path()), none);
    EXPECT_EQ(readId3v1(QString(path("missing.mp3"))), none);
    EXPECT_EQ(readId3v1(QByteArray()), none);

    // Writing appends after the short file's bytes.
    for (const QByteArray& before : {QByteArray(), almost, shifted}) {
        EXPECT_EQ(written(before, {.title = "New"}), before + id3v1Block("New", "", "", "", "", 255));
        EXPECT_EQ(readId3v1(path()).title, "New");
    }
}

TEST_F(Id3v1Test, FailuresLeaveTheFileAlone) {
    const Id3v1Changes c{.title = "Never"};

    // Missing: false, and nothing is created.
    EXPECT_FALSE(writeId3v1(path("missing.mp3"), c));
    EXPECT_FALSE(QFile::exists(path("missing.mp3")));
    EXPECT_FALSE(writeId3v1(dir.path(), c));

    // On a read-only medium (or, without one, a file without write permission): false, the
    // bytes as before; reading it works.
    const QByteArray before = fakeAudio(2000, 3) + id3v1Block("Old", "", "", "", "", 3);
    writeFile(before);
    ASSERT_TRUE(QFile::setPermissions(path(), QFile::ReadOwner | QFile::ReadGroup | QFile::ReadOther));
    const QString report = fixtures::throughReadOnlyFolder(dir.path(), [&] {
        return readId3v1(path()).title + (writeId3v1(path(), c) ? " written" : " refused");
    });
    if (report == "no read-only folder")
        GTEST_SKIP() << "running as root where no read-only mount can be made";
    EXPECT_EQ(report, "Old refused");
    EXPECT_EQ(readFile(), before);
}

TEST_F(Id3v1Test, EditorWritesOnlyWhatWasSetSinceOpenUnderAnyCaseOfTheName) {
    const QByteArray audio = fakeAudio(1500, 5);
    writeFile(audio + id3v1Block("One", "Two", "Three", "1970", "Four", 5), "Song.mp3");

    Id3v1Editor editor;
    EXPECT_FALSE(editor.writeTag());  // nothing opened
    editor.open(path("SONG.MP3"));
    EXPECT_EQ(editor.tag().title, "One");
    EXPECT_EQ(editor.tag().genre, 5);
    editor.changes().album = "Changed";
    editor.open(path("song.MP3"));  // a new open forgets the album
    editor.changes().comment = "Later";
    EXPECT_TRUE(editor.writeTag());
    EXPECT_FALSE(QFile::exists(path("song.MP3")));
    EXPECT_EQ(readFile("Song.mp3"), audio + id3v1Block("One", "Two", "Three", "1970", "Later", 5));
}

TEST_F(Id3v1Test, AnotherToolReadsOurTagsAndWeReadItsTags) {
    const QByteArray audio = fakeAudio(4000, 11);
    written(audio, {.title = "Our Title", .artist = "Our Artist", .year = 1994, .genre = 17});
    const QString listing = id3v2({"-l"}).value_or("id3v2 -l failed");
    EXPECT_TRUE(listing.contains("Our Title") && listing.contains("Our Artist") && listing.contains("1994"))
        << listing.toStdString();

    writeFile(audio);
    ASSERT_TRUE(id3v2({"-1", "-t", "Their Title", "-a", "Their Artist", "-A", "Their Album", "-y", "2003",
                       "-g", "9", "-c", "Their Comment"}))
        << "id3v2 -1 failed";
    EXPECT_EQ(readFile().left(audio.size()), audio);
    EXPECT_EQ(readId3v1(path()),
              (Id3v1Tag{true, "Their Title", "Their Artist", "Their Album", "Their Comment", 2003, 9}));
}

}  // namespace
}  // namespace sonarium
