#include "ui/views/RichTextView.h"

#include <QScrollBar>
#include <QTextBlock>

#include "ui/views/RichTextConvert.h"

namespace sonarium {

RichTextView::RichTextView(RichTextBox& model, ErrorReporter& errors, QWidget* parent)
    : ControlView(model, errors, parent), box_(model) {
    clickOnRelease_ = true;
    setAcceptRichText(false);  // pasted text comes in plain, in the format at the caret
    setFrameShape(QFrame::NoFrame);
    connect(this, &QTextEdit::textChanged, this, [this] { typed(); });
    connect(this, &QTextEdit::cursorPositionChanged, this, [this] { caretMoved(); });
    connect(this, &QTextEdit::selectionChanged, this, [this] { caretMoved(); });
}

void RichTextView::syncOwn() {
    syncing_ = true;
    setReadOnly(box_.Locked());
    setTabChangesFocus(!box_.TabStop());
    QPalette p = palette();
    if (const auto c = box_.BackColor()) p.setColor(QPalette::Base, QColor(c->r, c->g, c->b));
    p.setColor(QPalette::Text, Qt::black);
    setPalette(p);
    if (shownVersion_ != box_.documentVersion()) {
        shownVersion_ = box_.documentVersion();
        // A stretch lit by the karaoke refills the page: the reader's place in it stays.
        const int scrolled = verticalScrollBar()->value();
        fillTextDocument(box_.document(), *document());
        verticalScrollBar()->setValue(scrolled);
    }
    QTextCursor cursor = textCursor();
    const int end = int(document()->characterCount()) - 1;
    const int start = std::min(box_.SelStart(), end);
    if (cursor.selectionStart() != start ||
        cursor.selectionEnd() - cursor.selectionStart() != box_.SelLength()) {
        cursor.setPosition(start);
        cursor.setPosition(std::min(start + box_.SelLength(), end), QTextCursor::KeepAnchor);
        setTextCursor(cursor);
    }
    // What the next typed text looks like, as the toolbar last set it.
    const CharFormat& f = box_.typingFormat();
    QTextCharFormat typing;
    typing.setFontWeight(f.bold ? QFont::Bold : QFont::Normal);
    typing.setFontItalic(f.italic);
    typing.setFontUnderline(f.underline);
    if (!f.font.isEmpty()) typing.setFontFamilies({f.font});
    if (f.pointSize > 0) typing.setFontPointSize(f.pointSize);
    if (f.color) typing.setForeground(QColor(f.color->r, f.color->g, f.color->b));
    if (box_.SelLength() == 0) mergeCurrentCharFormat(typing);
    syncing_ = false;
}

void RichTextView::typed() {
    if (syncing_) return;
    feed([&] { box_.edited(fromTextDocument(*document())); });
}

void RichTextView::caretMoved() {
    if (syncing_) return;
    const QTextCursor c = textCursor();
    feed([&] { box_.select(c.selectionStart(), c.selectionEnd() - c.selectionStart()); });
}

}  // namespace sonarium
