#include "info/rtf/RtfReader.h"

#include <QStringDecoder>
#include <algorithm>
#include <climits>
#include <map>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "controls/Windows1252.h"

namespace sonarium {
namespace {

enum class Destination { Text, FontTable, ColorTable, Skip };

// What a group sets and its closing brace takes back.
struct GroupState {
    Destination destination = Destination::Text;
    int font = -1;  // number in the font table; -1: none
    int halfPoints = 0;
    bool bold = false, italic = false, underline = false;
    int color = 0;
    int unicodeSkip = 1;  // \uc: the characters that stand in for each \u
    ParagraphAlignment alignment = ParagraphAlignment::Left;
};

enum class Kind {
    Char,
    Par,
    Bold,
    Italic,
    Underline,
    UnderlineOff,
    FontSize,
    Font,
    Color,
    Plain,
    Pard,
    Align,
    Unicode,
    UnicodeSkip,
    CodePage,
    Ansi,
    FontTable,
    ColorTable,
    Charset,
    Red,
    Green,
    Blue,
    Skip
};

struct Word {
    Kind kind;
    int value = 0;  // the character of Char, the alignment of Align
};

// clang-format off
const std::unordered_map<std::string_view, Word> kWords = {
    {"par", {Kind::Par}}, {"sect", {Kind::Par}}, {"page", {Kind::Par}}, {"row", {Kind::Par}},
    {"line", {Kind::Char, 0x2028}}, {"tab", {Kind::Char, '\t'}}, {"cell", {Kind::Char, '\t'}},
    {"emdash", {Kind::Char, 0x2014}}, {"endash", {Kind::Char, 0x2013}}, {"bullet", {Kind::Char, 0x2022}},
    {"lquote", {Kind::Char, 0x2018}}, {"rquote", {Kind::Char, 0x2019}},
    {"ldblquote", {Kind::Char, 0x201C}}, {"rdblquote", {Kind::Char, 0x201D}},
    {"emspace", {Kind::Char, 0x2003}}, {"enspace", {Kind::Char, 0x2002}},
    {"b", {Kind::Bold}}, {"i", {Kind::Italic}}, {"ul", {Kind::Underline}}, {"uld", {Kind::Underline}},
    {"uldb", {Kind::Underline}}, {"ulw", {Kind::Underline}}, {"ulnone", {Kind::UnderlineOff}},
    {"fs", {Kind::FontSize}}, {"f", {Kind::Font}}, {"cf", {Kind::Color}}, {"plain", {Kind::Plain}},
    {"pard", {Kind::Pard}}, {"ql", {Kind::Align, 0}}, {"qj", {Kind::Align, 0}}, {"qd", {Kind::Align, 0}},
    {"qr", {Kind::Align, 1}}, {"qc", {Kind::Align, 2}}, {"u", {Kind::Unicode}}, {"uc", {Kind::UnicodeSkip}},
    {"ansicpg", {Kind::CodePage}}, {"ansi", {Kind::Ansi}}, {"fonttbl", {Kind::FontTable}},
    {"colortbl", {Kind::ColorTable}}, {"fcharset", {Kind::Charset}},
    {"red", {Kind::Red}}, {"green", {Kind::Green}}, {"blue", {Kind::Blue}},
    // Destinations whose content is not text of the page.
    {"stylesheet", {Kind::Skip}}, {"info", {Kind::Skip}}, {"header", {Kind::Skip}}, {"headerl", {Kind::Skip}},
    {"headerr", {Kind::Skip}}, {"headerf", {Kind::Skip}}, {"footer", {Kind::Skip}}, {"footerl", {Kind::Skip}},
    {"footerr", {Kind::Skip}}, {"footerf", {Kind::Skip}}, {"pict", {Kind::Skip}}, {"object", {Kind::Skip}},
    {"fldinst", {Kind::Skip}}, {"footnote", {Kind::Skip}}, {"annotation", {Kind::Skip}}, {"xe", {Kind::Skip}},
    {"tc", {Kind::Skip}}, {"txe", {Kind::Skip}}, {"rxe", {Kind::Skip}}, {"bkmkstart", {Kind::Skip}},
    {"bkmkend", {Kind::Skip}}, {"listtable", {Kind::Skip}}, {"listoverridetable", {Kind::Skip}},
    {"revtbl", {Kind::Skip}}, {"rsidtbl", {Kind::Skip}}, {"generator", {Kind::Skip}}, {"filetbl", {Kind::Skip}},
    {"nonshppict", {Kind::Skip}}, {"themedata", {Kind::Skip}}, {"colorschememapping", {Kind::Skip}},
    {"latentstyles", {Kind::Skip}}, {"datastore", {Kind::Skip}}, {"pn", {Kind::Skip}}, {"shp", {Kind::Skip}},
    {"private", {Kind::Skip}}, {"template", {Kind::Skip}}, {"atnid", {Kind::Skip}}, {"atnauthor", {Kind::Skip}},
    {"xmlnstbl", {Kind::Skip}}, {"do", {Kind::Skip}},
};
// clang-format on

// Groups nested deeper than any word processor's share the state of the deepest one kept, so
// that a file of nothing but open braces costs no memory for them.
constexpr std::size_t kMaxDepth = 1000;

// Sizes beyond any word processor's largest, 1638 points, are taken as that.
constexpr int kMaxHalfPoints = 3276;

// The code page of the character set a font's \fcharset names, or 0 for the document's own.
int charsetCodePage(int charset) {
    // clang-format off
    static constexpr std::pair<int, int> kPages[] = {
        {0, 1252}, {128, 932}, {129, 949}, {134, 936}, {136, 950}, {161, 1253}, {162, 1254},
        {163, 1258}, {177, 1255}, {178, 1256}, {186, 1257}, {204, 1251}, {222, 874}, {238, 1250}};
    // clang-format on
    for (const auto& [set, page] : kPages) {
        if (set == charset) return page;
    }
    return 0;
}

bool isLetter(char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); }
bool isDigit(char c) { return c >= '0' && c <= '9'; }
int hexValue(char c) {
    if (isDigit(c)) return c - '0';
    if (c >= 'a' && c <= 'f') return c - 'a' + 10;
    if (c >= 'A' && c <= 'F') return c - 'A' + 10;
    return -1;
}

// What a paragraph may hold of a decoder's output: no control character but the tab, no
// paragraph separator, no half of a surrogate pair alone.
QString clean(const QString& s) {
    QString out;
    out.reserve(s.size());
    for (qsizetype i = 0; i < s.size(); ++i) {
        const QChar c = s[i];
        if (c.isHighSurrogate() && i + 1 < s.size() && s[i + 1].isLowSurrogate()) {
            out += c, out += s[++i];
        } else if (c.isSurrogate()) {
            out += QChar::ReplacementCharacter;
        } else if ((c.unicode() >= 0x20 || c == u'\t') && c != QChar::ParagraphSeparator) {
            out += c;
        }
    }
    return out;
}

class Reader {
public:
    explicit Reader(const QByteArray& bytes)
        : p_(bytes.constData()), end_(p_ + std::min(bytes.size(), kMaxRtfBytes)) {}

    RichDocument read() {
        groups_.push_back(GroupState{});  // outside any group
        while (p_ < end_) {
            const char c = *p_++;
            if (c == '{') {
                flush();
                skip_ = 0;
                if (groups_.size() < kMaxDepth)
                    groups_.push_back(state());
                else
                    ++tooDeep_;
            } else if (c == '}') {
                flush();
                skip_ = 0;
                if (tooDeep_ > 0) {
                    --tooDeep_;
                    continue;
                }
                if (groups_.size() <= 2) break;  // the document's own group closes
                if (state().destination == Destination::FontTable) commitFont();
                groups_.pop_back();
            } else if (c == '\\') {
                control();
            } else if (c != '\r' && c != '\n') {
                character(static_cast<unsigned char>(c), false);
            }
        }
        flush();
        settleSurrogate();
        doc_.paragraphs.back().alignment = state().alignment;
        return doc_;
    }

private:
    GroupState& state() { return groups_.back(); }

    // Takes one character that stands in for a \u, if any is still due; true when it did.
    bool skipFallback() {
        if (skip_ == 0) return false;
        --skip_;
        return true;
    }

    // A byte of text, or one of \'hh or \\ \{ \} (`escaped`, never a table's separator).
    void character(unsigned char b, bool escaped) {
        if (skipFallback()) return;
        const bool printable = b >= 0x20 || b == '\t';
        switch (state().destination) {
        case Destination::Text:
            if (printable) pending_ += char(b);
            break;
        case Destination::FontTable:
            if (b == ';' && !escaped)
                commitFont();
            else if (b >= 0x20)
                fontBytes_ += char(b);
            break;
        case Destination::ColorTable:
            if (b == ';' && !escaped) commitColor();
            break;
        case Destination::Skip: break;
        }
    }

    void control() {
        if (p_ == end_) return;
        if (!isLetter(*p_)) return symbol(*p_++);
        const char* start = p_;
        while (p_ < end_ && isLetter(*p_)) ++p_;
        const std::string_view name(start, std::size_t(p_ - start));
        std::optional<int> param;
        const bool negative = p_ + 1 < end_ && *p_ == '-' && isDigit(p_[1]);
        if (negative) ++p_;
        if (p_ < end_ && isDigit(*p_)) {
            qint64 v = 0;
            for (; p_ < end_ && isDigit(*p_); ++p_) v = std::min<qint64>(v * 10 + (*p_ - '0'), INT_MAX);
            param = int(negative ? -v : v);
        }
        if (p_ < end_ && *p_ == ' ') ++p_;
        if (name == "bin") {  // binary data, skipped by its count wherever it is
            p_ += std::clamp<qint64>(param.value_or(0), 0, end_ - p_);
            return;
        }
        if (state().destination == Destination::Skip || skipFallback()) return;
        flush();
        if (const auto it = kWords.find(name); it != kWords.end()) word(it->second, param);
    }

    void word(Word w, std::optional<int> param) {
        GroupState& s = state();
        const bool on = param.value_or(1) != 0;
        const bool text = s.destination == Destination::Text;
        switch (w.kind) {
        case Kind::Char:
            if (text) put(QString(QChar(char16_t(w.value))));
            break;
        case Kind::Par:
            if (text) newParagraph();
            break;
        case Kind::Bold: s.bold = on; break;
        case Kind::Italic: s.italic = on; break;
        case Kind::Underline: s.underline = on; break;
        case Kind::UnderlineOff: s.underline = false; break;
        case Kind::FontSize: s.halfPoints = std::clamp(param.value_or(24), 0, kMaxHalfPoints); break;
        case Kind::Font:
            if (s.destination == Destination::FontTable) {
                commitFont();
                fontNumber_ = param.value_or(0), fontPage_ = 0;
                fontName_.clear(), fontBytes_.clear();
            } else {
                s.font = param.value_or(0);
            }
            break;
        case Kind::Color: s.color = param.value_or(0); break;
        case Kind::Plain:
            s.font = -1, s.halfPoints = 0, s.color = 0;
            s.bold = s.italic = s.underline = false;
            break;
        case Kind::Pard: s.alignment = ParagraphAlignment::Left; break;
        case Kind::Align: s.alignment = ParagraphAlignment(w.value); break;
        case Kind::Unicode:
            if (param) unicode(*param);
            break;
        case Kind::UnicodeSkip: s.unicodeSkip = std::max(param.value_or(1), 0); break;
        case Kind::CodePage:
            if (param) codePage_ = *param;
            break;
        case Kind::Ansi: codePage_ = 1252; break;
        case Kind::FontTable: s.destination = Destination::FontTable; break;
        case Kind::ColorTable: s.destination = Destination::ColorTable; break;
        case Kind::Charset: fontPage_ = charsetCodePage(param.value_or(0)); break;
        case Kind::Red: rgb_[0] = std::clamp(param.value_or(0), 0, 255), anyRgb_ = true; break;
        case Kind::Green: rgb_[1] = std::clamp(param.value_or(0), 0, 255), anyRgb_ = true; break;
        case Kind::Blue: rgb_[2] = std::clamp(param.value_or(0), 0, 255), anyRgb_ = true; break;
        case Kind::Skip: s.destination = Destination::Skip; break;
        }
    }

    // A control symbol: a backslash and one character that is not a letter.
    void symbol(char c) {
        if (c == '\'') {
            int b = 0, digits = 0;
            for (int v; digits < 2 && p_ < end_ && (v = hexValue(*p_)) >= 0; ++digits, ++p_) b = b * 16 + v;
            if (digits > 0) character(static_cast<unsigned char>(b), true);
            return;
        }
        if (c == '\\' || c == '{' || c == '}') return character(static_cast<unsigned char>(c), true);
        if (state().destination == Destination::Skip || skipFallback()) return;
        if (c == '*') {
            state().destination = Destination::Skip;  // an optional destination: none is ours
        } else if (state().destination == Destination::Text) {
            if (c == '~') put(QString(QChar(0x00A0)));
            if (c == '_') put(QString(QChar(0x2011)));
            if (c == '\r' || c == '\n') newParagraph();
        }
    }

    void unicode(int n) {
        skip_ = state().unicodeSkip;
        const QChar c{char16_t(n)};  // the 16-bit unit; negative numbers are the upper half
        if (state().destination == Destination::FontTable && c.unicode() >= 0x20 &&
            c != QChar::LineSeparator && c != QChar::ParagraphSeparator) {
            fontName_ += decodeFontBytes() + c;
        }
        if (state().destination != Destination::Text) return;
        if (c.isLowSurrogate() && !high_.isNull()) {
            const QChar pair[] = {std::exchange(high_, QChar()), c};
            put(QString(pair, 2));
        } else if (c.isHighSurrogate()) {
            settleSurrogate();
            high_ = c;
        } else if (c.isSurrogate()) {
            put(QString(QChar::ReplacementCharacter));
        } else if (c == QChar::ParagraphSeparator) {
            newParagraph();
        } else if (c.unicode() >= 0x20 || c == u'\t') {
            put(QString(c));
        }
    }

    // A first half of a surrogate pair that no second half followed.
    void settleSurrogate() {
        if (!high_.isNull()) append(QString(QChar::ReplacementCharacter)), high_ = QChar();
    }

    void put(const QString& text) {
        flush();
        settleSurrogate();
        append(text);
    }

    void append(const QString& text) {
        const GroupState& s = state();
        CharFormat f;
        if (const auto font = fonts_.find(s.font); font != fonts_.end()) f.font = font->second.name;
        f.pointSize = s.halfPoints / 2.0;
        f.bold = s.bold, f.italic = s.italic, f.underline = s.underline;
        if (s.color > 0 && std::size_t(s.color) < colors_.size()) f.color = colors_[std::size_t(s.color)];
        doc_.paragraphs.back().append(text, f);
    }

    void newParagraph() {
        flush();
        settleSurrogate();
        doc_.paragraphs.back().alignment = state().alignment;
        doc_.paragraphs.append(Paragraph{});
    }

    // The text bytes read since the last control word, in the code page of the font in use.
    void flush() {
        if (pending_.isEmpty()) return;
        const QByteArray bytes = std::exchange(pending_, {});
        settleSurrogate();
        const auto font = fonts_.find(state().font);
        append(
            decode(bytes, font != fonts_.end() && font->second.codePage ? font->second.codePage : codePage_));
    }

    QString decode(const QByteArray& bytes, int codePage) {
        if (codePage != 1252 && codePage != decoderPage_) {
            decoderPage_ = codePage;
            const auto flag = QStringDecoder::Flag::Stateless;
            decoder_ = QStringDecoder(("windows-" + QByteArray::number(codePage)).constData(), flag);
            if (!decoder_.isValid())
                decoder_ = QStringDecoder(("cp" + QByteArray::number(codePage)).constData(), flag);
        }
        if (codePage == 1252 || !decoder_.isValid())
            return decodeWindows1252(bytes.constData(), bytes.size());
        return clean(decoder_.decode(bytes));
    }

    void commitFont() {
        if (fontNumber_ < 0) return;
        fonts_[fontNumber_] = {clean(fontName_ + decodeFontBytes()).trimmed(), fontPage_};
        fontNumber_ = -1, fontName_.clear();
    }

    // The bytes of a font's name read so far, in its character set's code page.
    QString decodeFontBytes() {
        return decode(std::exchange(fontBytes_, {}), fontPage_ ? fontPage_ : codePage_);
    }

    void commitColor() {
        colors_.push_back(anyRgb_ ? std::optional(Color{rgb_[0], rgb_[1], rgb_[2]}) : std::nullopt);
        rgb_[0] = rgb_[1] = rgb_[2] = 0, anyRgb_ = false;
    }

    struct Font {
        QString name;
        int codePage = 0;  // 0: the document's
    };

    const char* p_;
    const char* const end_;
    std::vector<GroupState> groups_;
    RichDocument doc_;
    int skip_ = 0;
    qsizetype tooDeep_ = 0;  // groups open beyond kMaxDepth
    QChar high_;
    QByteArray pending_;
    int codePage_ = 1252;
    int decoderPage_ = 0;
    QStringDecoder decoder_;
    std::map<int, Font> fonts_;
    int fontNumber_ = -1, fontPage_ = 0;
    QString fontName_;  // decoded up to its last unicode character
    QByteArray fontBytes_;
    std::vector<std::optional<Color>> colors_;
    int rgb_[3] = {0, 0, 0};
    bool anyRgb_ = false;
};

}  // namespace

RichDocument readRtf(const QByteArray& bytes) { return Reader(bytes).read(); }

}  // namespace sonarium
