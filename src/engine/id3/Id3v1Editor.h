#pragma once
// The tag side of a player: the tag of the file last opened, the fields set since, and
// writing them into that file. A player owns one and delegates its tag operations to it:
//   Open(file, ...)      -> open(file), whether or not the audio opens (or open(file,
//                           lastBytes) when the player has read the file's end itself)
//   TagTitle() ...       -> tag().title ...
//   SetTagTitle(v) ...   -> changes().title = v ...
//   WriteTag()           -> writeTag(); it works after the player's Close, since the editor
//                           keeps the name until the next open()
//   GenreName(n)         -> id3v1GenreName(n)
// Not thread-safe; the UI thread uses it.
#include <QString>

#include "engine/id3/Id3v1Tag.h"
#include "engine/id3/Id3v1Writer.h"

namespace sonarium {

class Id3v1Editor {
public:
    // Reads the tag of `path` and forgets the fields set before.
    void open(const QString& path);
    // The same for a caller that has already read the file's end: `lastBytes` are its last
    // 128 bytes (all of a shorter file, nothing of one that could not be read).
    void open(const QString& path, const QByteArray& lastBytes);

    // The tag as read at open(); setting fields does not change it.
    const Id3v1Tag& tag() const { return tag_; }
    Id3v1Changes& changes() { return changes_; }
    const QString& path() const { return path_; }

    // Writes the fields set since open() into its file; false when nothing was opened or the
    // file cannot be written. The fields stay set, so a second call writes the same again.
    bool writeTag();

private:
    QString path_;
    Id3v1Tag tag_;
    Id3v1Changes changes_;
};

}  // namespace sonarium
