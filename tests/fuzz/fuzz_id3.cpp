// The tag reader and writer on arbitrary bytes. The reader must give a sane tag for any input,
// with text that encodes back to the bytes it came from; the writer, given the bytes as a file,
// must change only the fields asked for and never the bytes in front of the tag.
#include <QFile>

#include "Check.h"
#include "TempFile.h"
#include "engine/id3/Id3v1Tag.h"
#include "engine/id3/Id3v1Writer.h"
#include "controls/Windows1252.h"

namespace {

using namespace sonarium;

// The stored bytes of a text field as the reader sees them: up to the first NUL, trailing
// blanks off.
QByteArray storedText(const QByteArray& block, id3v1::Field f) {
    QByteArray b = block.mid(f.offset, f.length);
    b.truncate(b.indexOf('\0') < 0 ? b.size() : b.indexOf('\0'));
    while (b.endsWith(' ')) b.chop(1);
    return b;
}

void checkRead(const QByteArray& bytes) {
    const Id3v1Tag tag = readId3v1(bytes);
    FUZZ_CHECK(tag.year >= 0 && tag.year <= 9999);
    FUZZ_CHECK(tag.genre >= 0 && tag.genre <= 255);
    if (!tag.present) {
        FUZZ_CHECK(tag == Id3v1Tag{});
        return;
    }
    const QByteArray block = bytes.right(id3v1::kSize);
    FUZZ_CHECK(block.startsWith("TAG"));
    FUZZ_CHECK(encodeWindows1252(tag.title) == storedText(block, id3v1::kTitle));
    FUZZ_CHECK(encodeWindows1252(tag.artist) == storedText(block, id3v1::kArtist));
    FUZZ_CHECK(encodeWindows1252(tag.album) == storedText(block, id3v1::kAlbum));
    FUZZ_CHECK(encodeWindows1252(tag.comment) == storedText(block, id3v1::kComment));
    FUZZ_CHECK(tag.genre == static_cast<unsigned char>(block[127]));
}

// Fields and values chosen by the input's first bytes, text cut from the input itself.
Id3v1Changes changesFrom(const QByteArray& bytes) {
    Id3v1Changes c;
    if (bytes.size() < 4) return c;
    const int mask = static_cast<unsigned char>(bytes[0]);
    const QString text = QString::fromUtf8(bytes.mid(4, 40));
    if (mask & 1) c.title = text;
    if (mask & 2) c.artist = text.left(3);
    if (mask & 4) c.album = QString();
    if (mask & 8) c.comment = text + text;
    if (mask & 16)
        c.year = static_cast<qint16>((static_cast<unsigned char>(bytes[1]) << 8) |
                                     static_cast<unsigned char>(bytes[2]));
    if (mask & 32) c.genre = static_cast<signed char>(bytes[3]);
    return c;
}

void checkField(const QByteArray& before, const QByteArray& after, id3v1::Field f,
                const std::optional<QString>& v) {
    if (v)
        FUZZ_CHECK(after.mid(f.offset, f.length) ==
                   encodeWindows1252(*v).left(f.length).leftJustified(f.length, '\0'));
    else
        FUZZ_CHECK(after.mid(f.offset, f.length) == before.mid(f.offset, f.length));
}

void checkWrite(const std::uint8_t* data, std::size_t size, const QByteArray& bytes) {
    static fuzz::TempFile file(".mp3");
    file.fill(data, size);
    const Id3v1Changes changes = changesFrom(bytes);
    FUZZ_CHECK(writeId3v1(file.path(), changes));

    QFile f(file.path());
    FUZZ_CHECK(f.open(QIODevice::ReadOnly));
    const QByteArray after = f.readAll();
    const bool hadTag = readId3v1(bytes).present;
    const qsizetype audio = hadTag ? bytes.size() - id3v1::kSize : bytes.size();
    if (changes.empty()) {
        FUZZ_CHECK(after == bytes);
        return;
    }
    FUZZ_CHECK(after.size() == audio + id3v1::kSize);
    FUZZ_CHECK(after.left(audio) == bytes.left(audio));
    const QByteArray before =
        hadTag ? bytes.right(id3v1::kSize) : QByteArray("TAG").leftJustified(127, '\0') + char(255);
    const QByteArray tag = after.right(id3v1::kSize);
    FUZZ_CHECK(tag.startsWith("TAG"));
    checkField(before, tag, id3v1::kTitle, changes.title);
    checkField(before, tag, id3v1::kArtist, changes.artist);
    checkField(before, tag, id3v1::kAlbum, changes.album);
    checkField(before, tag, id3v1::kComment, changes.comment);
    if (!changes.year)
        FUZZ_CHECK(tag.mid(93, 4) == before.mid(93, 4));
    else
        FUZZ_CHECK(readId3v1(tag).year == std::clamp(*changes.year, 0, 9999));
    if (!changes.genre) FUZZ_CHECK(tag[127] == before[127]);
    checkRead(after);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const QByteArray bytes(reinterpret_cast<const char*>(data), qsizetype(size));
    checkRead(bytes);
    checkWrite(data, size, bytes);
    return 0;
}
