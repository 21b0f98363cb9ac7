#pragma once
// Reads the RTF that word processors write into a RichDocument: the text with its fonts, sizes,
// bold, italic, underline, colours and paragraph alignment; everything else is left out
// (pictures, objects, headers, style sheets, field instructions, any "\*" destination).
//
// Text bytes and \'hh are read in the document's code page (\ansicpg, or the code page of the
// font's \fcharset); code pages Qt cannot decode read as Windows-1252. A run's font is the one
// its \f names in the font table, and its size the one its \fs gives: text with none in effect
// keeps the box's default (\deff is not applied, so that a page shows in the box's own font
// unless it says otherwise). Colour 0 of the colour table is always the automatic colour.
//
// Any bytes read: the work is linear in the input, whatever its nesting. A document cut short
// gives what was read; bytes that are not RTF give the text that falls out of them by RTF's
// rules. The document ends with the closing brace of its first group: anything after it (the
// program's background marker line) is not read.
#include <QByteArray>

#include "info/rtf/RichDocument.h"

namespace sonarium {

// The most of a file that is read: bytes past it are ignored, as if the file ended there, so a
// caller need not load more. Pages are text; this leaves room for some pictures among it while
// keeping what a hostile file makes the reader build to a few hundred megabytes at worst.
constexpr qsizetype kMaxRtfBytes = 16 * 1024 * 1024;

RichDocument readRtf(const QByteArray& bytes);

}  // namespace sonarium
