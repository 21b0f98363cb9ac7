#include "Icon.h"

#include <QDir>
#include <QPainterPath>
#include <cmath>

#include "Paint.h"
#include "Sheets.h"
#include "SkinFiles.h"

namespace sonarium::skingen {

namespace {

constexpr int iconSizes[] = {16, 22, 24, 32, 48, 64, 128, 256, 512};

// Level bars rising and falling, as fractions of the meter's height.
constexpr double levels[] = {0.55, 0.9, 0.7, 0.4};

// The lit colour of a meter segment at `f` of the meter's height, as on the no-photo picture.
QColor levelColour(const Theme& t, double f) { return f > 0.8 ? t.red : f > 0.55 ? t.amber : t.lit; }

}  // namespace

QImage drawIcon(const Theme& t, int px) {
    // Below 32 pixels every edge lands on a whole pixel and the detail goes: a blurred copy of
    // the large design would turn to mud there.
    const bool small = px < 32;
    auto snap = [&](double v) { return small ? std::round(v) : v; };
    QImage icon(px, px, QImage::Format_ARGB32_Premultiplied);
    icon.fill(Qt::transparent);
    QPainter p(&icon);
    p.setRenderHint(QPainter::Antialiasing, true);

    const double margin = small ? 1 : px / 16.0;
    const QRectF tile(margin, margin, px - 2 * margin, px - 2 * margin);
    const double side = tile.width();
    const double corner = small ? 2.5 : side * 0.17;
    QPainterPath outline;
    outline.addRoundedRect(tile, corner, corner);

    // A soft shadow under the tile, where there is room for one.
    if (!small) {
        p.setPen(Qt::NoPen);
        for (int k = 3; k >= 1; --k) {
            p.setBrush(QColor(0, 0, 0, 36));
            const double grow = margin * k / 8;
            p.drawRoundedRect(tile.adjusted(-grow, -grow + margin / 4, grow, grow + margin / 4),
                              corner + grow, corner + grow);
        }
    }
    QImage metal(tile.size().toSize(), QImage::Format_RGB32);
    QPainter mp(&metal);
    paintMetal(mp, metal.rect(), t, seedOf("icon"));
    mp.end();
    p.setBrushOrigin(tile.topLeft());
    p.setBrush(QBrush(metal));
    p.setPen(Qt::NoPen);
    p.drawPath(outline);
    // The tile's edge: dark all round, lit along the top as the panels are.
    const double line = small ? 1 : std::max(1.0, px / 128.0);
    QLinearGradient light(tile.topLeft(), tile.bottomLeft());
    light.setColorAt(0, t.bevelLight);
    light.setColorAt(0.5, QColor(t.bevelLight.red(), t.bevelLight.green(), t.bevelLight.blue(), 0));
    p.setBrush(Qt::NoBrush);
    p.setPen(QPen(QBrush(light), line));
    p.drawRoundedRect(tile.adjusted(line * 1.5, line * 1.5, -line * 1.5, -line * 1.5), corner - line,
                      corner - line);
    p.setPen(QPen(t.bevelDark, line));
    p.drawRoundedRect(tile.adjusted(line / 2, line / 2, -line / 2, -line / 2), corner, corner);

    // The record on the left; a slot of glass with the level meter on the right.
    // Small sizes give the meter a larger share, so that its bars stay whole pixels apart.
    const double diameter = snap(side * (small ? 0.56 : 0.6));
    const double recordLeft = tile.left() + snap(side * 0.07);
    const double recordTop = tile.top() + snap((side - diameter) / 2);
    const QPointF centre(recordLeft + diameter / 2, recordTop + diameter / 2);
    // The record lies on the metal and casts a faint shadow on it, too soft for small sizes.
    if (!small) {
        p.setPen(Qt::NoPen);
        p.setBrush(QColor(0, 0, 0, 70));
        p.drawEllipse(centre + QPointF(0, side * 0.015), diameter / 2 + side * 0.01,
                      diameter / 2 + side * 0.01);
    }
    // The record's dark rim is drawn half a pixel inside its edge, so that the edge stays sharp.
    paintRecord(p, centre, diameter / 2 - 0.5, t, t.lit, !small);

    const double slotRight = tile.right() - snap(side * 0.08);
    const double slotTop = tile.top() + snap(side * 0.2);
    const QRect slot = QRectF(QPointF(slotRight - snap(side * (small ? 0.24 : 0.2)), slotTop),
                              QPointF(slotRight, tile.bottom() - (slotTop - tile.top())))
                           .toRect();
    const int gap = small ? 1 : std::max(1, px / 64);
    const int pad = px < 48 ? 0 : gap;
    if (small)
        p.fillRect(slot, t.glass);
    else
        well(p, slot, t, px >= 64);
    // As many bars as fit, up to four, each at least `least` pixels wide.
    const int least = px < 22 ? 1 : std::max(2, px / 64);
    const int bars = std::clamp((slot.width() - 2 * pad + gap) / (least + gap), 1, 4);
    const int barWidth = (slot.width() - 2 * pad - (bars - 1) * gap) / bars;
    // Each bar is a ladder of segments `pitch` apart with a dark line between them; the small
    // ones are solid.
    const int pitch = small ? 1 : std::max(2, px / 40);
    const int segment = pitch == 1 ? 1 : pitch - std::max(1, pitch / 4);
    const int room = (slot.height() - 2 * pad) / pitch;
    int x = slot.left() + (slot.width() - bars * barWidth - (bars - 1) * gap) / 2;
    for (int b = 0; b < bars; ++b, x += barWidth + gap) {
        const int lit = int(std::lround(room * levels[b]));
        for (int s = 0; s < room; ++s) {
            const QColor c = s < lit ? levelColour(t, double(s + 1) / room) : mixColour(t.glass, t.lit, 14);
            const int y = slot.bottom() + 1 - pad - (s + 1) * pitch;
            p.fillRect(QRect(x, y, barWidth, segment), c);
        }
    }
    return icon.convertToFormat(QImage::Format_ARGB32);
}

bool writeIcons(const Theme& t, const QString& dir, const QString& previewDir, QString& error) {
    for (int px : iconSizes) {
        const QString folder = QStringLiteral("%1/hicolor/%2x%2/apps").arg(dir).arg(px);
        const QString path = folder + QStringLiteral("/sonarium.png");
        const QImage icon = drawIcon(t, px);
        if (!QDir().mkpath(folder)) {
            error = QStringLiteral("cannot create %1").arg(folder);
            return false;
        }
        if (!saveImage(icon, path, "PNG", error) || !checkImage(icon, path, error)) return false;
        if (px == 256 && !previewDir.isEmpty() &&
            !(QDir().mkpath(previewDir) && icon.save(previewDir + QStringLiteral("/Icon-256.png"), "PNG"))) {
            error = QStringLiteral("cannot write %1/Icon-256.png").arg(previewDir);
            return false;
        }
    }
    return true;
}

}  // namespace sonarium::skingen
