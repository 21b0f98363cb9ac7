#include "info/rtf/RtfWriter.h"

#include <QHash>
#include <QStringList>
#include <algorithm>

#include "controls/Windows1252.h"

namespace sonarium {
namespace {

// The colour as one number, each part kept to 0..255.
int rgb(const Color& c) {
    return std::clamp(c.r, 0, 255) | std::clamp(c.g, 0, 255) << 8 | std::clamp(c.b, 0, 255) << 16;
}

class Writer {
public:
    // A control word, with its number if any. Text after it gets a space to end it.
    void word(const char* name, std::optional<int> param = {}) {
        out_ += name;
        if (param) out_ += QByteArray::number(*param);
        afterWord_ = true;
    }

    // Bytes that end any control word before them by themselves.
    void raw(const QByteArray& bytes) {
        out_ += bytes;
        afterWord_ = false;
    }

    // `text` escaped; in a font name (`inTable`), where ';' ends the name, that too.
    void text(const QString& text, bool inTable = false) {
        for (const QChar c : text) {
            const char16_t u = c.unicode();
            if (u == '\\' || u == '{' || u == '}') {
                raw(QByteArray("\\") + char(u));
            } else if (u == '\t') {
                word("\\tab");
            } else if (c == QChar::LineSeparator) {
                word("\\line");
            } else if (u < 0x20) {
                continue;  // no other control character has a place in a paragraph
            } else if (u < 0x80 && !(inTable && u == ';')) {
                if (afterWord_) out_ += ' ';
                raw(QByteArray(1, char(u)));
            } else if (const QByteArray b = encodeWindows1252(QString(c)); b != "?" || u == '?') {
                raw("\\'" + b.toHex());
            } else {
                word("\\u", qint16(u));  // the signed 16-bit form, as RTF numbers are
                raw("?");
            }
        }
    }

    QByteArray bytes() const { return out_; }

private:
    QByteArray out_;
    bool afterWord_ = false;
};

}  // namespace

QByteArray writeRtf(const RichDocument& doc) {
    // The fonts and colours the runs use, in order of first use, give the tables' numbers.
    QStringList fonts;
    QList<int> colors;  // RGB values
    QHash<QString, int> fontNumber;
    QHash<int, int> colorNumber;  // by the colour's RGB value; colour 0 is the automatic one
    for (const Paragraph& p : doc.paragraphs) {
        for (const TextRun& r : p.runs) {
            const CharFormat& f = r.format;
            if (!f.font.isEmpty() && !fontNumber.contains(f.font)) {
                fontNumber.insert(f.font, int(fonts.size()));
                fonts.append(f.font);
            }
            if (f.color && !colorNumber.contains(rgb(*f.color))) {
                colorNumber.insert(rgb(*f.color), int(colors.size()) + 1);
                colors.append(rgb(*f.color));
            }
        }
    }
    Writer w;
    w.raw("{\\rtf1\\ansi\\ansicpg1252\\deff0{\\fonttbl");
    const QStringList table = fonts.isEmpty() ? QStringList{QStringLiteral("Arial")} : fonts;
    for (qsizetype i = 0; i < table.size(); ++i) {
        w.raw("{");
        w.word("\\f", int(i));
        w.word("\\fnil");
        w.word("\\fcharset0");
        w.text(table[i], true);
        w.raw(";}");
    }
    w.raw("}\r\n");
    if (!colors.isEmpty()) {
        w.raw("{\\colortbl;");
        for (const int c : colors) {
            w.word("\\red", c & 0xFF);
            w.word("\\green", c >> 8 & 0xFF);
            w.word("\\blue", c >> 16);
            w.raw(";");
        }
        w.raw("}\r\n");
    }
    static const char* const kAlign[] = {"\\ql", "\\qr", "\\qc"};
    for (const Paragraph& p : doc.paragraphs) {
        if (&p != &doc.paragraphs.front()) w.raw("\\par\r\n");
        w.raw("\\pard");
        w.word(kAlign[std::clamp(int(p.alignment), 0, 2)]);
        for (const TextRun& r : p.runs) {
            const CharFormat& f = r.format;
            w.word("\\plain");
            if (!f.font.isEmpty()) w.word("\\f", fontNumber.value(f.font));
            if (const int half = qRound(std::clamp(f.pointSize, 0.0, 1638.0) * 2); half > 0)
                w.word("\\fs", half);
            if (f.bold) w.word("\\b");
            if (f.italic) w.word("\\i");
            if (f.underline) w.word("\\ul");
            if (f.color) w.word("\\cf", colorNumber.value(rgb(*f.color)));
            w.text(r.text);
        }
    }
    w.raw("}\r\n");
    return w.bytes();
}

}  // namespace sonarium
