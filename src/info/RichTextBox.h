#pragma once
// The rich-text box of the info panel as the logic sees it: a document of formatted text, the
// file it came from, a background colour, a lock against typing, and a selection that
// formatting commands and the karaoke act on. Positions count characters of Text(), where a
// paragraph ends in one '\n'. The view mirrors the document and feeds the user's typing and
// selection back.
#include <QByteArray>
#include <QString>

#include "controls/Control.h"
#include "info/rtf/RichDocument.h"

namespace sonarium {

class RichTextBox : public Control {
public:
    using Control::Control;

    const RichDocument& document() const { return doc_; }
    // A new document from the logic: its text and formats replace the box's.
    void setDocument(RichDocument doc);
    // The user's typing, from the view, which already shows it.
    void edited(RichDocument doc) { doc_ = std::move(doc), doc_.normalise(); }
    // Bumped by every change the logic makes to the document, so that views follow.
    int documentVersion() const { return version_; }

    // The file last loaded; setting a name loads it, and an empty name just forgets it.
    const QString& FileName() const { return fileName_; }
    void setFileName(const QString& file);
    // RuntimeError(FileNotFound) when the file can't be read; the box keeps what it had.
    void LoadFile(const QString& file);
    // The document as RTF and then `trailer`, written whole to a temporary name and renamed
    // into place, so an existing page is never left half written.
    void SaveFile(const QString& file, const QByteArray& trailer = {}) const;
    // Setting the RTF text replaces the document; "" empties the box.
    void setTextRTF(const QByteArray& rtf);

    bool Locked() const { return locked_; }
    void setLocked(bool l) { set(locked_, l); }
    bool TabStop() const { return tabStop_; }
    void setTabStop(bool t) { set(tabStop_, t); }

    QString Text() const { return doc_.plainText(); }
    int SelStart() const { return selStart_; }
    // Moves the caret there (clamped to the text) and empties the selection.
    void setSelStart(int start);
    int SelLength() const { return selLength_; }
    // RuntimeError(InvalidPropertyValue) when negative; cut to the end of the text.
    void setSelLength(int length);
    QString SelText() const { return Text().mid(selStart_, selLength_); }
    // Selection changes from the view, as the user moves the caret or drags.
    void select(int start, int length);

    // Character formats for the selection (with none selected they stand for what is typed
    // next, which the view keeps); the alignment for every paragraph the selection touches.
    void setSelBold(bool on);
    void setSelItalic(bool on);
    void setSelUnderline(bool on);
    void setSelColor(Color c);
    void setSelFontName(const QString& font);
    void setSelFontSize(double points);
    void setSelAlignment(int alignment);  // 0 left, 1 right, 2 centre
    // The format the view gives newly typed text; the selection commands set it.
    const CharFormat& typingFormat() const { return typing_; }

private:
    void changeDocument();
    template <typename Change>
    void formatSelection(const Change& change);

    RichDocument doc_;
    int version_ = 0;
    QString fileName_;
    bool locked_ = false, tabStop_ = true;
    int selStart_ = 0, selLength_ = 0;
    CharFormat typing_;
};

}  // namespace sonarium
