#pragma once
// The Zipdeck's face as one table: for each of the 38 blocks of CoOrds.txt its label, its cut on
// Buttons.bmp, whether it shows, its place in the window and the painter of its picture; and
// beside it the numbers of vu.txt. Panel.bmp, Buttons.bmp, both text files and the previews are
// all made from these, so they cannot disagree.
#include <QColor>
#include <QImage>
#include <QPainter>
#include <QStringList>
#include <array>
#include <string_view>

#include "Theme.h"
#include "skins/MainSkinLayout.h"

namespace sonarium::skingen::zipdeck {

using mainskin::Rect;

inline constexpr int windowWidth = 390, windowHeight = 88;
// "Hide list" narrows the window to this many columns: everything but the list lives left of it.
inline constexpr int collapsedWidth = 218;
inline constexpr int sliderTravel = 30;
inline constexpr int listRows = 5, listRowHeight = 12;
inline constexpr int titleHeight = 16;  // the program fixes the display's height
inline constexpr int titleFontPoints = 8;
inline constexpr bool titleBold = false;
inline constexpr int lampCount = 19, firstAmberLamp = 10, firstRedLamp = 15;
// Pure magenta on Panel.bmp is cut out of the window.
inline constexpr QRgb maskColour = 0xffff00ff;

// Where a control may stand: in the part that stays when the list is hidden, in the list's part,
// anywhere, or nowhere (a picture kept for another control).
enum class Zone { Left, List, Any, Stored };

struct Context {
    const Theme& theme;
    const QImage& panel;  // the finished Panel.bmp, for grounds
    // The pixels of the panel under `place`.
    QImage ground(const Rect& place) const { return panel.copy(place.x, place.y, place.w, place.h); }
};
// Draws a picture into `r` (its cut, moved to the origin); `place` is where the window shows it.
using Painter = void (*)(QPainter& p, const QRect& r, const Context& c, const Rect& place);

struct Block {
    std::string_view label;
    Rect cut;  // on Buttons.bmp; for a control without a picture x and y are 0 and w, h its size
    bool hasCut;
    bool show;
    int left, top;
    Zone zone;
    Painter paint;  // null when the block has no picture

    Rect place() const { return {left, top, cut.w, cut.h}; }
};

// The 38 blocks in file order; block n is blocks()[n - 1].
const std::array<Block, 38>& blocks();
const Block& block(int number);
// The digit strip: 12 cells of block 19's cut, one blank column between two.
inline constexpr int digitCells = 12;
Rect digitCell(int n);
// The row of eight digits with its separators in the window: cell index and place of each.
struct DigitSlot {
    int cell;  // -1 for a digit, which shows whatever number it holds
    Rect place;
};
std::array<DigitSlot, 11> digitRow();
// The lamps in the window, 0 the lowest; each shows the lamp pictures of blocks 20-23.
Rect lampPlace(int i);
// The colour lamp `i` lights in: green, amber, then red at the top.
QColor lampColour(const Theme& t, int i);

// The colours vu.txt gives the display and the list.
QColor titleBack(const Theme& t);
QColor titleText(const Theme& t);
QColor listBack(const Theme& t);
QColor listText(const Theme& t);

// Whether pixel (x, y) of the window is solid; the others are masked out.
bool solid(int x, int y);

// What is wrong with the table: cuts off the sheet or overlapping, controls off the window or
// outside their part. Empty when all is well.
QStringList layoutProblems(const QSize& sheet);

}  // namespace sonarium::skingen::zipdeck
