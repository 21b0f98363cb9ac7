#include "library/SongFileColumns.h"

#include "controls/DataControl.h"
#include "controls/Errors.h"
#include "controls/Mp3Player.h"

namespace sonarium {

QString durationText(std::int32_t seconds) {
    const std::int32_t minutes = seconds / 60;
    auto two = [](std::int32_t n) { return QStringLiteral("%1").arg(n, 2, 10, QLatin1Char('0')); };
    return two(minutes) + u':' + two(seconds - minutes * 60);
}

QString nameWithoutExtension(const QString& fileName) {
    if (fileName.size() < 4)
        throw RuntimeError(RuntimeError::InvalidCall, QStringLiteral("Invalid procedure call or argument"));
    return fileName.left(fileName.size() - 4);
}

void writeFileColumns(ErrorReporter& errors, Recordset& record, Mp3Player& mp3, const QString& entry,
                      const QString& dir, const QString& fileName, const QString& duration) {
    auto put = [&](const char* column, auto value) {
        tryStep(errors, [&] { record.Fields(QString::fromLatin1(column)).setValue(QVariant(value())); });
    };
    put("Path\\File", [&] { return entry; });
    put("Path", [&] { return dir; });
    put("File", [&] { return nameWithoutExtension(fileName); });
    put("Song Title", [&] { return mp3.TagTitle(); });
    put("Artist", [&] { return mp3.TagArtist(); });
    // The year is a number, stored as its text: 0 for a file without a tag.
    put("Year", [&] { return int(mp3.TagYear()); });
    put("Album", [&] { return mp3.TagAlbum(); });
    put("Comment", [&] { return mp3.TagComment(); });
    put("Genre", [&] { return mp3.GenreName(mp3.TagGenre()); });
    put("Duration", [&] { return duration; });
}

}  // namespace sonarium
