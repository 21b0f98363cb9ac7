#include "Paint.h"

#include <QFontInfo>
#include <QFontMetrics>
#include <QImage>
#include <QRadialGradient>
#include <algorithm>

namespace sonarium::skingen {

namespace {

// xorshift32: tiny, and the same on every platform, unlike the standard engines' distributions.
struct Grain {
    quint32 state;
    int next(int amplitude) {
        state ^= state << 13;
        state ^= state >> 17;
        state ^= state << 5;
        return amplitude == 0 ? 0 : int(state % quint32(2 * amplitude + 1)) - amplitude;
    }
};

}  // namespace

QColor mixColour(const QColor& a, const QColor& b, int percentB) {
    auto m = [&](int x, int y) { return x + (y - x) * percentB / 100; };
    return QColor(m(a.red(), b.red()), m(a.green(), b.green()), m(a.blue(), b.blue()));
}

QFont pixelFont(int px, bool bold, bool smooth, bool condensed) {
    QFont f(condensed ? QStringLiteral("DejaVu Sans Condensed") : QStringLiteral("DejaVu Sans"));
    f.setPixelSize(px);
    f.setBold(bold);
    f.setHintingPreference(QFont::PreferFullHinting);
    f.setStyleStrategy(smooth ? QFont::PreferAntialias : QFont::NoAntialias);
    return f;
}

quint32 seedOf(const char* name) {
    quint32 h = 2166136261u;  // FNV-1a
    for (const char* c = name; *c; ++c) h = (h ^ quint8(*c)) * 16777619u;
    return h ? h : 1u;
}

void paintMetal(QPainter& p, const QRect& r, const Theme& t, quint32 seed) {
    if (r.isEmpty()) return;
    QImage metal(r.size(), QImage::Format_RGB32);
    Grain g{seed};
    for (int y = 0; y < r.height(); ++y) {
        const QColor base = mixColour(t.faceTop, t.faceBottom, y * 100 / std::max(r.height() - 1, 1));
        // Each row has its own tone, and the tone drifts slowly along the row: brushed strokes.
        const int row = g.next(t.grain);
        int drift = 0;
        auto* line = reinterpret_cast<QRgb*>(metal.scanLine(y));
        for (int x = 0; x < r.width(); ++x) {
            if (x % 7 == 0) drift = (drift + g.next(t.grain)) / 2;
            const int d = row + drift;
            line[x] = qRgb(std::clamp(base.red() + d, 0, 255), std::clamp(base.green() + d, 0, 255),
                           std::clamp(base.blue() + d, 0, 255));
        }
    }
    p.drawImage(r.topLeft(), metal);
}

void bevel(QPainter& p, const QRect& r, const QColor& light, const QColor& dark) {
    if (r.isEmpty()) return;
    p.fillRect(QRect(r.left(), r.top(), r.width(), 1), light);
    p.fillRect(QRect(r.left(), r.top(), 1, r.height()), light);
    p.fillRect(QRect(r.left(), r.bottom(), r.width(), 1), dark);
    p.fillRect(QRect(r.right(), r.top(), 1, r.height()), dark);
}

void raisedEdge(QPainter& p, const QRect& r, const Theme& t) { bevel(p, r, t.bevelLight, t.bevelDark); }

void well(QPainter& p, const QRect& inner, const Theme& t, bool deep) {
    QLinearGradient glass(inner.topLeft(), inner.bottomLeft());
    glass.setColorAt(0, t.glassTop);
    glass.setColorAt(0.35, t.glass);
    glass.setColorAt(1, t.glass);
    p.fillRect(inner, glass);
    const QRect rim = inner.adjusted(-1, -1, 1, 1);
    if (deep)
        bevel(p, rim.adjusted(-1, -1, 1, 1), mixColour(t.faceTop, t.rimDark, 50),
              mixColour(t.faceBottom, t.rimLight, 50));
    bevel(p, rim, t.rimDark, t.rimLight);
}

void tray(QPainter& p, const QRect& inner, const Theme& t) {
    p.fillRect(inner, mixColour(t.faceBottom, t.groove, 50));
    bevel(p, inner.adjusted(-1, -1, 1, 1), t.groove, t.bevelLight);
}

void hGroove(QPainter& p, int x, int y, int w, const Theme& t) {
    p.fillRect(QRect(x, y, w, 1), t.groove);
    p.fillRect(QRect(x, y + 1, w, 1), t.bevelLight);
}

void vGroove(QPainter& p, int x, int y, int h, const Theme& t) {
    p.fillRect(QRect(x, y, 1, h), t.groove);
    p.fillRect(QRect(x + 1, y, 1, h), t.bevelLight);
}

void plate(QPainter& p, const QRect& r, const Theme& t, bool pressed) {
    if (r.isEmpty()) return;
    QLinearGradient face(r.topLeft(), r.bottomLeft());
    face.setColorAt(0, pressed ? t.pressedTop : t.plateTop);
    face.setColorAt(1, pressed ? t.pressedBottom : t.plateBottom);
    p.fillRect(r, face);
    if (pressed) {
        // Pushed in: the shadow falls on the top and left inside the opening.
        bevel(p, r, t.plateDark, t.plateLight);
        if (r.width() > 4 && r.height() > 4)
            p.fillRect(QRect(r.left() + 1, r.top() + 1, r.width() - 2, 1),
                       mixColour(t.pressedTop, t.plateDark, 50));
    } else {
        bevel(p, r, t.plateLight, t.plateDark);
    }
}

void crispText(QPainter& p, const QRect& r, const QString& text, const QColor& ink, int maxPx, bool bold,
               int align) {
    QFont chosen = pixelFont(8, bold, false, true);
    bool found = false;
    for (int px = maxPx; px >= 8 && !found; --px) {
        for (bool condensed : {false, true}) {
            const QFont f = pixelFont(px, bold, false, condensed);
            if (QFontMetrics(f).horizontalAdvance(text) <= r.width()) {
                chosen = f;
                found = true;
                break;
            }
        }
    }
    p.save();
    p.setFont(chosen);
    p.setPen(ink);
    // Centre on the capitals, not on the font's full height, so that captions sit in the
    // middle of their plates whatever their descenders.
    const QFontMetrics fm(chosen);
    const int capTop = (r.height() - fm.capHeight() + 1) / 2;
    const int baseline = r.top() + capTop + fm.capHeight();
    const int width = fm.horizontalAdvance(text);
    int x = r.left();
    if (align & Qt::AlignHCenter)
        x = r.left() + (r.width() - width + 1) / 2;
    else if (align & Qt::AlignRight)
        x = r.right() + 1 - width;
    p.drawText(QPoint(x, baseline), text);
    p.restore();
}

void triangle(QPainter& p, QPoint c, int depth, Pointing dir, const QColor& ink) {
    for (int k = 0; k < depth; ++k) {
        const int half = depth - 1 - k;  // k counts from the base towards the point
        switch (dir) {
        case Pointing::Up: p.fillRect(QRect(c.x() - half, c.y() - k, 2 * half + 1, 1), ink); break;
        case Pointing::Down: p.fillRect(QRect(c.x() - half, c.y() + k, 2 * half + 1, 1), ink); break;
        case Pointing::Left: p.fillRect(QRect(c.x() - k, c.y() - half, 1, 2 * half + 1), ink); break;
        case Pointing::Right: p.fillRect(QRect(c.x() + k, c.y() - half, 1, 2 * half + 1), ink); break;
        }
    }
}

void lamp(QPainter& p, const QRect& r, const QColor& glow, bool lit) {
    p.save();
    p.setRenderHint(QPainter::Antialiasing, true);
    const QRectF lens = QRectF(r).adjusted(0.5, 0.5, -0.5, -0.5);
    QRadialGradient g(lens.center() - QPointF(lens.width() * 0.15, lens.height() * 0.2),
                      std::max(lens.width(), lens.height()) * 0.7);
    if (lit) {
        g.setColorAt(0, glow.lighter(160));
        g.setColorAt(0.45, glow);
        g.setColorAt(1, glow.darker(160));
    } else {
        g.setColorAt(0, glow.lighter(130));
        g.setColorAt(1, glow.darker(180));
    }
    p.setPen(QPen(lit ? glow.darker(250) : QColor(0, 0, 0, 200), 1));
    p.setBrush(g);
    p.drawEllipse(lens);
    p.restore();
}

}  // namespace sonarium::skingen
