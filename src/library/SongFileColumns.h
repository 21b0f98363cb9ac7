#pragma once
// What a song's file puts into its library record, shared by the scan and the manual add.
#include <QString>
#include <cstdint>

namespace sonarium {

class ErrorReporter;
class Recordset;
class Mp3Player;

// The walks over the records count with a 16-bit counter: past its range such a loop fails
// at its start and compares nothing, so no record is found in a larger view.
inline bool fitsRecordLoop(std::int32_t count) { return count <= 32767; }

// A length in whole seconds as the Duration column holds it: minutes and seconds, each of at
// least two digits, "03:07", "125:00".
QString durationText(std::int32_t seconds);

// The name a file's record and queue row carry: the file's name less its last four characters
// (the extension and its dot). RuntimeError InvalidCall for a name shorter than that.
QString nameWithoutExtension(const QString& fileName);

// Writes into the record being added or edited, in this order: Path\File (`entry`), Path
// (`dir`), File, Song Title, Artist, Year, Album, Comment, Genre (the player's own name for
// the tag's number), Duration, with the tag of the file open in `mp3`. Nothing is cut to its
// column: a write that fails (a value too wide) is skipped and leaves that column as it was,
// and a key too wide is then found missing by Update. The remaining columns are untouched.
void writeFileColumns(ErrorReporter& errors, Recordset& record, Mp3Player& mp3, const QString& entry,
                      const QString& dir, const QString& fileName, const QString& duration);

}  // namespace sonarium
