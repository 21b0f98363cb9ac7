#pragma once
// The loader's own read of a song's tag block: the last byte of the file as the genre number
// and the 127 bytes in front of it as text. The text is searched for "TAG" anywhere, so a tag
// is also "found" where those letters stand in the audio, and the fields are cut from there.
#include <QString>
#include <cstdint>
#include <optional>

namespace sonarium {

struct SongTagTail {
    std::optional<std::uint8_t> genre;  // none for an empty or missing file
    QString buffer;                     // Windows-1252 text, one character a byte
};

// Reads without creating or changing anything: a missing or unreadable file has no tail, and
// a file shorter than 128 bytes gives what lies in front of its last byte.
SongTagTail readSongTagTail(const QString& file);

// The substring from `start` (counted from 1) of at most `length` characters, as the
// platform's Mid does: a start past the end gives "", a negative length fails.
QString midText(const QString& text, int start, int length);

// The fields after "TAG" at position `p` (counted from 1) of the buffer. The text taken is one
// character short of the block (127 - (p + 3) characters), so the comment keeps 29 of its 30.
struct SongTagFields {
    QString title, artist, album, year, comment;
};
SongTagFields songTagFields(const QString& text);
QString songTagText(const QString& buffer, int p);

}  // namespace sonarium
