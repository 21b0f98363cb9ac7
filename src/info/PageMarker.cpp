#include "info/PageMarker.h"

#include <QString>
#include <cmath>

#include "shell/TextFields.h"

namespace sonarium {

QByteArray pageMarkerLine(Color c) {
    const qint64 n = c.r + 256 * qint64(c.g) + 65536 * qint64(c.b);
    return "{\\bc\\" + QByteArray::number(n) + ";-bc}\r\n";
}

std::optional<Color> pageMarkerColour(const QByteArray& lastLine) {
    const qsizetype p = lastLine.indexOf("{\\bc");
    if (p < 0) return std::nullopt;
    const double v = leadingNumber(QString::fromLatin1(lastLine.mid(p + 5)));
    if (!std::isfinite(v) || std::fabs(v) > 2147483647.0) return std::nullopt;
    const auto n = std::uint32_t(std::int32_t(roundHalfEven(v)));
    return Color{int(n & 0xFF), int((n >> 8) & 0xFF), int((n >> 16) & 0xFF)};
}

QByteArray lastLineOf(const QByteArray& bytes) {
    QByteArray text = bytes;
    while (text.endsWith('\n') || text.endsWith('\r')) text.chop(1);
    const qsizetype cut = std::max(text.lastIndexOf('\n'), text.lastIndexOf('\r'));
    return text.mid(cut + 1);
}

}  // namespace sonarium
