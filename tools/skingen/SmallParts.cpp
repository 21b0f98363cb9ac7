// The small pictures: knobs, arrows, lamps, badges, legends and the icon buttons. Those that do
// not fill their place start from the pixels of the panel under it.
#include <QPainterPath>

#include "Paint.h"
#include "Pieces.h"
#include "WindowPlaces.h"

namespace sonarium::skingen {

namespace {

// Grip ridges across a knob: a dark line with a light one under it.
void ridge(QPainter& p, int x, int y, int w, const Theme& t) {
    p.fillRect(QRect(x, y, w, 1), t.plateDark);
    p.fillRect(QRect(x, y + 1, w, 1), t.plateLight);
}

}  // namespace

void paintFaderKnob(QPainter& p, const QRect& r, const Theme& t) {
    plate(p, r, t, false);
    for (int y : {3, 5, 11, 13}) ridge(p, 2, y, r.width() - 4, t);
    p.fillRect(QRect(1, r.height() / 2 - 1, r.width() - 2, 2), t.lit);
}

void paintSongKnob(QPainter& p, const QRect& r, const PieceContext& c) {
    p.drawImage(0, 0, c.ground("PicTopPanel", places::songKnob));
    plate(p, r, c.theme, false);
    p.fillRect(QRect(r.width() / 2 - 1, 2, 2, r.height() - 4), c.theme.lit);
}

void paintSongTrack(QPainter& p, const QRect& r, const Theme& t) {
    p.fillRect(QRect(0, 0, r.width(), 1), mixColour(t.glass, t.glassText, 22));
    p.fillRect(QRect(0, 1, r.width(), 1), mixColour(t.glass, t.glassLit, 55));
    p.fillRect(QRect(0, 2, r.width(), 1), mixColour(t.glass, t.glassText, 10));
}

void paintColumnMenu(QPainter& p, const QRect& r, const PieceContext& c) {
    p.drawImage(0, 0, c.databaseGround(places::columnMenu(0)));
    const QPoint base(r.width() / 2, 4);
    triangle(p, base + QPoint(0, 1), 4, Pointing::Down, c.theme.bevelLight);
    triangle(p, base, 4, Pointing::Down, c.theme.legend);
}

void paintColumnFace(QPainter& p, const QRect& r, const Theme& t, int kind) {
    if (kind == 2) {
        // The filter's face is blue, with a white funnel.
        QLinearGradient face(r.topLeft(), r.bottomLeft());
        face.setColorAt(0, t.blue.lighter(135));
        face.setColorAt(1, t.blue.darker(115));
        p.fillRect(r, face);
        bevel(p, r, t.blue.lighter(170), t.blue.darker(220));
        const QColor white(0xf4, 0xf8, 0xff);
        for (int k = 0; k < 4; ++k) p.fillRect(QRect(3 + k, 4 + k, 11 - 2 * k, 1), white);
        p.fillRect(QRect(7, 8, 3, 5), white);
        return;
    }
    plate(p, r, t, false);
    if (kind == 1) {
        // The order button: an arrow lit in amber, the order running up from it.
        triangle(p, QPoint(8, 10), 5, Pointing::Up, t.amber);
        p.fillRect(QRect(7, 11, 3, 2), t.amber);
    }
}

void paintSizeButton(QPainter& p, const QRect& r, const Theme& t, bool rollUp) {
    plate(p, r, t, false);
    if (rollUp)
        triangle(p, QPoint(5, 6), 3, Pointing::Up, t.caption);
    else
        triangle(p, QPoint(5, 4), 3, Pointing::Down, t.caption);
}

void paintMonoStereo(QPainter& p, const QRect& r, const Theme& t, bool stereo) {
    p.fillRect(r, t.glass);
    const QColor ink = stereo ? t.glassLit : t.amber;
    crispText(p, r, stereo ? QStringLiteral("STEREO") : QStringLiteral("MONO"), ink, 8, true);
}

void paintVuLamp(QPainter& p, const QRect& r, const PieceContext& c, const QColor& glow, bool lit) {
    p.drawImage(0, 0, c.ground("PanelVU", places::vuLamp(0)));
    lamp(p, r, glow, lit);
}

void paintBall(QPainter& p, const QRect& r, const PieceContext& c, const QColor& glow) {
    p.drawImage(0, 0, c.ground("PicTopPanel", places::ball));
    lamp(p, r, glow, true);
}

void paintRepeatSign(QPainter& p, const QRect&, const PieceContext& c) {
    const Theme& t = c.theme;
    p.drawImage(0, 0, c.ground("PicTopPanel", places::repeat));
    const QColor ink = mixColour(t.glass, t.glassText, 80);
    // Two arrows chasing each other round a square, each the other turned half a turn.
    p.fillRect(QRect(2, 3, 7, 1), ink);
    triangle(p, QPoint(9, 3), 3, Pointing::Right, ink);
    p.fillRect(QRect(11, 6, 1, 4), ink);
    p.fillRect(QRect(5, 9, 7, 1), ink);
    triangle(p, QPoint(4, 9), 3, Pointing::Left, ink);
    p.fillRect(QRect(2, 3, 1, 4), ink);
}

void paintShuffle(QPainter& p, const QRect& r, const PieceContext& c) {
    const Theme& t = c.theme;
    p.drawImage(0, 0, c.ground("PicTopPanel", places::shuffle));
    plate(p, r, t, false);
    // Two arrows running opposite ways: the order changes places.
    const QColor ink = t.caption;
    p.fillRect(QRect(3, 2, 6, 1), ink);
    p.fillRect(QRect(7, 1, 1, 3), ink);
    p.fillRect(QRect(3, 4, 6, 1), ink);
    p.fillRect(QRect(4, 3, 1, 3), ink);
}

void paintSpeedButton(QPainter& p, const QRect& r, const Theme& t, bool faster) {
    plate(p, r, t, false);
    if (faster)
        triangle(p, QPoint(7, 5), 3, Pointing::Up, t.caption);
    else
        triangle(p, QPoint(7, 2), 3, Pointing::Down, t.caption);
}

void paintToneButton(QPainter& p, const QRect& r, const Theme& t) {
    plate(p, r, t, false);
    p.fillRect(QRect(r.width() / 2 - 1, 3, 2, 2), t.lit);
}

void paintDeckLegend(QPainter& p, const QRect& r, const PieceContext& c, const mainskin::Rect& place,
                     const QString& text) {
    p.drawImage(0, 0, c.ground("PicTopPanel", place));
    crispText(p, r, text, c.theme.legend, 8);
}

void paintEncoderBadge(QPainter& p, const QRect& r, const Theme& t) {
    p.fillRect(r, t.glass);
    bevel(p, r, t.rimDark, t.rimLight);
    lamp(p, QRect(4, 4, 8, 8), t.red, true);
    crispText(p, r.adjusted(16, 0, -3, 0), QStringLiteral("CONVERTER ACTIVE"), t.amber, 9, true);
}

void paintPageButton(QPainter& p, const QRect& r, const Theme& t, bool up) {
    plate(p, r, t, false);
    const int x = r.width() / 2;
    if (up) {
        triangle(p, QPoint(x, 17), 6, Pointing::Up, t.caption);
        triangle(p, QPoint(x, 24), 6, Pointing::Up, t.caption);
    } else {
        triangle(p, QPoint(x, 12), 6, Pointing::Down, t.caption);
        triangle(p, QPoint(x, 19), 6, Pointing::Down, t.caption);
    }
}

void paintInfoArrow(QPainter& p, const QRect& r, const Theme& t, bool right) {
    plate(p, r, t, false);
    if (right)
        triangle(p, QPoint(3, 8), 4, Pointing::Right, t.caption);
    else
        triangle(p, QPoint(6, 8), 4, Pointing::Left, t.caption);
}

void paintDatabaseButton(QPainter& p, const QRect& r, const Theme& t) {
    plate(p, r, t, false);
    // A stack of three discs: the library.
    p.save();
    p.setRenderHint(QPainter::Antialiasing, true);
    const QColor ink = t.lit;
    for (int k = 2; k >= 0; --k) {
        const QRectF disc(9.5, 6.5 + k * 5, 17, 6);
        QPainterPath side;
        side.addRect(QRectF(disc.left(), disc.center().y(), disc.width(), 4));
        p.setPen(Qt::NoPen);
        p.setBrush(mixColour(t.plateBottom, ink, 55));
        p.drawPath(side);
        p.drawEllipse(disc.translated(0, 4));
        p.setBrush(mixColour(t.plateTop, ink, 85));
        p.setPen(QPen(mixColour(t.plateBottom, ink, 40), 1));
        p.drawEllipse(disc);
    }
    p.restore();
    crispText(p, QRect(1, 26, r.width() - 2, 9), QStringLiteral("LIBRARY"), t.caption, 8);
}

// The info buttons are too narrow for a legible word: their signs say it, and their tool tips.
void paintInfoButton(QPainter& p, const QRect& r, const Theme& t, bool edit) {
    plate(p, r, t, false);
    const int cy = r.height() / 2;
    p.save();
    p.setRenderHint(QPainter::Antialiasing, true);
    if (edit) {
        // A pencil, its point down to the left.
        p.setPen(QPen(t.lit, 3, Qt::SolidLine, Qt::FlatCap));
        p.drawLine(QPointF(15.5, cy - 8.5), QPointF(8.5, cy + 3.5));
        p.setPen(QPen(t.caption, 1));
        p.drawLine(QPointF(7.5, cy + 4.5), QPointF(6, cy + 8));
    } else {
        p.setPen(QPen(t.lit, 1.2));
        p.setBrush(Qt::NoBrush);
        p.drawEllipse(QPointF(11, cy + 0.5), 7, 7);
    }
    p.restore();
    if (!edit) {
        p.fillRect(QRect(10, cy - 4, 2, 2), t.lit);
        p.fillRect(QRect(10, cy - 1, 2, 6), t.lit);
    }
}

}  // namespace sonarium::skingen
