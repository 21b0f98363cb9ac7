#pragma once
// A key typed inside a line of text, not at its end: the selection (or nothing) is replaced by
// the character, or Backspace removes the selection or the character before the cursor. The
// text boxes and the grid's cell editor share it; their key handlers have run before.
#include <QLineEdit>

namespace sonarium {

struct TypedText {
    QString text;
    int cursor = 0;
};

// `maxLength` 0 is no limit; a character past it is not inserted.
TypedText typeInto(const QLineEdit& edit, int keyAscii, int maxLength = 0);

}  // namespace sonarium
