// The small pictures of the Zipdeck's Buttons.bmp, each drawn pixel by pixel for its size. Those
// that do not fill their place start from the panel's pixels under it.
#include <cstring>
#include <map>
#include <stdexcept>
#include <vector>

#include "Paint.h"
#include "ZipdeckArt.h"

namespace sonarium::skingen::zipdeck {

namespace {

// clang-format off
const std::map<QChar, std::vector<const char*>>& microGlyphs() {
    static const std::map<QChar, std::vector<const char*>> glyphs{
        {u'A', {".#.", "#.#", "###", "#.#", "#.#"}},
        {u'B', {"##.", "#.#", "##.", "#.#", "##."}},
        {u'E', {"###", "#..", "##.", "#..", "###"}},
        {u'L', {"#..", "#..", "#..", "#..", "###"}},
        {u'M', {"#...#", "##.##", "#.#.#", "#...#", "#...#"}},
        {u'N', {"#..#", "##.#", "#.##", "#..#", "#..#"}},
        {u'O', {".#.", "#.#", "#.#", "#.#", ".#."}},
        {u'R', {"##.", "#.#", "##.", "#.#", "#.#"}},
        {u'S', {".##", "#..", ".#.", "..#", "##."}},
        {u'T', {"###", ".#.", ".#.", ".#.", ".#."}},
        {u'V', {"#.#", "#.#", "#.#", "#.#", ".#."}},
        {u' ', {"..", "..", "..", "..", ".."}},
    };
    return glyphs;
}
// clang-format on

const std::vector<const char*>& glyph(QChar ch) {
    const auto found = microGlyphs().find(ch);
    if (found == microGlyphs().end())
        throw std::runtime_error("no small letter for " + QString(ch).toStdString());
    return found->second;
}

void onGround(QPainter& p, const Context& c, const Rect& place) { p.drawImage(0, 0, c.ground(place)); }

}  // namespace

// The transport signs centred on a 24 x 16 plate, nudged one pixel down and right when pressed.
void transport(QPainter& p, const QRect& r, const Theme& t, Sign s, bool pressed) {
    plate(p, r, t, pressed);
    const int d = pressed ? 1 : 0;
    const QColor ink = pressed ? t.lit : t.caption;
    const int y = r.height() / 2 - 1 + d;  // the signs' middle row
    switch (s) {
    case Sign::Back:
        p.fillRect(QRect(8 + d, y - 3, 1, 7), ink);
        triangle(p, QPoint(12 + d, y), 4, Pointing::Left, ink);
        triangle(p, QPoint(16 + d, y), 4, Pointing::Left, ink);
        break;
    case Sign::Play: triangle(p, QPoint(10 + d, y), 5, Pointing::Right, ink); break;
    case Sign::Pause:
        p.fillRect(QRect(9 + d, y - 4, 2, 9), ink);
        p.fillRect(QRect(13 + d, y - 4, 2, 9), ink);
        break;
    case Sign::Forward:
        triangle(p, QPoint(8 + d, y), 4, Pointing::Right, ink);
        triangle(p, QPoint(12 + d, y), 4, Pointing::Right, ink);
        p.fillRect(QRect(16 + d, y - 3, 1, 7), ink);
        break;
    }
}

namespace {

// Two arrows chasing each other round a square, the top-left corner of the sign at `o`.
void loopSign(QPainter& p, QPoint o, const QColor& ink) {
    p.fillRect(QRect(o.x(), o.y() + 2, 7, 1), ink);
    triangle(p, o + QPoint(7, 2), 3, Pointing::Right, ink);
    p.fillRect(QRect(o.x() + 9, o.y() + 5, 1, 4), ink);
    p.fillRect(QRect(o.x() + 3, o.y() + 8, 7, 1), ink);
    triangle(p, o + QPoint(2, 8), 3, Pointing::Left, ink);
    p.fillRect(QRect(o.x(), o.y() + 2, 1, 4), ink);
}

void captionButton(QPainter& p, const QRect& r, const Theme& t, const QString& caption) {
    plate(p, r, t, false);
    crispText(p, r.adjusted(2, 0, -2, 0), caption, t.caption, 8);
}

// A caption lit behind glass, for the list's name.
void glassLabel(QPainter& p, const QRect& r, const Theme& t, const QString& text) {
    p.fillRect(r, t.glass);
    bevel(p, r, t.rimDark, t.rimLight);
    crispText(p, r.adjusted(1, 0, -1, 0), text, t.glassLit, 8, true);
}

void badge(QPainter& p, const QRect& r, const Context& c, const Rect& place, const QString& text,
           const QColor& ink) {
    onGround(p, c, place);
    microText(p, (r.width() - microWidth(text)) / 2, (r.height() - 5) / 2, text, ink);
}

// The seven segments of a figure in a cell of 7 x 11: a top, middle and bottom bar five pixels
// long, and four uprights of four pixels between them.
void segments(QPainter& p, QPoint o, int figure, const QColor& on, const QColor& off) {
    static const char* const lit[10] = {"abcdef", "bc",     "abdeg", "abcdg",   "bcfg",
                                        "acdfg",  "acdefg", "abc",   "abcdefg", "abcdfg"};
    const QRect bars[7] = {{1, 0, 5, 1}, {6, 1, 1, 4}, {6, 6, 1, 4}, {1, 10, 5, 1},
                           {0, 6, 1, 4}, {0, 1, 1, 4}, {1, 5, 5, 1}};
    const QString on_ = QString::fromLatin1(figure < 0 ? "" : lit[figure]);
    for (int s = 0; s < 7; ++s) p.fillRect(bars[s].translated(o), on_.contains(QChar(u'a' + s)) ? on : off);
}

}  // namespace

int microWidth(const QString& text) {
    int w = 0;
    for (QChar ch : text) w += int(std::strlen(glyph(ch).front())) + 1;
    return text.isEmpty() ? 0 : w - 1;
}

void microText(QPainter& p, int x, int y, const QString& text, const QColor& ink) {
    for (QChar ch : text) {
        const auto& rows = glyph(ch);
        for (int row = 0; row < 5; ++row)
            for (int col = 0; rows[std::size_t(row)][col]; ++col)
                if (rows[std::size_t(row)][col] == '#') p.fillRect(QRect(x + col, y + row, 1, 1), ink);
        x += int(std::strlen(rows.front())) + 1;
    }
}

void meterLamp(QPainter& p, const QRect& r, const QColor& glow, bool lit) {
    const QColor side = lit ? glow : glow.darker(150);
    const QColor core = lit ? glow.lighter(135) : glow;
    p.fillRect(r, side);
    p.fillRect(QRect(r.left() + 1, r.top(), 1, r.height()), core);
    p.fillRect(QRect(r.left(), r.top(), r.width(), 1), lit ? glow.lighter(160) : glow.lighter(115));
    p.fillRect(QRect(r.left(), r.bottom(), r.width(), 1), side.darker(lit ? 130 : 120));
}

void songGroove(QPainter& p, const QRect& r, const Theme& t) {
    p.fillRect(r, t.glass);
    p.fillRect(QRect(r.left() + 1, r.top() + 2, r.width() - 2, 1), mixColour(t.glass, t.glassLit, 55));
    bevel(p, r, t.rimDark, t.rimLight);
}

void paintLoop(QPainter& p, const QRect& r, const Context& c, const Rect&) {
    plate(p, r, c.theme, false);
    loopSign(p, QPoint(7, 2), c.theme.caption);
}

// Loop on: the button stays in, its sign lit.
void paintLoopOn(QPainter& p, const QRect& r, const Context& c, const Rect&) {
    plate(p, r, c.theme, true);
    loopSign(p, QPoint(8, 3), c.theme.lit);
}

void paintPageUp(QPainter& p, const QRect& r, const Context& c, const Rect&) {
    plate(p, r, c.theme, false);
    const int x = r.width() / 2, y = r.height() / 2;
    triangle(p, QPoint(x, y - 2), 4, Pointing::Up, c.theme.caption);
    triangle(p, QPoint(x, y + 3), 4, Pointing::Up, c.theme.caption);
}

void paintPageDown(QPainter& p, const QRect& r, const Context& c, const Rect&) {
    plate(p, r, c.theme, false);
    const int x = r.width() / 2, y = r.height() / 2;
    triangle(p, QPoint(x, y - 4), 4, Pointing::Down, c.theme.caption);
    triangle(p, QPoint(x, y + 1), 4, Pointing::Down, c.theme.caption);
}

// A bar, an arrow pushing out to the right, and the list's lines coming out with it.
void paintShowList(QPainter& p, const QRect& r, const Context& c, const Rect&) {
    const Theme& t = c.theme;
    plate(p, r, t, false);
    p.fillRect(QRect(5, 4, 1, 7), t.caption);
    triangle(p, QPoint(7, 7), 4, Pointing::Right, t.caption);
    for (int y : {4, 7, 10}) p.fillRect(QRect(13, y, 6, 1), t.lit);
}

// An arrow pushing back to the left against a bar: the list folds away.
void paintHideList(QPainter& p, const QRect& r, const Context& c, const Rect&) {
    const Theme& t = c.theme;
    plate(p, r, t, false);
    triangle(p, QPoint(7, 4), 3, Pointing::Left, t.caption);
    p.fillRect(QRect(9, 2, 1, 5), t.caption);
}

// Two arrows passing each other: the list changes between the queue and the sets.
void paintListType(QPainter& p, const QRect& r, const Context& c, const Rect&) {
    const Theme& t = c.theme;
    plate(p, r, t, false);
    p.fillRect(QRect(4, 3, 5, 1), t.lit);
    triangle(p, QPoint(9, 3), 2, Pointing::Right, t.lit);
    p.fillRect(QRect(6, 6, 5, 1), t.lit);
    triangle(p, QPoint(5, 6), 2, Pointing::Left, t.lit);
    crispText(p, QRect(13, 0, r.width() - 15, r.height()), QStringLiteral("LIST"), t.caption, 8, true);
}

void paintQueueLabel(QPainter& p, const QRect& r, const Context& c, const Rect&) {
    glassLabel(p, r, c.theme, QStringLiteral("QUEUE"));
}
void paintSetsLabel(QPainter& p, const QRect& r, const Context& c, const Rect&) {
    glassLabel(p, r, c.theme, QStringLiteral("SETS"));
}

// The big window: a frame with its title bar.
void paintMainScreen(QPainter& p, const QRect& r, const Context& c, const Rect&) {
    const Theme& t = c.theme;
    plate(p, r, t, false);
    const QRect frame(3, 3, 9, 8);
    p.fillRect(QRect(frame.left(), frame.top(), frame.width(), 2), t.lit);
    p.fillRect(QRect(frame.left(), frame.top(), 1, frame.height()), t.caption);
    p.fillRect(QRect(frame.right(), frame.top() + 2, 1, frame.height() - 2), t.caption);
    p.fillRect(QRect(frame.left(), frame.bottom(), frame.width(), 1), t.caption);
}

void paintQuit(QPainter& p, const QRect& r, const Context& c, const Rect&) {
    plate(p, r, c.theme, false);
    for (int k = 0; k < 7; ++k) {
        p.fillRect(QRect(3 + k, 3 + k, 2, 1), c.theme.caption);
        p.fillRect(QRect(9 - k, 3 + k, 2, 1), c.theme.caption);
    }
}

void paintLoadSkin(QPainter& p, const QRect& r, const Context& c, const Rect&) {
    captionButton(p, r, c.theme, QStringLiteral("LOAD SKIN"));
}
void paintSaveDefaults(QPainter& p, const QRect& r, const Context& c, const Rect&) {
    captionButton(p, r, c.theme, QStringLiteral("DEFAULTS"));
}
void paintSaveTB(QPainter& p, const QRect& r, const Context& c, const Rect&) {
    captionButton(p, r, c.theme, QStringLiteral("SAVE T/B"));
}

void paintKnob(QPainter& p, const QRect& r, const Context& c, const Rect&) {
    plate(p, r, c.theme, false);
    p.fillRect(QRect(1, r.height() / 2 - 1, r.width() - 2, 2), c.theme.lit);
}

void paintSongKnob(QPainter& p, const QRect& r, const Context& c, const Rect&) {
    plate(p, r, c.theme, false);
    p.fillRect(QRect(r.width() / 2, 2, 1, r.height() - 4), c.theme.lit);
}

void paintSongTrack(QPainter& p, const QRect& r, const Context& c, const Rect&) { songGroove(p, r, c.theme); }

void paintDigits(QPainter& p, const QRect&, const Context& c, const Rect&) {
    const Theme& t = c.theme;
    const Rect first = digitRow()[0].place;
    const QImage ground = c.ground(first);
    const QColor off = mixColour(t.glass, t.displayText, 10);
    for (int n = 0; n < digitCells; ++n) {
        const QPoint o(n * (first.w + 1), 0);
        p.drawImage(o, ground);
        if (n < 10) {
            segments(p, o, n, t.displayText, off);
        } else if (n == 10) {
            p.fillRect(QRect(o.x() + 3, 3, 1, 1), t.displayText);
            p.fillRect(QRect(o.x() + 3, 7, 1, 1), t.displayText);
        } else {
            p.fillRect(QRect(o.x() + 3, 10, 1, 1), t.displayText);
        }
    }
}

void paintMono(QPainter& p, const QRect& r, const Context& c, const Rect& place) {
    badge(p, r, c, place, QStringLiteral("MONO"), c.theme.amber);
}
void paintStereo(QPainter& p, const QRect& r, const Context& c, const Rect& place) {
    badge(p, r, c, place, QStringLiteral("STEREO"), c.theme.glassLit);
}

}  // namespace sonarium::skingen::zipdeck
