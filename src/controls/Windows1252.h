#pragma once
// Windows-1252, the code page of ID3v1 text on the system the tags come from. Every byte
// decodes to one character (0x81, 0x8D, 0x8F, 0x90 and 0x9D, undefined in the code page,
// become U+0081.. as they stand), so decoding is lossless and encoding what was decoded gives
// the same bytes back.
#include <QByteArray>
#include <QString>

namespace sonarium {

QString decodeWindows1252(const char* bytes, qsizetype length);

// One byte per character; a character the code page cannot hold becomes '?', one '?' for a
// whole character even when it takes two UTF-16 units.
QByteArray encodeWindows1252(const QString& text);

}  // namespace sonarium
