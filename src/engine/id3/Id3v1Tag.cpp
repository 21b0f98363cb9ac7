#include "engine/id3/Id3v1Tag.h"

#include <QFile>
#include <QFileInfo>

#include "controls/FileNames.h"
#include "controls/Windows1252.h"

namespace sonarium {
namespace {

QString textField(const QByteArray& block, id3v1::Field f) {
    const char* start = block.constData() + f.offset;
    qsizetype n = 0;
    while (n < f.length && start[n] != '\0') ++n;
    while (n > 0 && start[n - 1] == ' ') --n;
    return decodeWindows1252(start, n);
}

int yearField(const QByteArray& block) {
    const char* start = block.constData() + id3v1::kYear.offset;
    int i = 0;
    while (i < id3v1::kYear.length && start[i] == ' ') ++i;
    int year = 0;
    for (; i < id3v1::kYear.length && start[i] >= '0' && start[i] <= '9'; ++i)
        year = year * 10 + (start[i] - '0');
    return year;
}

}  // namespace

bool isId3v1Block(const QByteArray& block) {
    return block.size() == id3v1::kSize && block.startsWith(id3v1::kMarker);
}

Id3v1Tag readId3v1(const QByteArray& lastBytes) {
    Id3v1Tag tag;
    if (lastBytes.size() < id3v1::kSize) return tag;
    const QByteArray block = lastBytes.right(id3v1::kSize);
    if (!isId3v1Block(block)) return tag;
    tag.present = true;
    tag.title = textField(block, id3v1::kTitle);
    tag.artist = textField(block, id3v1::kArtist);
    tag.album = textField(block, id3v1::kAlbum);
    tag.comment = textField(block, id3v1::kComment);
    tag.year = yearField(block);
    tag.genre = static_cast<unsigned char>(block[id3v1::kGenre.offset]);
    return tag;
}

Id3v1Tag readId3v1(const QString& path) {
    QFile file(resolveFileName(path));
    // Only a regular file: opening a FIFO for reading would wait for a writer.
    if (!QFileInfo(file.fileName()).isFile() || !file.open(QIODevice::ReadOnly)) return {};
    const qint64 size = file.size();
    if (size < id3v1::kSize || !file.seek(size - id3v1::kSize)) return {};
    return readId3v1(file.read(id3v1::kSize));
}

}  // namespace sonarium
