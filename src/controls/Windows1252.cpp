#include "controls/Windows1252.h"

#include <QList>
#include <array>

namespace sonarium {
namespace {

// 0x80..0x9F; the rest of the code page is Latin-1, where byte = code point.
constexpr std::array<char16_t, 32> kHigh = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,  // 80-87
    0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,  // 88-8F
    0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,  // 90-97
    0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178,  // 98-9F
};

char16_t decodeByte(unsigned char b) { return b >= 0x80 && b <= 0x9F ? kHigh[b - 0x80] : char16_t(b); }

// The byte of a code point, or -1 when the code page has none.
int encodeCodePoint(uint c) {
    if (c < 0x80 || (c >= 0xA0 && c <= 0xFF)) return int(c);
    for (int i = 0; i < int(kHigh.size()); ++i) {
        if (kHigh[i] == c) return 0x80 + i;
    }
    return -1;
}

}  // namespace

QString decodeWindows1252(const char* bytes, qsizetype length) {
    QString text(length, Qt::Uninitialized);
    for (qsizetype i = 0; i < length; ++i) text[i] = QChar(decodeByte(static_cast<unsigned char>(bytes[i])));
    return text;
}

QByteArray encodeWindows1252(const QString& text) {
    QByteArray out;
    out.reserve(text.size());
    for (const uint c : text.toUcs4()) {
        const int b = encodeCodePoint(c);
        out.append(b < 0 ? '?' : char(b));
    }
    return out;
}

}  // namespace sonarium
