// The picture shown when a song has no photo of its own: a record on the glass and the
// program's name beside it, with a small level display in the theme's light.
#include <QFontMetrics>
#include <QPainterPath>

#include "Paint.h"
#include "Sheets.h"

namespace sonarium::skingen {

void paintRecord(QPainter& p, QPointF centre, double radius, const Theme& t, const QColor& label,
                 bool grooves) {
    // Every measure was first set on a record of radius 52 and scales with it.
    const double s = radius / 52;
    p.save();
    p.setRenderHint(QPainter::Antialiasing, true);
    // Black vinyl, its grooves, a soft sheen across, and the label.
    p.setPen(QPen(QColor(0, 0, 0, 160), 1));
    p.setBrush(QColor(0x0a, 0x0a, 0x0b));
    p.drawEllipse(centre, radius, radius);
    p.setBrush(Qt::NoBrush);
    int k = 0;
    for (double g = radius - 4 * s; grooves && g > 22 * s; g -= 2.5 * s, ++k) {
        p.setPen(QPen(QColor(255, 255, 255, k % 2 ? 22 : 12), s));
        p.drawEllipse(centre, g, g);
    }
    QConicalGradient sheen(centre, 45);
    sheen.setColorAt(0, QColor(255, 255, 255, 0));
    sheen.setColorAt(0.12, QColor(255, 255, 255, 40));
    sheen.setColorAt(0.25, QColor(255, 255, 255, 0));
    sheen.setColorAt(0.5, QColor(255, 255, 255, 0));
    sheen.setColorAt(0.62, QColor(255, 255, 255, 30));
    sheen.setColorAt(0.75, QColor(255, 255, 255, 0));
    sheen.setColorAt(1, QColor(255, 255, 255, 0));
    p.setPen(Qt::NoPen);
    p.setBrush(sheen);
    p.drawEllipse(centre, radius - 3 * s, radius - 3 * s);
    QRadialGradient face(centre - QPointF(4, 5) * s, 22 * s);
    face.setColorAt(0, label.lighter(125));
    face.setColorAt(1, label.darker(135));
    p.setBrush(face);
    p.drawEllipse(centre, 18 * s, 18 * s);
    if (grooves) {
        p.setPen(QPen(label.darker(200), s));
        p.setBrush(Qt::NoBrush);
        p.drawEllipse(centre, 12 * s, 12 * s);
        p.setPen(Qt::NoPen);
    }
    p.setBrush(t.glass);
    p.drawEllipse(centre, 2.5 * s, 2.5 * s);
    p.restore();
}

void paintPhotoArt(QPainter& p, const QRect& r, const Theme& t) {
    QRadialGradient back(QPointF(r.width() * 0.3, r.height() * 0.45), r.width() * 0.8);
    back.setColorAt(0, t.glassTop.lighter(135));
    back.setColorAt(1, t.glass);
    p.fillRect(r, back);

    p.save();
    p.setRenderHint(QPainter::Antialiasing, true);
    paintRecord(p, QPointF(60, 64), 52, t, t.amber, true);

    // The name, with a thin line of the theme's light under it.
    QFont name = pixelFont(22, true, true);
    name.setLetterSpacing(QFont::PercentageSpacing, 96);
    const QString word = QStringLiteral("Sonarium");
    const int left = 122;
    while (QFontMetrics(name).horizontalAdvance(word) > r.width() - left - 6 && name.pixelSize() > 12)
        name.setPixelSize(name.pixelSize() - 1);
    p.setFont(name);
    p.setPen(t.glassText);
    p.drawText(QPointF(left, 58), word);
    const int wordW = QFontMetrics(name).horizontalAdvance(word);
    QLinearGradient underline(left, 0, left + wordW, 0);
    underline.setColorAt(0, t.glassLit);
    underline.setColorAt(1, QColor(t.glassLit.red(), t.glassLit.green(), t.glassLit.blue(), 0));
    p.fillRect(QRectF(left, 64, wordW, 1), underline);
    p.restore();

    crispText(p, QRect(left, 68, wordW, 10), QStringLiteral("MUSIC JUKEBOX"), t.glassText.darker(140), 8,
              false, Qt::AlignLeft);

    // A level display: bars rising and falling like the bands of a song's sound.
    const int heights[] = {6, 10, 15, 12, 18, 22, 17, 13, 19, 15, 11, 8, 12, 9, 6, 4};
    int x = left;
    for (int h : heights) {
        if (x + 4 > r.width() - 6) break;
        for (int y = 0; y < h; y += 2) {
            const double f = double(y) / 22;
            const QColor c = f > 0.8 ? t.red : f > 0.55 ? t.amber : t.glassLit;
            p.fillRect(QRect(x, 112 - y, 4, 1), c);
        }
        x += 6;
    }
}

}  // namespace sonarium::skingen
