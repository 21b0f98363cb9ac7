#include "info/rtf/RichDocument.h"

namespace sonarium {

void Paragraph::append(const QString& text, const CharFormat& format) {
    if (text.isEmpty()) return;
    if (!runs.isEmpty() && runs.back().format == format)
        runs.back().text += text;
    else
        runs.append({text, format});
}

QString Paragraph::text() const {
    QString t;
    for (const TextRun& r : runs) t += r.text;
    return t;
}

QString RichDocument::plainText() const {
    QString t;
    for (const Paragraph& p : paragraphs) {
        if (&p != &paragraphs.front()) t += u'\n';
        t += p.text();
    }
    return t;
}

void RichDocument::normalise() {
    if (paragraphs.isEmpty()) paragraphs.append(Paragraph{});
    for (Paragraph& p : paragraphs) {
        Paragraph merged{p.alignment, {}};
        for (const TextRun& r : std::as_const(p.runs)) merged.append(r.text, r.format);
        p = std::move(merged);
    }
}

}  // namespace sonarium
