// The panels of the main window other than the top deck, and the table that names the painter
// of each piece of Panels.bmp.
#include <QFontMetrics>

#include "Paint.h"
#include "Sheets.h"
#include "WindowPlaces.h"

namespace sonarium::skingen {

namespace {

using namespace places;

QRect q(const mainskin::Rect& r) { return toQRect(r); }

void metalPanel(QPainter& p, const QRect& r, const Theme& t, const char* name) {
    paintMetal(p, r, t, seedOf(name));
    raisedEdge(p, r, t);
}

// The bar on top of the window, which stays when the window is rolled up: the name at the left
// and the roll button's recess at the right.
void paintStick(QPainter& p, const QRect& r, const Theme& t) {
    metalPanel(p, r, t, "imgStick");
    QFont brand = pixelFont(12, true, true);
    brand.setLetterSpacing(QFont::AbsoluteSpacing, 2);
    p.setFont(brand);
    p.setPen(t.legend);
    const QRect name(12, 0, 120, r.height());
    p.drawText(name, Qt::AlignLeft | Qt::AlignVCenter, QStringLiteral("SONARIUM"));
    const int after = name.left() + QFontMetrics(brand).horizontalAdvance(QStringLiteral("SONARIUM")) + 10;
    p.fillRect(QRect(after, 12, 3, 3), t.lit);
    // A row of vent slots along the middle: the bar is the handle of the window.
    for (int x = 240; x < 560; x += 6) {
        p.fillRect(QRect(x, 10, 3, 7), t.groove);
        p.fillRect(QRect(x, 17, 3, 1), t.bevelLight);
    }
    well(p, q(imgSize), t);
}

// The queue's command bar and the drive list.
void paintView(QPainter& p, const QRect& r, const Theme& t) {
    metalPanel(p, r, t, "PicView");
    tray(p, q(addAll).united(q(deleteSong)).adjusted(-2, -2, 2, 2), t);
    well(p, q(songQueue), t);
    well(p, q(drive), t);
}

// Three faders: a slot for each knob's travel, a scale beside it and its name above it.
void paintMixer(QPainter& p, const QRect& r, const Theme& t) {
    metalPanel(p, r, t, "PicMixer");
    const QString names[3] = {QStringLiteral("VOL"), QStringLiteral("TRE"), QStringLiteral("BASS")};
    const int centreX = knobX + knobW / 2;
    for (int s = 0; s < 3; ++s) {
        const int top = knobTopAt100[s];
        const int first = top + knobH / 2;  // the knob's centre at 100
        well(p, QRect(centreX - 1, first - 6, 3, knobTravel + 13), t);
        for (int v = 0; v <= 10; ++v) {
            const int y = first + (10 - v) * knobTravel / 10;
            const bool major = v == 0 || v == 5 || v == 10;
            // The tone controls are flat at 50: its mark is lit.
            const QColor ink = (s > 0 && v == 5) ? t.amber : (major ? t.legend : t.legendDim);
            const int len = major ? 6 : 3;
            p.fillRect(QRect(knobX - 3 - len, y, len, 1), ink);
            p.fillRect(QRect(knobX + knobW + 3, y, len, 1), ink);
        }
        const QRect label(0, top - 10, r.width(), 9);
        crispText(p, label, names[s], t.legend, 8, true);
        const int textW = QFontMetrics(pixelFont(8, true)).horizontalAdvance(names[s]);
        const int gapL = r.width() / 2 - textW / 2 - 4, gapR = r.width() / 2 + textW / 2 + 4;
        hGroove(p, 4, top - 6, gapL - 4, t);
        hGroove(p, gapR, top - 6, r.width() - 4 - gapR, t);
    }
}

// The folder list, the twelve titles and the queue, each in its recess.
void paintTitleBoxes(QPainter& p, const QRect& r, const Theme& t) {
    metalPanel(p, r, t, "PicTitleBoxes");
    well(p, q(dirList), t, true);
    for (int i = 0; i < titleCount; ++i) well(p, q(title(i)), t);
    well(p, q(songList), t, true);
}

// The paging and panel buttons, and a speaker grille below them.
void paintRightPanel(QPainter& p, const QRect& r, const Theme& t) {
    metalPanel(p, r, t, "PicRightPanel");
    tray(p, q(cmdUp).united(q(cmdDown)).adjusted(-2, -2, 2, 2), t);
    const int top = q(imgViewInfo).bottom() + 10;
    for (int y = top; y + 3 < r.height() - 6; y += 5)
        for (int x = 7 + ((y - top) / 5 % 2) * 2; x + 3 < r.width() - 5; x += 5) {
            p.fillRect(QRect(x, y, 2, 2), t.groove);
            p.fillRect(QRect(x + 2, y + 1, 1, 2), t.bevelLight);
            p.fillRect(QRect(x, y + 2, 2, 1), t.bevelLight);
        }
}

// The converter's screen: its settings sit on the glass in rows, the progress in a recess, a
// disc at the top right.
void paintEncode(QPainter& p, const QRect& r, const Theme& t) {
    p.fillRect(r, t.glass);
    bevel(p, r, t.rimDark, t.rimLight);
    const QColor rule = mixColour(t.glass, t.glassText, 16);
    for (int y : {26, 50, 74}) p.fillRect(QRect(4, y, r.width() - 8, 1), rule);
    const QRect bar = q(encodeProgress);
    p.fillRect(bar.adjusted(-1, -1, 1, 1), mixColour(t.glass, t.glassText, 30));
    p.fillRect(bar, t.glass.darker(140));

    p.save();
    p.setRenderHint(QPainter::Antialiasing, true);
    const QPointF c(199.5, 23.5);
    p.setPen(Qt::NoPen);
    QRadialGradient disc(c, 19);
    disc.setColorAt(0, mixColour(t.glass, t.glassText, 45));
    disc.setColorAt(1, mixColour(t.glass, t.glassText, 20));
    p.setBrush(disc);
    p.drawEllipse(c, 19, 19);
    p.setPen(QPen(mixColour(t.glass, t.glassText, 32), 1));
    p.setBrush(Qt::NoBrush);
    for (double rad : {15.0, 12.0, 9.5}) p.drawEllipse(c, rad, rad);
    p.setPen(Qt::NoPen);
    p.setBrush(t.amber);
    p.drawEllipse(c, 5, 5);
    p.setBrush(t.glass);
    p.drawEllipse(c, 2, 2);
    p.restore();
}

// The pieces either side of a narrow photo: the same glass, with faint scan lines, and the
// same on both sides since one picture serves both.
void paintSide(QPainter& p, const QRect& r, const Theme& t) {
    p.fillRect(r, t.glass);
    const QColor line = mixColour(t.glass, t.glassText, 6);
    for (int y = 1; y < r.height(); y += 3) p.fillRect(QRect(0, y, r.width(), 1), line);
}

// The strip behind the nineteen lamps: glass with a dim band of each lamp's zone colour below it.
void paintVuStrip(QPainter& p, const QRect& r, const Theme& t) {
    p.fillRect(r, t.glass);
    bevel(p, r, t.rimDark, t.rimLight);
    for (int i = 0; i < vuLamps; ++i) {
        const QColor zone = i >= vuFirstRed ? t.red : i >= vuFirstAmber ? t.amber : t.green;
        const QRect lampBox = q(vuLamp(i));
        p.fillRect(QRect(lampBox.left() + 1, lampBox.bottom() + 2, lampBox.width() - 2, 1),
                   mixColour(t.glass, zone, 55));
    }
}

}  // namespace

PanelPainter panelPainter(std::string_view control) {
    static const struct {
        std::string_view control;
        void (*paint)(QPainter&, const QRect&, const Theme&);
    } table[] = {
        {"PicTopPanel", paintTopPanel},
        {"PicView", paintView},
        {"imgStick", paintStick},
        {"PicMixer", paintMixer},
        {"PicTitleBoxes", paintTitleBoxes},
        {"PicRightPanel", paintRightPanel},
        {"PicEncode", paintEncode},
        {"Image8", paintSide},
        {"Image9", paintSide},
        {"PanelVU", paintVuStrip},
        {"imgMpeg3", paintPhotoArt},
    };
    for (const auto& row : table)
        if (row.control == control) return row.paint;
    return {};
}

}  // namespace sonarium::skingen
