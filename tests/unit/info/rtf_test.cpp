// RTF in and out: documents written and read back equal, the bytes of a small page, the RTF that
// word processors write, and input that is not RTF.
#include <gtest/gtest.h>

#include <random>

#include "QtPrinters.h"
#include "info/rtf/RtfReader.h"
#include "info/rtf/RtfWriter.h"
#include "unit/info/StyleTable.h"

namespace sonarium {
namespace {

using namespace Qt::Literals::StringLiterals;

// One line per paragraph, "R:" or "C:" before a right or centred one; a run with a format as
// "[font size b i u #rrggbb:text]".
QString show(const RichDocument& d) {
    QStringList paragraphs;
    for (const Paragraph& p : d.paragraphs) {
        QString s = QStringList{"", "R:", "C:"}[int(p.alignment)];
        for (const TextRun& r : p.runs) {
            const CharFormat& f = r.format;
            QStringList a;
            if (!f.font.isEmpty()) a << f.font;
            if (f.pointSize) a << QString::number(f.pointSize);
            if (f.bold) a << "b";
            if (f.italic) a << "i";
            if (f.underline) a << "u";
            if (f.color) a << QString::asprintf("#%02x%02x%02x", f.color->r, f.color->g, f.color->b);
            s += a.isEmpty() ? r.text : "[" + a.join(' ') + ":" + r.text + "]";
        }
        paragraphs << s;
    }
    return paragraphs.join('|');
}

}  // namespace

TEST(Rtf, DocumentsWrittenReadBackEqualAndASmallPageHasItsExactBytes) {
    for (const RichDocument& d : styleTable())
        EXPECT_EQ(show(readRtf(writeRtf(d))), show(d)) << writeRtf(d).data();

    const RichDocument page{
        {{ParagraphAlignment::Center, {{"Hi", {"", 0, true, false, false, {}}}, {" there", {}}}},
         {ParagraphAlignment::Right,
          {{u"\u00dc\u20ac\u0416\t"_s, {"", 0, false, true, false, Color{255, 0, 0}}}}}}};
    EXPECT_EQ(writeRtf(page),
              "{\\rtf1\\ansi\\ansicpg1252\\deff0{\\fonttbl{\\f0\\fnil\\fcharset0 Arial;}}\r\n"
              "{\\colortbl;\\red255\\green0\\blue0;}\r\n"
              "\\pard\\qc\\plain\\b Hi\\plain  there\\par\r\n"
              "\\pard\\qr\\plain\\i\\cf1\\'dc\\'80\\u1046?\\tab}\r\n");
    EXPECT_EQ(readRtf(writeRtf(page)), page);
    EXPECT_EQ(page.plainText(), u"Hi there\n\u00dc\u20ac\u0416\t"_s);
}

TEST(Rtf, ReadsWhatWordProcessorsWrite) {
    const std::pair<const char*, QString> cases[] = {
        {R"({\rtf1{\fonttbl{\f0\fswiss Arial;}{\f1 Times;}}{\colortbl;\red255\green0\blue0;}\f1\fs20\cf1 a\cf0\f0 b\plain c})",
         "[Times 10 #ff0000:a][Arial 10:b]c"},
        {R"({\rtf1\qc\b b\b0\i i\i0\ul u\ulnone\ul v\ul0 w\par\pard\qr r\par\qj j\par})",
         "C:[b:b][i:i][u:uv]w|R:r|j|"},
        {R"({\rtf1\u8364?\u-10179?\u-8694?{\uc0\u1046}\uc2\u1046xyz})", u"\u20ac\U0001F60A\u0416\u0416z"_s},
        {R"({\rtf1\ansi caf\'e9\'80}{\rtf1\ansi\ansicpg1251 \'c0\'e1})", u"caf\u00e9\u20ac"_s},
        {R"({\rtf1\ansi\ansicpg1251 \'c0\'e1\ansicpg932 \'82\'a0})", u"\u0410\u0431\u3042"_s},
        {R"({\rtf1{\fonttbl{\f0\fcharset204{\*\panose 0}Arial Cyr;}}\f0\'c0})", u"[Arial Cyr:\u0410]"_s},
        {R"({\rtf1 a{\*\foo b{c}}{\stylesheet{\s0 N;}}{\info{\title T}}{\header H}d})", "ad"},
        {R"({\rtf1 a{\pict\pngblip 89504e470d0a}b{\pict\bin5 }}{{\}c})", "abc"},
        {R"({\rtf1 see {\field{\*\fldinst HYPERLINK "x"}{\fldrslt site}} {\field{\fldinst X}{\fldrslt Y}}})",
         "see site Y"},
        {R"({\rtf1 \emdash\endash\bullet\lquote\rquote\ldblquote\rdblquote a\~b\-c\_d\tab e\line f\\\{\}})",
         u"\u2014\u2013\u2022\u2018\u2019\u201c\u201da\u00a0bc\u2011d\te\u2028f\\{}"_s},
        {"{\\rtf1 a\r\nb}\r\n{\\bc\\13156270;-bc}\r\n", "ab"},
    };
    for (const auto& [rtf, expected] : cases) EXPECT_EQ(show(readRtf(rtf)), expected) << rtf;
}

TEST(Rtf, BadInputGivesWhatCanBeRead) {
    EXPECT_EQ(readRtf(""), RichDocument{});
    EXPECT_EQ(show(readRtf(R"({\rtf1 a{\b b\'e)")), "a[b:b]");
    EXPECT_EQ(readRtf(QByteArray(10000, '{') + "x").plainText(), "x");
    std::mt19937 rng(7);
    for (int i = 0; i < 50; ++i) {
        QByteArray junk(4000, '\0');
        for (char& c : junk)
            c = char(rng() % 2 ? rng() : "{}\\ab;'0 u"[rng() % 10]);  // binary and RTF's signs
        const RichDocument d = readRtf(junk);
        EXPECT_EQ(readRtf(writeRtf(d)), d);
    }
}

}  // namespace sonarium
