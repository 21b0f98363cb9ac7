#include "engine/id3/Id3v1Writer.h"

#include <QFile>
#include <QFileInfo>
#include <algorithm>

#include "controls/FileNames.h"
#include "controls/Windows1252.h"
#include "engine/id3/Id3v1Tag.h"

namespace sonarium {
namespace {

void putBytes(QByteArray& block, id3v1::Field f, const QByteArray& bytes) {
    const QByteArray cut = bytes.left(f.length);
    std::copy(cut.begin(), cut.end(), block.begin() + f.offset);
    std::fill(block.begin() + f.offset + cut.size(), block.begin() + f.offset + f.length, '\0');
}

void putText(QByteArray& block, id3v1::Field f, const std::optional<QString>& text) {
    if (text) putBytes(block, f, encodeWindows1252(*text));
}

// The tag block with the changes applied over `block`.
QByteArray applied(QByteArray block, const Id3v1Changes& c) {
    putText(block, id3v1::kTitle, c.title);
    putText(block, id3v1::kArtist, c.artist);
    putText(block, id3v1::kAlbum, c.album);
    putText(block, id3v1::kComment, c.comment);
    if (c.year)
        putBytes(block, id3v1::kYear,
                 QByteArray::number(std::clamp(*c.year, 0, 9999)).rightJustified(4, '0'));
    if (c.genre) {
        const int g = *c.genre >= 0 && *c.genre <= 255 ? *c.genre : id3v1::kNoGenre;
        block[id3v1::kGenre.offset] = char(g);
    }
    return block;
}

// A fresh tag: marker, NUL-filled fields, no genre.
QByteArray emptyBlock() {
    QByteArray block(id3v1::kSize, '\0');
    std::copy_n(id3v1::kMarker, 3, block.begin());
    block[id3v1::kGenre.offset] = char(id3v1::kNoGenre);
    return block;
}

bool writeAt(QFile& file, qint64 pos, const QByteArray& bytes) {
    return file.seek(pos) && file.write(bytes) == bytes.size() && file.flush();
}

}  // namespace

bool writeId3v1(const QString& path, const Id3v1Changes& changes) {
    const QString name = resolveFileName(path);
    // Only a regular file: opening a FIFO or a device could block or write somewhere odd.
    if (!QFileInfo(name).isFile()) return false;
    // ExistingOnly: a vanished file must not be created empty with a lone tag.
    QFile file(name);
    if (!file.open(QIODevice::ReadWrite | QIODevice::ExistingOnly | QIODevice::Unbuffered)) return false;
    if (changes.empty()) return true;

    const qint64 size = file.size();
    QByteArray old;
    if (size >= id3v1::kSize) {
        // A tail that cannot be read might be a tag: appending after it could make two.
        if (!file.seek(size - id3v1::kSize) || (old = file.read(id3v1::kSize)).size() != id3v1::kSize)
            return false;
    }
    if (isId3v1Block(old)) {
        // The whole block goes back in one write; unchanged fields carry the bytes just read.
        if (writeAt(file, size - id3v1::kSize, applied(old, changes))) return true;
        writeAt(file, size - id3v1::kSize, old);
        return false;
    }
    if (writeAt(file, size, applied(emptyBlock(), changes))) return true;
    file.resize(size);
    return false;
}

}  // namespace sonarium
