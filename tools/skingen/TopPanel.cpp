// The top deck: the photo screen at the left, and at the right the song title, the transport,
// the time, the lamps, the song slider or meter, the speed and the song's details, each in a
// recess or on a tray of its own so that the deck looks built around its controls.
#include "Paint.h"
#include "Sheets.h"
#include "WindowPlaces.h"

namespace sonarium::skingen {

namespace {

using namespace places;

QRect q(const mainskin::Rect& r) { return toQRect(r); }
// The smallest rectangle holding both.
QRect span(const mainskin::Rect& a, const mainskin::Rect& b) { return q(a).united(q(b)); }

// A legend centred under `over`, its top at `top`.
void legendUnder(QPainter& p, const QRect& over, int top, int width, const QString& text, const Theme& t) {
    const QRect box(over.center().x() - width / 2, top, width, 9);
    crispText(p, box, text, t.legend, 8);
}

}  // namespace

void paintTopPanel(QPainter& p, const QRect& r, const Theme& t) {
    paintMetal(p, r, t, seedOf("PicTopPanel"));
    raisedEdge(p, r, t);

    // The photo, song details, song sets and converter all show in one screen.
    well(p, q(photo), t, true);
    vGroove(p, 240, 6, r.height() - 12, t);

    well(p, q(songTitle), t);

    tray(p, span(btnPlay, btnFade).adjusted(-2, -2, 2, 2), t);
    well(p, q(time), t, true);

    // Busy lamp, loop lamp with its sign, and shuffle share one window.
    const QRect lamps = span(ball, shuffle).united(q(repeat)).adjusted(-4, -2, 4, 2);
    well(p, lamps, t);
    const int legendTop = lamps.bottom() + 3;
    legendUnder(p, q(ball), legendTop, 26, QStringLiteral("BUSY"), t);
    legendUnder(p, span(loop, repeat), legendTop, 26, QStringLiteral("LOOP"), t);
    legendUnder(p, q(shuffle), legendTop, 20, QStringLiteral("MIX"), t);

    // The song slider and the level meter take turns in one recess.
    well(p, q(vu), t);

    tray(p, span(speedDown, speedUp).adjusted(-1, -1, 1, 1), t);
    well(p, q(speed), t);

    for (const auto& box : {bitrate, frequency, duration, monoStereo, totalTime}) well(p, q(box), t);

    // The maker's name, engraved exactly where the converter's badge and quit button appear,
    // so that they cover it whole and nothing of it shows around them.
    const QRect nameBox = q(encoder).adjusted(2, 0, 0, 0);
    QFont brand = pixelFont(13, true, true);
    brand.setLetterSpacing(QFont::AbsoluteSpacing, 3);
    p.save();
    p.setClipRect(q(encoder));
    p.setFont(brand);
    p.setPen(t.bevelLight);
    p.drawText(nameBox.translated(0, 1), Qt::AlignLeft | Qt::AlignVCenter, QStringLiteral("SONARIUM"));
    p.setPen(t.legendDim);
    p.drawText(nameBox, Qt::AlignLeft | Qt::AlignVCenter, QStringLiteral("SONARIUM"));
    p.restore();
    crispText(p, q(quitEncoder).adjusted(2, 0, 0, -3), QStringLiteral("DIGITAL AUDIO JUKEBOX"), t.legendDim,
              8, false, Qt::AlignLeft);

    // Tone memory and the punch section sit on the deck's bottom row.
    legendUnder(p, span(saveTB, saveTBDefaults), q(saveTB).bottom() + 3, 30, QStringLiteral("TONE"), t);
}

}  // namespace sonarium::skingen
