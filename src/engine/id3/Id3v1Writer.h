#pragma once
// Writing an ID3v1 tag into an existing file: only the fields asked for change, the audio in
// front of the tag is never touched, and a failure leaves the file as it was.
#include <QString>
#include <optional>

namespace sonarium {

// The fields to write; an empty optional leaves that field as the file has it.
struct Id3v1Changes {
    // Windows-1252, cut to 30 bytes, padded with NULs; a character outside the code page
    // becomes '?'.
    std::optional<QString> title;
    std::optional<QString> artist;
    std::optional<QString> album;
    std::optional<QString> comment;
    // Written as four digits, zero-filled ("0099"); a value below 0 or above 9999 is clamped.
    std::optional<int> year;
    // 0 to 255; anything else is written as 255, no genre (so an unselected list's -1 means
    // no genre, as its low byte would).
    std::optional<int> genre;

    bool empty() const { return !title && !artist && !album && !comment && !year && !genre; }
};

// Writes `changes` into the tag of `path` (found without regard to case). A file with a tag
// has those fields' bytes replaced in place and keeps the others byte for byte; a file without
// one gets a 128-byte tag appended, its unset texts and year NUL-filled and its genre 255.
// The file is opened for reading and writing and patched or extended, never rewritten.
// False, with the file unchanged, when it is missing, not a regular file, not writable, or a
// write fails. With nothing to change the file is left alone and the result tells whether it
// could have been written.
bool writeId3v1(const QString& path, const Id3v1Changes& changes);

}  // namespace sonarium
