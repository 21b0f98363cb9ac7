#include "ui/views/TypedText.h"

namespace sonarium {

TypedText typeInto(const QLineEdit& edit, int keyAscii, int maxLength) {
    QString t = edit.text();
    int from = edit.hasSelectedText() ? edit.selectionStart() : edit.cursorPosition();
    const int length = edit.hasSelectedText() ? int(edit.selectedText().size()) : 0;
    t.remove(from, length);
    if (keyAscii == 8) {
        if (length == 0 && from > 0) t.remove(--from, 1);
    } else if (maxLength == 0 || t.size() < maxLength) {
        t.insert(from++, QChar(keyAscii));
    }
    return {t, from};
}

}  // namespace sonarium
