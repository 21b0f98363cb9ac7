#pragma once
// The info panel's rich-text box: the model's document shown in a QTextEdit with the model's
// background colour, read-only while the model is locked. The user's typing goes back to the
// model as its new document and the caret and selection as its SelStart and SelLength; a
// document the logic sets (a page loaded, a format applied, a karaoke colour) is shown anew.
#include <QTextEdit>

#include "info/RichTextBox.h"
#include "ui/views/ControlView.h"

namespace sonarium {

class RichTextView : public ControlView<QTextEdit> {
public:
    RichTextView(RichTextBox& model, ErrorReporter& errors, QWidget* parent);

protected:
    void syncOwn() override;

private:
    void typed();
    void caretMoved();

    RichTextBox& box_;
    int shownVersion_ = -1;
    bool syncing_ = false;
};

}  // namespace sonarium
