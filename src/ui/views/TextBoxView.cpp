#include "ui/views/TextBoxView.h"

#include <QKeyEvent>

#include "ui/views/TypedText.h"

namespace sonarium {

int typedKeyAscii(const QKeyEvent& e) {
    switch (e.key()) {
    case Qt::Key_Backspace: return 8;
    case Qt::Key_Return:
    case Qt::Key_Enter: return 13;
    case Qt::Key_Escape: return 27;
    default: break;
    }
    if (e.modifiers() & (Qt::ControlModifier | Qt::MetaModifier)) return -1;
    const QString t = e.text();
    if (t.size() != 1 || t[0].unicode() < 32 || t[0].unicode() == 127) return -1;
    return t[0].unicode();
}

TextBoxView::TextBoxView(TextBox& model, ErrorReporter& errors, QWidget* parent)
    : ControlView(model, errors, parent), box_(model) {
    clickOnRelease_ = false;
    connect(this, &QLineEdit::textEdited, this, [this](const QString& t) { feed([&] { box_.setText(t); }); });
}

void TextBoxView::syncOwn() {
    setReadOnly(box_.Locked());
    if (text() == box_.Text()) return;
    const bool atEnd = cursorPosition() == text().size();
    const int pos = cursorPosition();
    setText(box_.Text());
    setCursorPosition(atEnd ? int(text().size()) : std::min(pos, int(text().size())));
}

void TextBoxView::keyPressEvent(QKeyEvent* e) {
    const int ascii = typedKeyAscii(*e);
    if (ascii < 0) {
        QLineEdit::keyPressEvent(e);
        return;
    }
    e->accept();
    const bool atEnd = cursorPosition() == text().size() && !hasSelectedText();
    if (atEnd || ascii == 13 || ascii == 27)
        feed([&] { box_.KeyPress(ascii); });
    else
        typeInside(ascii);
}

void TextBoxView::typeInside(int keyAscii) {
    feed([&] {
        if (box_.onKeyPress) box_.onKeyPress(keyAscii);
    });
    if (keyAscii == 0 || box_.Locked()) return;
    const TypedText typed = typeInto(*this, keyAscii, box_.MaxLength());
    feed([&] { box_.setText(typed.text); });
    setCursorPosition(std::min(typed.cursor, int(text().size())));
}

}  // namespace sonarium
