#pragma once
// Writes a RichDocument as RTF that readRtf gives back equal and that word processors open:
// Windows-1252 text, with the characters outside it as \u and a '?' for older readers, a font
// table of the fonts the runs name (Arial alone when they name none), a colour table when a run
// has a colour, and each paragraph from \pard with its alignment, its runs each from \plain.
// Paragraphs are separated by \par, and the document ends with its closing brace and CR LF.
// Plain ASCII stays as it is, so a page reads in a text editor too.
//
// Sizes are written in half points, as RTF keeps them, up to 1638 points, the most that word
// processors know; control characters other than the tab are left out. The same document
// always gives the same bytes.
#include <QByteArray>

#include "info/rtf/RichDocument.h"

namespace sonarium {

QByteArray writeRtf(const RichDocument& doc);

}  // namespace sonarium
