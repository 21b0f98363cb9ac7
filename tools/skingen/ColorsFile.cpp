// Colors.txt: a heading, then a line of its own for each label and each colour, so that the
// fields fall in their order (two labels before each background, one before each text colour,
// two before each of the last two text colours). Lines end in CR LF.
#include <QColor>
#include <QStringList>

#include "Sheets.h"

namespace sonarium::skingen {

QByteArray colorsText(const Theme& t) {
    auto rgb = [](const QColor& c) {
        return QStringLiteral("%1,%2,%3").arg(c.red()).arg(c.green()).arg(c.blue());
    };
    const QStringList lines = {
        QStringLiteral("Colors for Sonarium - %1 skin").arg(t.name),
        QStringLiteral("Directory and drive lists background"),
        rgb(t.dirBack),
        QStringLiteral("Directory and drive lists text"),
        rgb(t.dirText),
        QStringLiteral("Song queue"),
        QStringLiteral("Song queue background"),
        rgb(t.queueBack),
        QStringLiteral("Song queue text"),
        rgb(t.queueText),
        QStringLiteral("Library grid"),
        QStringLiteral("Library grid background"),
        rgb(t.gridBack),
        QStringLiteral("Library grid text"),
        rgb(t.gridText),
        QStringLiteral("Title labels"),
        QStringLiteral("Title labels text"),
        rgb(t.titleText),
        QStringLiteral("Speed and time displays"),
        QStringLiteral("Speed and time displays text"),
        rgb(t.displayText),
    };
    return (lines.join(QStringLiteral("\r\n")) + QStringLiteral("\r\n")).toUtf8();
}

}  // namespace sonarium::skingen
