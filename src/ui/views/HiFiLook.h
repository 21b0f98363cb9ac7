#pragma once
// The look of the windows until a skin paints them: a dark "hi-fi" front, drawn by the views
// wherever a control has no picture. Panels are dark grey with a soft bevel, value displays are
// recessed and lit, lamps are small dark circles that glow when on, and picture-less buttons
// carry their hint as a small caption.
#include <QColor>
#include <QFont>
#include <QPalette>
#include <QRect>
#include <QString>

class QApplication;
class QPainter;

namespace sonarium::hifi {

namespace colours {
inline const QColor panel{0x2e, 0x30, 0x35};
inline const QColor panelLight{0x4b, 0x4f, 0x57};
inline const QColor panelDark{0x16, 0x17, 0x1a};
inline const QColor display{0x0c, 0x0f, 0x11};
inline const QColor displayText{0xd6, 0xf2, 0xe0};
inline const QColor legend{0xc4, 0xc9, 0xd0};
inline const QColor accent{0xf2, 0xa3, 0x3a};
inline const QColor lampOn{0x6c, 0xe0, 0x7a};
}  // namespace colours

QPalette palette();
// The application's style, palette and font; the views' look assumes them.
void install(QApplication& app);

void paintPanel(QPainter& p, const QRect& r, const QColor& face = colours::panel);
void paintDisplay(QPainter& p, const QRect& r);
void paintGroove(QPainter& p, const QRect& r);
void paintLamp(QPainter& p, const QRect& r, bool lit, const QColor& glow = colours::lampOn);
void paintKnob(QPainter& p, const QRect& r, bool down);
void paintButton(QPainter& p, const QRect& r, const QString& caption, bool down, bool enabled);
void paintFocus(QPainter& p, const QRect& r);

// The largest font from `maxPx` down to `minPx` pixels in which `text` fits `box` on one line
// (or in wrapped lines when `wrap`).
QFont fittedFont(QFont base, const QString& text, const QSize& box, int maxPx, int minPx = 8,
                 bool wrap = false);

}  // namespace sonarium::hifi
