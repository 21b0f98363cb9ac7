#pragma once
// Drawing primitives shared by every piece: brushed metal, bevels, recessed wells, button
// plates, crisp small text, pixel triangles and round lamps. All of them draw inside the
// rectangle they are given and nowhere else, and all are exact to the pixel: no smoothing
// except on the round lamps, whose corners are filled with the colour they sit on.
#include <QFont>
#include <QPainter>
#include <QRect>

#include "Theme.h"
#include "skins/MainSkinLayout.h"

namespace sonarium::skingen {

inline QRect toQRect(const mainskin::Rect& r) { return QRect(r.x, r.y, r.w, r.h); }

// `a` moved `percentB` per cent of the way to `b`.
QColor mixColour(const QColor& a, const QColor& b, int percentB);

// DejaVu Sans at a pixel size; `smooth` false draws without antialiasing, for small text.
QFont pixelFont(int px, bool bold = false, bool smooth = false, bool condensed = false);

// A stable seed for the grain of a named piece, so each run writes the same bytes.
quint32 seedOf(const char* name);

// The panel face: the theme's gradient with a brushed grain running left to right.
void paintMetal(QPainter& p, const QRect& r, const Theme& t, quint32 seed);
// One-pixel edges: `light` on top and left, `dark` on bottom and right.
void bevel(QPainter& p, const QRect& r, const QColor& light, const QColor& dark);
// A raised panel edge in the theme's metal colours.
void raisedEdge(QPainter& p, const QRect& r, const Theme& t);
// A recess in the metal whose opening is exactly `inner`: rims outside it (one pixel, or two
// when `deep`) lit from the top left, and the theme's glass inside.
void well(QPainter& p, const QRect& inner, const Theme& t, bool deep = false);
// A shallow tray that holds raised controls: a darker floor with a one-pixel rim outside `inner`.
void tray(QPainter& p, const QRect& inner, const Theme& t);
// A horizontal engraved line of width `w` from (x, y): a dark line over a light one.
void hGroove(QPainter& p, int x, int y, int w, const Theme& t);
void vGroove(QPainter& p, int x, int y, int h, const Theme& t);

// A button plate filling `r`: raised, or pushed in with its light from below.
void plate(QPainter& p, const QRect& r, const Theme& t, bool pressed);
// Text centred in `r`, without smoothing, at the largest of `maxPx` down to 8 pixels that fits
// (regular, then condensed).
void crispText(QPainter& p, const QRect& r, const QString& text, const QColor& ink, int maxPx = 9,
               bool bold = false, int align = Qt::AlignCenter);

enum class Pointing { Up, Down, Left, Right };
// A solid triangle `depth` pixels from base to point, with its base centred on `centre`'s axis
// and the whole drawn pixel by pixel so that both sides are mirror images.
void triangle(QPainter& p, QPoint baseCentre, int depth, Pointing dir, const QColor& ink);

// A round lamp filling `r`, drawn over what is there: lit it glows `glow`, off it shows `glow`
// as a dark lens.
void lamp(QPainter& p, const QRect& r, const QColor& glow, bool lit);

}  // namespace sonarium::skingen
