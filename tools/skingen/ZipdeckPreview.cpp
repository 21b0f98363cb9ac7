// The assembled Zipdeck window for looking at a skin: the panel with every shown control's
// picture at its place, as the program puts them together, and sample content.
#include <QPainter>
#include <cmath>

#include "Paint.h"
#include "Zipdeck.h"
#include "ZipdeckArt.h"

namespace sonarium::skingen::zipdeck {

namespace {

const QColor desktop(0x2b, 0x6c, 0x8f);

QRect q(const Rect& r) { return toQRect(r); }

}  // namespace

QImage assembled(const Theme& t, const QImage& panel, const QImage& sheet, bool collapsed) {
    QImage window = panel.copy();
    QPainter p(&window);
    auto put = [&](const Rect& cut, const Rect& at) { p.drawImage(QPoint(at.x, at.y), sheet.copy(q(cut))); };
    for (int n = 1; n <= int(blocks().size()); ++n) {
        const Block& b = block(n);
        if (b.hasCut && b.show && b.zone != Zone::Stored && n != 19 && n != 26 && (n < 11 || n > 13))
            put(b.cut, b.place());
    }
    // The sliders at volume 70, treble 55, bass 40; the song two fifths through.
    const int values[3] = {70, 55, 40};
    for (int k = 0; k < 3; ++k) {
        const Block& b = block(11 + k);
        const int range = sliderTravel - b.cut.h;
        put(b.cut, {b.left, b.top + int(std::lround(range * (100 - values[k]) / 100.0)), b.cut.w, b.cut.h});
    }
    const Block& knob = block(26);
    put(knob.cut,
        {block(27).left + (block(27).cut.w - knob.cut.w) * 2 / 5, knob.top, knob.cut.w, knob.cut.h});
    for (int i = 0; i < lampCount; ++i)
        put(block(i < 12 ? (i >= firstAmberLamp ? 22 : 23) : 20).cut, lampPlace(i));
    const int figures[8] = {0, 3, 4, 5, 0, 1, 2, 3};
    int digit = 0;
    for (const DigitSlot& s : digitRow()) put(digitCell(s.cell < 0 ? figures[digit++] : s.cell), s.place);

    const Rect title = block(31).place();
    p.fillRect(q(title), titleBack(t));
    QFont font(QStringLiteral("DejaVu Sans"));
    font.setPointSize(titleFontPoints);
    font.setBold(titleBold);
    p.setFont(font);
    p.setPen(titleText(t));
    p.drawText(q(title).adjusted(3, 0, 0, 0), Qt::AlignLeft | Qt::AlignVCenter,
               QStringLiteral("Feeling Good - I Put a Spell on You - Nina Simone"));
    const Rect list = block(35).place();
    p.fillRect(q(list), listBack(t));
    p.setFont(pixelFont(9, false, true));
    p.setPen(listText(t));
    const char* rows[listRows] = {"Feeling Good", "Sinnerman", "Lilac Wine", "Four Women",
                                  "Wild Is the Wind"};
    for (int i = 0; i < listRows; ++i)
        p.drawText(QRect(list.x + 3, list.y + 1 + i * listRowHeight, list.w - 6, listRowHeight),
                   Qt::AlignLeft | Qt::AlignVCenter, QString::fromLatin1(rows[i]));
    p.end();

    const int width = collapsed ? collapsedWidth : windowWidth;
    QImage shown(width + 16, windowHeight + 16, QImage::Format_RGB32);
    shown.fill(desktop);
    for (int y = 0; y < windowHeight; ++y)
        for (int x = 0; x < width; ++x)
            if (panel.pixel(x, y) != maskColour) shown.setPixel(x + 8, y + 8, window.pixel(x, y));
    return shown;
}

}  // namespace sonarium::skingen::zipdeck
