// Panel.bmp and Buttons.bmp of the Zipdeck, both drawn from the layout table: the panel puts a
// well, slot or tray behind each control where the table places it, and the sheet paints each
// picture at its cut on the panel's pixels under its place.
#include <algorithm>
#include <tuple>
#include <vector>

#include "Paint.h"
#include "ZipdeckArt.h"

namespace sonarium::skingen::zipdeck {

namespace {

QRect q(const Rect& r) { return toQRect(r); }

// A recess whose glass is one flat colour, where the program paints that same colour itself.
void flatWell(QPainter& p, const QRect& inner, const QColor& glass, const Theme& t) {
    p.fillRect(inner, glass);
    bevel(p, inner.adjusted(-1, -1, 1, 1), t.rimDark, t.rimLight);
}

QRect united(std::initializer_list<int> numbers) {
    QRect r;
    for (int n : numbers) r |= q(block(n).place());
    return r;
}

void displays(QPainter& p, const Theme& t) {
    flatWell(p, q(block(31).place()), titleBack(t), t);
    const auto row = digitRow();
    well(p, q(row.front().place).united(q(row.back().place)).adjusted(-2, -2, 2, 2), t);
    well(p, q(lampPlace(0)).united(q(lampPlace(lampCount - 1))).adjusted(-2, -3, 2, 3), t);
    for (int i = 0; i < lampCount; ++i) meterLamp(p, q(lampPlace(i)), t.lampOff, false);
    // The badges' glass shows them unlit where the program hides one.
    well(p, united({37, 38}).adjusted(-1, -1, 1, 1), t);
    for (auto [n, text, ink] : {std::tuple{37, "MONO", t.amber}, std::tuple{38, "STEREO", t.glassLit}}) {
        const QRect at = q(block(n).place());
        const QString s = QString::fromLatin1(text);
        microText(p, at.left() + (at.width() - microWidth(s)) / 2, at.top() + (at.height() - 5) / 2, s,
                  mixColour(t.glass, ink, 22));
    }
    songGroove(p, q(block(27).place()), t);
}

// Three slots the knobs ride in, with a scale beside each and its legend under it.
void faders(QPainter& p, const Theme& t) {
    const char* legends[3] = {"VOL", "TRE", "BAS"};
    for (int k = 0; k < 3; ++k) {
        const Block& b = block(11 + k);
        const int cx = b.left + b.cut.w / 2;
        const QRect slot(cx - 1, b.top, 3, sliderTravel);
        for (int step = 0; step <= 4; ++step) {
            const int y = b.top + b.cut.h / 2 + step * (sliderTravel - b.cut.h) / 4;
            const int len = step % 2 == 0 ? 3 : 2;
            p.fillRect(QRect(b.left, y, len, 1), t.legendDim);
            p.fillRect(QRect(b.left + b.cut.w - len, y, len, 1), t.legendDim);
        }
        flatWell(p, slot.adjusted(1, 1, -1, -1), t.glass, t);
        const QString legend = QString::fromLatin1(legends[k]);
        microText(p, cx - microWidth(legend) / 2, b.top + sliderTravel + 3, legend, t.legend);
    }
}

void listModule(QPainter& p, const Theme& t) {
    flatWell(p, q(block(35).place()), listBack(t), t);
    tray(p, united({9, 10}), t);
    tray(p, united({15, 16, 17}), t);
    // The name fills the row's end, right of the list's buttons.
    const int from = united({16}).right() + 5;
    crispText(p, QRect(from, block(16).top, windowWidth - 6 - from, block(16).cut.h),
              QStringLiteral("ZIPDECK"), t.legendDim, 8, true);
}

// Outside the outline the magenta that the program cuts away; on it a one-pixel bevel lit from
// the top left; and where the deck meets the list's module, the deck's own dark edge beside
// the module's light one, so the deck alone looks finished when the list is hidden.
void outline(QImage& img, const Theme& t) {
    const QRgb light = t.bevelLight.rgb(), dark = t.bevelDark.rgb(),
               both = mixColour(t.bevelLight, t.bevelDark, 50).rgb();
    for (int y = 0; y < img.height(); ++y) {
        auto* line = reinterpret_cast<QRgb*>(img.scanLine(y));
        for (int x = 0; x < img.width(); ++x) {
            if (!solid(x, y)) {
                line[x] = maskColour;
                continue;
            }
            const bool lit = !solid(x, y - 1) || !solid(x - 1, y) || x == collapsedWidth;
            const bool shaded = !solid(x, y + 1) || !solid(x + 1, y) || x == collapsedWidth - 1;
            if (lit || shaded) line[x] = lit && shaded ? both : lit ? light : dark;
        }
    }
}

}  // namespace

QImage drawPanel(const Theme& t) {
    QImage img(windowWidth, windowHeight, QImage::Format_RGB32);
    {
        QPainter p(&img);
        paintMetal(p, QRect(0, 0, collapsedWidth, windowHeight), t, seedOf("ZipdeckDeck"));
        paintMetal(p, QRect(collapsedWidth, 0, windowWidth - collapsedWidth, windowHeight), t,
                   seedOf("ZipdeckList"));
        displays(p, t);
        faders(p, t);
        tray(p, united({1, 3, 5, 7}), t);
        tray(p, united({29, 14}), t);
        tray(p, united({33, 32, 28}), t);
        tray(p, united({24, 25}), t);
        listModule(p, t);
    }
    outline(img, t);
    return img;
}

QImage drawSheet(const Theme& t, const QImage& panel) {
    QImage sheet(sheetWidth, sheetHeight, QImage::Format_RGB32);
    sheet.fill(t.faceBottom);
    const Context c{t, panel};
    QPainter p(&sheet);
    std::vector<QRect> done;
    for (int n = 1; n <= int(blocks().size()); ++n) {
        const Block& b = block(n);
        if (!b.hasCut || !b.paint) continue;
        const QRect area = n == 19 ? q(digitCell(0)).united(q(digitCell(digitCells - 1))) : q(b.cut);
        if (std::find(done.begin(), done.end(), area) != done.end()) continue;  // the sliders share a knob
        done.push_back(area);
        p.save();
        p.setClipRect(area);
        p.translate(area.topLeft());
        b.paint(p, QRect(QPoint(0, 0), area.size()), c, b.zone == Zone::Stored ? lampPlace(0) : b.place());
        p.restore();
    }
    return sheet;
}

}  // namespace sonarium::skingen::zipdeck
