#pragma once
// The ID3v1 tag: the last 128 bytes of an MP3 file, "TAG" then fixed-width fields. Text is
// Windows-1252. A file shorter than 128 bytes, or whose last 128 bytes do not start with
// "TAG", has no tag.
#include <QByteArray>
#include <QString>

namespace sonarium {

namespace id3v1 {
constexpr int kSize = 128;
constexpr char kMarker[] = "TAG";

// A field's place in the 128 bytes.
struct Field {
    int offset;
    int length;
};
constexpr Field kTitle{3, 30};
constexpr Field kArtist{33, 30};
constexpr Field kAlbum{63, 30};
constexpr Field kYear{93, 4};
constexpr Field kComment{97, 30};
constexpr Field kGenre{127, 1};

// The genre byte of "no genre": what a tag without a genre holds, and what the reader gives
// for a file without a tag.
constexpr int kNoGenre = 255;
}  // namespace id3v1

// The fields as the player's getters give them: text up to the first NUL, trailing blanks
// removed; the year as the number its leading digits make (0 when the field starts with none);
// the genre byte as it stands. Without a tag: empty texts, year 0, genre kNoGenre.
struct Id3v1Tag {
    bool present = false;
    QString title;
    QString artist;
    QString album;
    QString comment;
    int year = 0;
    int genre = id3v1::kNoGenre;

    bool operator==(const Id3v1Tag&) const = default;
};

// The tag of the last 128 bytes of `bytes` (a whole file or only its end).
Id3v1Tag readId3v1(const QByteArray& lastBytes);

// The tag of a file, found without regard to the case of its name. A file that is missing or
// cannot be read has no tag.
Id3v1Tag readId3v1(const QString& path);

// True when `block` (exactly 128 bytes) starts with the marker.
bool isId3v1Block(const QByteArray& block);

}  // namespace sonarium
