// The tag reader and writer on arbitrary bytes. The reader must give a sane tag for any input,
// with text that encodes back to the bytes it came from; the writer, given the bytes as a file,
// must change only the fields asked for and never the bytes in front of the tag.
#include <QFile>

#include "Fuzz.h"
#include "controls/Windows1252.h"
#include "engine/id3/Id3v1Tag.h"
#include "engine/id3/Id3v1Writer.h"

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
    auto byte = [&](int i) { return static_cast<unsigned char>(bytes[i]); };
    const QString text = QString::fromUtf8(bytes.mid(4, 40));
    if (byte(0) & 1) c.title = text;
    if (byte(0) & 2) c.artist = text.left(3);
    if (byte(0) & 4) c.album = QString();
    if (byte(0) & 8) c.comment = text + text;
    if (byte(0) & 16) c.year = static_cast<qint16>(byte(1) << 8 | byte(2));
    if (byte(0) & 32) c.genre = static_cast<signed char>(byte(3));
    return c;
}

void checkWrite(const std::uint8_t* data, std::size_t size, const QByteArray& bytes) {
    const QString file = fuzz::scratchFile(data, size);
    const Id3v1Changes changes = changesFrom(bytes);
    FUZZ_CHECK(writeId3v1(file, changes));
    QFile f(file);
    FUZZ_CHECK(f.open(QIODevice::ReadOnly));
    const QByteArray after = f.readAll();
    if (changes.empty()) {
        FUZZ_CHECK(after == bytes);
        return;
    }
    // The bytes in front stay; the tag is the old one, or a fresh one, with the changed fields
    // written over. The year's digits are the reader's to check.
    const bool hadTag = readId3v1(bytes).present;
    const qsizetype audio = hadTag ? bytes.size() - id3v1::kSize : bytes.size();
    QByteArray expected =
        bytes.left(audio) +
        (hadTag ? bytes.right(id3v1::kSize) : QByteArray("TAG").leftJustified(127, '\0') + char(255));
    auto put = [&](id3v1::Field field, const QByteArray& value) {
        expected.replace(audio + field.offset, field.length,
                         value.left(field.length).leftJustified(field.length, '\0'));
    };
    for (auto [field, value] : {std::pair{id3v1::kTitle, changes.title},
                                {id3v1::kArtist, changes.artist},
                                {id3v1::kAlbum, changes.album},
                                {id3v1::kComment, changes.comment}})
        if (value) put(field, encodeWindows1252(*value));
    if (changes.year) {
        FUZZ_CHECK(readId3v1(after).year == std::clamp(*changes.year, 0, 9999));
        put(id3v1::kYear, after.mid(audio + id3v1::kYear.offset, 4));
    }
    if (changes.genre) put(id3v1::kGenre, after.right(1));
    FUZZ_CHECK(after == expected);
    checkRead(after);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const QByteArray bytes(reinterpret_cast<const char*>(data), qsizetype(size));
    checkRead(bytes);
    checkWrite(data, size, bytes);
    return 0;
}
