#include "playback/SongTag.h"

#include <QFile>
#include <algorithm>

#include "controls/Errors.h"
#include "controls/FileNames.h"
#include "controls/Windows1252.h"

namespace sonarium {

namespace {
constexpr qint64 TailLength = 127;
}

SongTagTail readSongTagTail(const QString& file) {
    SongTagTail tail;
    // Only an existing file is opened, and only for reading: a song that is gone stays gone.
    QFile f(resolveFileName(file));
    if (!fileExists(file) || !f.open(QIODevice::ReadOnly)) return tail;
    const qint64 size = f.size();
    if (size < 1) return tail;
    char last = 0;
    if (f.seek(size - 1) && f.read(&last, 1) == 1) tail.genre = static_cast<std::uint8_t>(last);
    const qint64 from = std::max<qint64>(0, size - 1 - TailLength);
    if (f.seek(from)) {
        const QByteArray bytes = f.read(size - 1 - from);
        tail.buffer = decodeWindows1252(bytes.constData(), bytes.size());
    }
    return tail;
}

QString midText(const QString& text, int start, int length) {
    if (start < 1 || length < 0)
        throw RuntimeError(RuntimeError::InvalidCall, QStringLiteral("Invalid procedure call or argument"));
    return text.mid(start - 1, length);
}

QString songTagText(const QString& buffer, int p) { return midText(buffer, p + 3, 127 - (p + 3)); }

SongTagFields songTagFields(const QString& text) {
    return {midText(text, 1, 30), midText(text, 31, 30), midText(text, 61, 30), midText(text, 91, 4),
            midText(text, 95, 30)};
}

}  // namespace sonarium
