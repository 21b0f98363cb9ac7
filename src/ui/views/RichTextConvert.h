#pragma once
// A RichDocument into a QTextDocument and back: one block per paragraph with its alignment,
// one fragment per run with its font family, point size, weight, italic, underline and
// foreground colour, line breaks staying U+2028 inside the block. A run without a font or a
// size sets none, so that it shows in the document's default font; a fragment that sets none
// reads back as a run without. Filling a document and reading it back gives the same document,
// and a position in its plainText() is the same cursor position in the QTextDocument.
#include <QTextDocument>

#include "info/rtf/RichDocument.h"

namespace sonarium {

// Replaces what `out` holds.
void fillTextDocument(const RichDocument& doc, QTextDocument& out);
// Sizes are read to the nearest half point, as pages keep them.
RichDocument fromTextDocument(const QTextDocument& doc);

}  // namespace sonarium
