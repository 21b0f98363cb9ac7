#pragma once
// The Zipdeck's pictures: the painters that the layout table names for each block, the panel
// under them, and the two bitmaps drawn from the table.
#include <QImage>
#include <QPainter>
#include <QString>

#include "ZipdeckLayout.h"

namespace sonarium::skingen::zipdeck {

// Capitals three pixels wide (M and N wider) and five high, for legends where DejaVu at its
// smallest would not fit; `x`, `y` is the top left of the first letter.
void microText(QPainter& p, int x, int y, const QString& text, const QColor& ink);
int microWidth(const QString& text);

// One painter per picture, as the layout table names them.
enum class Sign { Back, Play, Pause, Forward };
// A transport button: its sign on a plate, lit and pushed in when `pressed`.
void transport(QPainter& p, const QRect& r, const Theme& t, Sign s, bool pressed);
template <Sign s, bool pressed>
void paintTransport(QPainter& p, const QRect& r, const Context& c, const Rect&) {
    transport(p, r, c.theme, s, pressed);
}
void paintLoop(QPainter& p, const QRect& r, const Context& c, const Rect& place);
void paintLoopOn(QPainter& p, const QRect& r, const Context& c, const Rect& place);
void paintPageUp(QPainter& p, const QRect& r, const Context& c, const Rect& place);
void paintPageDown(QPainter& p, const QRect& r, const Context& c, const Rect& place);
void paintShowList(QPainter& p, const QRect& r, const Context& c, const Rect& place);
void paintHideList(QPainter& p, const QRect& r, const Context& c, const Rect& place);
void paintListType(QPainter& p, const QRect& r, const Context& c, const Rect& place);
void paintQueueLabel(QPainter& p, const QRect& r, const Context& c, const Rect& place);
void paintSetsLabel(QPainter& p, const QRect& r, const Context& c, const Rect& place);
void paintMainScreen(QPainter& p, const QRect& r, const Context& c, const Rect& place);
void paintQuit(QPainter& p, const QRect& r, const Context& c, const Rect& place);
void paintLoadSkin(QPainter& p, const QRect& r, const Context& c, const Rect& place);
void paintSaveDefaults(QPainter& p, const QRect& r, const Context& c, const Rect& place);
void paintSaveTB(QPainter& p, const QRect& r, const Context& c, const Rect& place);
void paintKnob(QPainter& p, const QRect& r, const Context& c, const Rect& place);
void paintSongKnob(QPainter& p, const QRect& r, const Context& c, const Rect& place);
void paintSongTrack(QPainter& p, const QRect& r, const Context& c, const Rect& place);
void paintDigits(QPainter& p, const QRect& r, const Context& c, const Rect& place);
void paintMono(QPainter& p, const QRect& r, const Context& c, const Rect& place);
void paintStereo(QPainter& p, const QRect& r, const Context& c, const Rect& place);

// A lamp of the meter in `r`, over what is there.
void meterLamp(QPainter& p, const QRect& r, const QColor& glow, bool lit);
template <QColor Theme::*glow, bool lit>
void paintLamp(QPainter& p, const QRect& r, const Context& c, const Rect&) {
    meterLamp(p, r, c.theme.*glow, lit);
}
// The song position track in `r`, as the panel carries it.
void songGroove(QPainter& p, const QRect& r, const Theme& t);

// Panel.bmp: the window's face, magenta outside its outline.
QImage drawPanel(const Theme& t);
// Buttons.bmp: every picture at its cut, drawn on the finished panel's grounds.
QImage drawSheet(const Theme& t, const QImage& panel);
inline constexpr int sheetWidth = 256, sheetHeight = 68;

}  // namespace sonarium::skingen::zipdeck
