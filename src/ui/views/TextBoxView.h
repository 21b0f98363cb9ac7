#pragma once
// A text box. A character typed at the end of the text goes to the model's KeyPress, which
// runs the key press handler and edits the text as the platform does. Typing inside the text
// still lets the handler see (and change or swallow) the key first, then edits at the cursor;
// other edits (Delete, paste, cut) reach the model as its new text. Return and Escape go to
// the handler too.
#include <QLineEdit>

#include "controls/Widgets.h"
#include "ui/views/ControlView.h"

namespace sonarium {

class TextBoxView : public ControlView<QLineEdit> {
public:
    TextBoxView(TextBox& model, ErrorReporter& errors, QWidget* parent);

protected:
    void syncOwn() override;
    void keyPressEvent(QKeyEvent* e) override;

private:
    void typeInside(int keyAscii);

    TextBox& box_;
};

// The character code a key press types, as the platform's KeyPress reports it: 8 for
// Backspace, 13 for Return, 27 for Escape, the character for printable text; -1 for keys that
// type nothing (arrows, Delete, shortcuts with Ctrl).
int typedKeyAscii(const QKeyEvent& e);

}  // namespace sonarium
