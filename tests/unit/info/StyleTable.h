#pragma once
// Documents that use every part of the model, for the tests of the RTF and QTextDocument round trips.
#include <QList>

#include "info/rtf/RichDocument.h"

namespace sonarium {

// Each style, each alignment, a colour, text in and out of Windows-1252 with a tab and a line
// break, and empty paragraphs.
inline const QList<RichDocument>& styleTable() {
    using namespace Qt::Literals::StringLiterals;
    const CharFormat plain, bold{"", 0, true, false, false, {}}, italic{"", 0, false, true, false, {}};
    const CharFormat underline{"", 0, false, false, true, {}},
        sized{"Times New Roman", 14.5, false, false, false, {}};
    const CharFormat red{"Arial", 0, true, true, true, Color{255, 0, 0}};
    static const QList<RichDocument> docs = {
        {{{ParagraphAlignment::Left,
           {{"a ", plain}, {"bold", bold}, {"italic", italic}, {"under", underline}}}}},
        {{{ParagraphAlignment::Center, {{"Big", sized}, {"red", red}}},
          {ParagraphAlignment::Right, {{"right", plain}}},
          {}}},
        {{{ParagraphAlignment::Left,
           {{u"caf\u00e9 \u20ac\t\u201cq\u201d\u2028\u0416 \u65e5 \U0001F600 \\{x};"_s, plain}}}}},
        {},
    };
    return docs;
}

}  // namespace sonarium
