#include "ui/views/RichTextConvert.h"

#include <QTextBlock>
#include <QTextCursor>

namespace sonarium {
namespace {

// By the numbers of ParagraphAlignment.
constexpr Qt::Alignment kAlign[] = {Qt::AlignLeft, Qt::AlignRight, Qt::AlignHCenter};

QTextCharFormat toQt(const CharFormat& f) {
    QTextCharFormat q;
    if (!f.font.isEmpty()) q.setFontFamilies(QStringList{f.font});
    if (f.pointSize > 0) q.setFontPointSize(f.pointSize);
    if (f.bold) q.setFontWeight(QFont::Bold);
    if (f.italic) q.setFontItalic(true);
    if (f.underline) q.setFontUnderline(true);
    if (f.color) q.setForeground(QColor(f.color->r, f.color->g, f.color->b));
    return q;
}

CharFormat fromQt(const QTextCharFormat& q) {
    CharFormat f;
    f.font = q.fontFamilies().toStringList().value(0, q.stringProperty(QTextFormat::FontFamily));
    if (q.hasProperty(QTextFormat::FontPointSize)) f.pointSize = qRound(q.fontPointSize() * 2) / 2.0;
    f.bold = q.fontWeight() >= QFont::DemiBold;
    f.italic = q.fontItalic();
    f.underline = q.fontUnderline();
    if (q.hasProperty(QTextFormat::ForegroundBrush) && q.foreground().style() != Qt::NoBrush) {
        const QColor c = q.foreground().color();
        f.color = Color{c.red(), c.green(), c.blue()};
    }
    return f;
}

}  // namespace

void fillTextDocument(const RichDocument& doc, QTextDocument& out) {
    out.clear();
    QTextCursor cursor(&out);
    for (const Paragraph& p : doc.paragraphs) {
        QTextBlockFormat block;
        block.setAlignment(kAlign[std::clamp(int(p.alignment), 0, 2)]);
        if (&p == &doc.paragraphs.front())
            cursor.setBlockFormat(block);
        else
            cursor.insertBlock(block, QTextCharFormat());
        for (const TextRun& r : p.runs) cursor.insertText(r.text, toQt(r.format));
    }
}

RichDocument fromTextDocument(const QTextDocument& doc) {
    RichDocument out;
    out.paragraphs.clear();
    for (QTextBlock b = doc.begin(); b.isValid(); b = b.next()) {
        Paragraph p;
        const Qt::Alignment a = b.blockFormat().alignment() & Qt::AlignHorizontal_Mask;
        p.alignment = a == Qt::AlignRight     ? ParagraphAlignment::Right
                      : a == Qt::AlignHCenter ? ParagraphAlignment::Center
                                              : ParagraphAlignment::Left;
        for (auto it = b.begin(); !it.atEnd(); ++it)
            p.append(it.fragment().text(), fromQt(it.fragment().charFormat()));
        out.paragraphs.append(p);
    }
    out.normalise();
    return out;
}

}  // namespace sonarium
