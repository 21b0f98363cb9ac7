#pragma once
// The background marker of an info page: a line "{\bc\N;-bc}" appended after the RTF
// document, N being the box's colour as red + 256 × green + 65536 × blue. The RTF itself has no
// place for the box's background, so the program keeps it there, and reads it from the file's
// last line only.
#include <QByteArray>
#include <optional>

#include "controls/Control.h"

namespace sonarium {

// The colour of a page with no marker, and of an emptied box: 13156270.
constexpr Color DefaultPageColour{174, 191, 200};

// The marker line, with its line end.
QByteArray pageMarkerLine(Color colour);

// The colour of the first "{\bc" in the line: the leading digits after "{\bc\" (so a missing
// ";-bc}" does not matter), split into its three bytes. None when the line has no marker or
// its number is past the range of a Long.
std::optional<Color> pageMarkerColour(const QByteArray& lastLine);

// The last line of a file's bytes (a line end closing the file ends the last line).
QByteArray lastLineOf(const QByteArray& bytes);

}  // namespace sonarium
