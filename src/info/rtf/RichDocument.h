#pragma once
// A page of formatted text as the viewer, the editor and the karaoke see it, apart from any file
// format: paragraphs with an alignment, each a list of runs of text in one character format.
//
// Inside a paragraph, a line break is U+2028 and a tab '\t'; no other control character
// appears. Runs are kept normalised, so that two documents with the same text and formats
// compare equal however they were built: no empty run, never two adjacent runs of equal
// format, and always at least one paragraph (an empty document is one empty paragraph).
#include <QList>
#include <QString>
#include <optional>

#include "controls/Control.h"

namespace sonarium {

struct CharFormat {
    QString font;          // "" = the box's default font
    double pointSize = 0;  // 0 = the box's default size
    bool bold = false, italic = false, underline = false;
    std::optional<Color> color;  // none = the box's text colour
    bool operator==(const CharFormat&) const = default;
};

struct TextRun {
    QString text;
    CharFormat format;
    bool operator==(const TextRun&) const = default;
};

// The numbers are the editor's.
enum class ParagraphAlignment { Left = 0, Right = 1, Center = 2 };

struct Paragraph {
    ParagraphAlignment alignment = ParagraphAlignment::Left;
    QList<TextRun> runs;

    // Adds text at the end, into the last run when its format is the same; empty text adds nothing.
    void append(const QString& text, const CharFormat& format);
    QString text() const;
    bool operator==(const Paragraph&) const = default;
};

struct RichDocument {
    QList<Paragraph> paragraphs{Paragraph{}};

    // The text of the paragraphs joined with '\n'. A character's position in it is the sum of
    // the lengths of the paragraphs before its own, plus one for each of their breaks, plus its
    // offset in its paragraph, all counted in UTF-16 units; line breaks and tabs count one.
    QString plainText() const;
    // Drops empty runs, merges adjacent runs of equal format, and gives an empty document its
    // one paragraph.
    void normalise();
    bool operator==(const RichDocument&) const = default;
};

}  // namespace sonarium
