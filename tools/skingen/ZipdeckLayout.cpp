#include "ZipdeckLayout.h"

#include <QSize>
#include <algorithm>

#include "Paint.h"
#include "ZipdeckArt.h"

namespace sonarium::skingen::zipdeck {

namespace {

constexpr Rect noCut(int w, int h) { return {0, 0, w, h}; }

// The controls without a picture, and short names for the painters that take parameters.
constexpr Rect titleBox = noCut(169, titleHeight), photoBox = noCut(24, 16),
               listBox = noCut(140, 2 + listRows * listRowHeight),
               windowBox = noCut(windowWidth, windowHeight);
constexpr Painter back = paintTransport<Sign::Back, false>, backIn = paintTransport<Sign::Back, true>,
                  play = paintTransport<Sign::Play, false>, playIn = paintTransport<Sign::Play, true>,
                  pause = paintTransport<Sign::Pause, false>, pauseIn = paintTransport<Sign::Pause, true>,
                  forward = paintTransport<Sign::Forward, false>,
                  forwardIn = paintTransport<Sign::Forward, true>,
                  lampOff = paintLamp<&Theme::lampOff, false>, lampRed = paintLamp<&Theme::red, true>,
                  lampAmber = paintLamp<&Theme::amber, true>, lampGreen = paintLamp<&Theme::green, true>;

// The window is two modules: the deck on the left with all four corners rounded, and the list's
// module joined to its right side, a little lower and shorter, rounded on its right only.
constexpr Rect deckModule{0, 0, collapsedWidth, windowHeight};
constexpr int deckRadius = 6;
constexpr Rect listModule{collapsedWidth, 4, windowWidth - collapsedWidth, windowHeight - 8};
constexpr int listRadius = 5;

// Whether pixel (x, y) lies in `r` with the corners named by `left`/`right` rounded to radius
// `rad`: the pixel's centre within `rad` of the corner circle's centre.
bool inRounded(const Rect& r, int rad, bool left, bool right, int x, int y) {
    if (x < r.x || x >= r.right() || y < r.y || y >= r.bottom()) return false;
    const double px = x + 0.5, py = y + 0.5;
    double cx = px;
    if (left) cx = std::max(cx, double(r.x + rad));
    if (right) cx = std::min(cx, double(r.right() - rad));
    const double cy = std::clamp(py, double(r.y + rad), double(r.bottom() - rad));
    return (px - cx) * (px - cx) + (py - cy) * (py - cy) <= double(rad) * rad;
}

bool inside(const Rect& inner, const Rect& outer) {
    return inner.x >= outer.x && inner.y >= outer.y && inner.right() <= outer.right() &&
           inner.bottom() <= outer.bottom();
}
bool overlap(const Rect& a, const Rect& b) {
    return a.x < b.right() && b.x < a.right() && a.y < b.bottom() && b.y < a.bottom();
}
bool same(const Rect& a, const Rect& b) { return a.x == b.x && a.y == b.y && a.w == b.w && a.h == b.h; }

QString rectText(const Rect& r) { return QStringLiteral("%1,%2 %3x%4").arg(r.x).arg(r.y).arg(r.w).arg(r.h); }

// The area a block takes on the sheet: the digit block owns its whole strip of cells.
Rect sheetArea(int number) {
    const Rect& c = block(number).cut;
    return number == 19 ? Rect{c.x, c.y, digitCells * (c.w + 1) - 1, c.h} : c;
}

}  // namespace

// clang-format off
const std::array<Block, 38>& blocks() {
    using Z = Zone;
    static const std::array<Block, 38> table{{
        // label               cut on Buttons.bmp  cut    show  left top  zone       picture
        {"ButtonBack",         {1, 1, 24, 16},     true,  true,    7, 56, Z::Left,   back},
        {"ButtonBackPress",    {26, 1, 24, 16},    true,  false,   7, 56, Z::Left,   backIn},
        {"ButtonPlay",         {51, 1, 24, 16},    true,  true,   33, 56, Z::Left,   play},
        {"ButtonPlayPress",    {76, 1, 24, 16},    true,  false,  33, 56, Z::Left,   playIn},
        {"ButtonPause",        {101, 1, 24, 16},   true,  true,   59, 56, Z::Left,   pause},
        {"ButtonPausePress",   {126, 1, 24, 16},   true,  false,  59, 56, Z::Left,   pauseIn},
        {"ButtonForward",      {151, 1, 24, 16},   true,  true,   85, 56, Z::Left,   forward},
        {"ButtonForwardPress", {176, 1, 24, 16},   true,  false,  85, 56, Z::Left,   forwardIn},
        {"cmdUp",              {26, 18, 15, 30},   true,  true,  369,  8, Z::List,   paintPageUp},
        {"cmdDown",            {42, 18, 15, 30},   true,  true,  369, 40, Z::List,   paintPageDown},
        {"SLiderVolume",       {90, 29, 11, 8},    true,  true,  172, 46, Z::Left,   paintKnob},
        {"SliderTreble",       {90, 29, 11, 8},    true,  true,  187, 46, Z::Left,   paintKnob},
        {"SliderBass",         {90, 29, 11, 8},    true,  true,  202, 46, Z::Left,   paintKnob},
        {"cmdShowList",        {1, 18, 24, 16},    true,  true,  141, 56, Z::Left,   paintShowList},
        {"cmdHideList",        {90, 18, 15, 10},   true,  true,  224, 73, Z::List,   paintHideList},
        {"cmdListType",        {106, 18, 44, 10},  true,  true,  292, 73, Z::List,   paintListType},
        {"lblSongQueue",       {151, 18, 44, 10},  true,  true,  244, 73, Z::List,   paintQueueLabel},
        {"lblSongSets",        {196, 18, 44, 10},  true,  false, 244, 73, Z::List,   paintSetsLabel},
        {"Digits",             {154, 49, 7, 11},   true,  true,    9, 28, Z::Left,   paintDigits},
        {"imgVUPurple",        {154, 29, 3, 9},    true,  false,   0,  0, Z::Stored, lampOff},
        {"imgVURed",           {158, 29, 3, 9},    true,  false,   0,  0, Z::Stored, lampRed},
        {"imgVUAmber",         {162, 29, 3, 9},    true,  false,   0,  0, Z::Stored, lampAmber},
        {"imgVUGreen",         {166, 29, 3, 9},    true,  false,   0,  0, Z::Stored, lampGreen},
        {"cmdFullScreen",      {58, 18, 15, 14},   true,  true,  182,  7, Z::Left,   paintMainScreen},
        {"cmdQuit",            {74, 18, 15, 14},   true,  true,  199,  7, Z::Left,   paintQuit},
        {"imgButtonSong",      {170, 29, 9, 9},    true,  true,    7, 44, Z::Left,   paintSongKnob},
        {"imgSLiderSong",      {1, 61, 158, 5},    true,  true,    7, 46, Z::Left,   paintSongTrack},
        {"cmdLoadSkin",        {103, 49, 50, 10},  true,  true,  115, 75, Z::Left,   paintLoadSkin},
        {"cmdLoop",            {201, 1, 24, 16},   true,  true,  113, 56, Z::Left,   paintLoop},
        {"cmdLoopOn",          {226, 1, 24, 16},   true,  false, 113, 56, Z::Left,   paintLoopOn},
        {"Picture1",           titleBox,           false, true,    7,  6, Z::Left,   nullptr},
        {"cmdSaveDefaults",    {1, 49, 50, 10},    true,  true,   61, 75, Z::Left,   paintSaveDefaults},
        {"cmsSaveTB",          {52, 49, 50, 10},   true,  true,    7, 75, Z::Left,   paintSaveTB},
        {"Photo",              photoBox,           false, false, 141, 56, Z::Left,   nullptr},
        {"lstSongSets",        listBox,            false, true,  224,  8, Z::List,   nullptr},
        {"Window",             windowBox,          false, true,    0,  0, Z::Any,    nullptr},
        {"Mono",               {102, 29, 25, 7},   true,  true,  188, 34, Z::Left,   paintMono},
        {"Stereo",             {128, 29, 25, 7},   true,  true,  188, 27, Z::Left,   paintStereo},
    }};
    return table;
}
// clang-format on

const Block& block(int number) { return blocks().at(std::size_t(number - 1)); }

Rect digitCell(int n) {
    const Rect& c = block(19).cut;
    return {c.x + n * (c.w + 1), c.y, c.w, c.h};
}

std::array<DigitSlot, 11> digitRow() {
    const Block& b = block(19);
    std::array<DigitSlot, 11> row{};
    int x = b.left, k = 0;
    auto put = [&](int cell) {
        row[std::size_t(k++)] = {cell, {x, b.top, b.cut.w, b.cut.h}};
        x += b.cut.w + 1;
    };
    for (int digit = 0; digit < 8; ++digit) {
        put(-1);
        if (digit == 1 || digit == 5) put(10);  // colons inside each time
        if (digit == 3) put(11);                // the point between length and elapsed time
    }
    return row;
}

Rect lampPlace(int i) {
    const Rect& c = block(20).cut;
    return {105 + i * (c.w + 1), 29, c.w, c.h};
}

QColor lampColour(const Theme& t, int i) {
    return i >= firstRedLamp ? t.red : i >= firstAmberLamp ? t.amber : t.green;
}

QColor titleBack(const Theme& t) { return t.glass; }
QColor titleText(const Theme& t) { return t.glassText; }
QColor listBack(const Theme& t) { return t.queueBack; }
QColor listText(const Theme& t) { return t.queueText; }

bool solid(int x, int y) {
    return inRounded(deckModule, deckRadius, true, true, x, y) ||
           inRounded(listModule, listRadius, false, true, x, y);
}

QStringList layoutProblems(const QSize& sheetSize) {
    QStringList problems;
    const Rect sheet{0, 0, sheetSize.width(), sheetSize.height()};
    const Rect window{0, 0, windowWidth, windowHeight};
    const Rect deck{0, 0, collapsedWidth, windowHeight};
    const Rect list{collapsedWidth, 0, windowWidth - collapsedWidth, windowHeight};
    auto name = [](int n) {
        const std::string_view l = block(n).label;
        return QStringLiteral("block %1 (%2)").arg(n).arg(QLatin1String(l.data(), qsizetype(l.size())));
    };
    for (int n = 1; n <= int(blocks().size()); ++n) {
        const Block& b = block(n);
        if (b.hasCut && !inside(sheetArea(n), sheet))
            problems << name(n) + QStringLiteral(": cut %1 is off the sheet").arg(rectText(sheetArea(n)));
        for (int m = 1; m < n; ++m)
            if (b.hasCut && block(m).hasCut && !same(sheetArea(n), sheetArea(m)) &&
                overlap(sheetArea(n), sheetArea(m)))
                problems << name(m) + QStringLiteral(" and ") + name(n) +
                                QStringLiteral(" overlap on the sheet");
        if (b.label.empty() || b.label.find_first_of(",\"\r\n") != std::string_view::npos)
            problems << name(n) + QStringLiteral(": a label must be bare words");
        const Rect at = n == 19 ? Rect{b.left, b.top, 11 * (b.cut.w + 1), b.cut.h} : b.place();
        const Rect* zone = b.zone == Zone::Left ? &deck : b.zone == Zone::List ? &list : &window;
        if (b.zone != Zone::Stored && !inside(at, *zone))
            problems << name(n) + QStringLiteral(": its place %1 is outside its part of the window")
                                      .arg(rectText(at));
    }
    for (int i = 0; i < lampCount; ++i)
        if (!inside(lampPlace(i), deck)) problems << QStringLiteral("lamp %1 is outside the deck").arg(i);
    for (int n : {12, 13})
        if (block(n).top != block(11).top) problems << name(n) + QStringLiteral(": the sliders need one Top");
    if (block(11).top + sliderTravel > windowHeight)
        problems << QStringLiteral("the sliders run off the window");
    if (block(26).cut.w >= block(27).cut.w)
        problems << QStringLiteral("the song knob is not narrower than its track");
    if (block(35).cut.h < 2 + listRows * listRowHeight)
        problems << QStringLiteral("the list is too low for its rows");
    return problems;
}

}  // namespace sonarium::skingen::zipdeck
