// Command plates and transport buttons, and the tables that name the painter of each picture
// of Buttons.bmp and of each state in the image list.
#include <vector>

#include "Paint.h"
#include "Pieces.h"
#include "WindowPlaces.h"

namespace sonarium::skingen {

namespace {

void glyphShape(QPainter& p, Glyph g, QPoint o, const QColor& ink) {
    switch (g) {
    case Glyph::Play: triangle(p, o + QPoint(-2, 0), 6, Pointing::Right, ink); break;
    case Glyph::Pause:
        p.fillRect(QRect(o.x() - 4, o.y() - 5, 3, 11), ink);
        p.fillRect(QRect(o.x() + 2, o.y() - 5, 3, 11), ink);
        break;
    case Glyph::Stop: p.fillRect(QRect(o.x() - 4, o.y() - 4, 9, 9), ink); break;
    case Glyph::Fade:
        // A wedge falling to the right: the sound dying away.
        for (int k = 0; k < 13; ++k) {
            const int h = 11 - k * 10 / 12;
            p.fillRect(QRect(o.x() - 6 + k, o.y() + 5 - h + 1, 1, h), ink);
        }
        break;
    }
}

}  // namespace

void paintCommand(QPainter& p, const QRect& r, const Theme& t, const QString& caption) {
    plate(p, r, t, false);
    crispText(p, r.adjusted(3, 0, -3, 0), caption, t.caption, 9);
}

void paintTransport(QPainter& p, const QRect& r, const Theme& t, Glyph g, bool pressed, const QColor* light) {
    plate(p, r, t, pressed);
    const QPoint shift = pressed ? QPoint(1, 1) : QPoint(0, 0);
    const QPoint centre = QPoint(r.width() / 2, 8) + shift;
    const QColor face = pressed ? t.pressedTop : t.plateTop;
    if (light) {
        // A halo one pixel round the sign, as a lit legend bleeds into its window.
        const QColor halo = mixColour(face, *light, 35);
        for (const QPoint d : {QPoint(-1, 0), QPoint(1, 0), QPoint(0, -1), QPoint(0, 1)})
            glyphShape(p, g, centre + d, halo);
    }
    glyphShape(p, g, centre, light ? *light : t.caption);
    // The status light under the sign.
    const QRect bar(r.width() / 2 - 6 + shift.x(), 15 + shift.y(), 12, 2);
    p.fillRect(bar, light ? *light : mixColour(face, t.plateDark, 60));
}

namespace {

using namespace places;

struct Named {
    std::string_view control;
    PiecePainter paint;
};

PiecePainter command(const char* caption) {
    const QString text = QString::fromUtf8(caption);
    return [text](QPainter& p, const QRect& r, const PieceContext& c) { paintCommand(p, r, c.theme, text); };
}

template <class F>
PiecePainter themed(F f) {
    return [f](QPainter& p, const QRect& r, const PieceContext& c) { f(p, r, c.theme); };
}

const std::vector<Named>& buttonTable() {
    static const std::vector<Named> table = {
        {"cmdAddAll", command("Add all")},
        {"cmdDeleteAll", command("Delete all")},
        {"cmdDelete", command("Delete song")},
        {"imgQuitEncoder", command("Quit converter")},
        {"cmdSetPunchInOut", command("Set")},
        {"cmdAddToQueue", command("Add to queue")},
        {"CmdDataAdd", command("Add/Update")},
        {"cmdSearch", command("Auto search")},
        {"imgAutoUpdate", command("Auto search")},
        {"cmdAutoSet", command("Song set")},
        {"cmdClearAll", command("Clear all")},
        {"cmdDatabaseClose", command("Close")},
        {"CmdDeleteFile", command("Delete file")},
        {"cmdDeleteLine", command("Delete record")},
        {"cmdCloseInfoViewer", command("Close info")},
        {"btnGigGuide", command("Gig guide")},
        {"btnContact", command("Contact")},
        {"cmdCurrentSongInfo", command("Song info")},
        {"cmdPrint", command("Print")},
        {"imgCancelSearch", command("Stop search")},
        {"SLiderVolume", themed(paintFaderKnob)},
        {"SliderTreble", themed(paintFaderKnob)},
        {"SliderBass", themed(paintFaderKnob)},
        {"imgDown", paintColumnMenu},
        {"imgEncoder", themed(paintEncoderBadge)},
        {"lblPunchInOut",
         [](QPainter& p, const QRect& r, const PieceContext& c) {
             paintDeckLegend(p, r, c, punchLegend, QStringLiteral("PUNCH IN/OUT"));
         }},
        {"lblSpd",
         [](QPainter& p, const QRect& r, const PieceContext& c) {
             paintDeckLegend(p, r, c, speedLegend, QStringLiteral("SPEED"));
         }},
        {"cmdDown",
         themed([](QPainter& p, const QRect& r, const Theme& t) { paintPageButton(p, r, t, false); })},
        {"cmdUp",
         themed([](QPainter& p, const QRect& r, const Theme& t) { paintPageButton(p, r, t, true); })},
        {"imgDataBase", themed(paintDatabaseButton)},
        {"imgViewInfo",
         themed([](QPainter& p, const QRect& r, const Theme& t) { paintInfoButton(p, r, t, false); })},
        {"imgEditInfo",
         themed([](QPainter& p, const QRect& r, const Theme& t) { paintInfoButton(p, r, t, true); })},
        {"imgVUPurple", [](QPainter& p, const QRect& r,
                           const PieceContext& c) { paintVuLamp(p, r, c, c.theme.lampOff, false); }},
        {"imgVUGreen", [](QPainter& p, const QRect& r,
                          const PieceContext& c) { paintVuLamp(p, r, c, c.theme.green, true); }},
        {"imgVURed",
         [](QPainter& p, const QRect& r, const PieceContext& c) { paintVuLamp(p, r, c, c.theme.red, true); }},
        {"imgVUAmber", [](QPainter& p, const QRect& r,
                          const PieceContext& c) { paintVuLamp(p, r, c, c.theme.amber, true); }},
        {"cmdInfoLeft",
         themed([](QPainter& p, const QRect& r, const Theme& t) { paintInfoArrow(p, r, t, false); })},
        {"cmdInfoRight",
         themed([](QPainter& p, const QRect& r, const Theme& t) { paintInfoArrow(p, r, t, true); })},
        {"Indent", themed([](QPainter& p, const QRect& r, const Theme& t) { paintColumnFace(p, r, t, 0); })},
        {"imgButon",
         themed([](QPainter& p, const QRect& r, const Theme& t) { paintColumnFace(p, r, t, 0); })},
        {"Button", themed([](QPainter& p, const QRect& r, const Theme& t) { paintColumnFace(p, r, t, 1); })},
        {"ButtonBlue",
         themed([](QPainter& p, const QRect& r, const Theme& t) { paintColumnFace(p, r, t, 2); })},
        {"cmdSpeedDown",
         themed([](QPainter& p, const QRect& r, const Theme& t) { paintSpeedButton(p, r, t, false); })},
        {"cmdSpeedUp",
         themed([](QPainter& p, const QRect& r, const Theme& t) { paintSpeedButton(p, r, t, true); })},
        {"chkLoop",
         [](QPainter& p, const QRect& r, const PieceContext& c) { paintBall(p, r, c, c.theme.red); }},
        {"Ball", [](QPainter& p, const QRect& r, const PieceContext& c) { paintBall(p, r, c, c.theme.red); }},
        {"imgRedBall",
         [](QPainter& p, const QRect& r, const PieceContext& c) { paintBall(p, r, c, c.theme.red); }},
        {"imgGreenBall",
         [](QPainter& p, const QRect& r, const PieceContext& c) { paintBall(p, r, c, c.theme.green); }},
        {"lblRepeat", paintRepeatSign},
        {"cmdShuffle", paintShuffle},
        {"cmdSaveTBDefaults", themed(paintToneButton)},
        {"cmdSaveTB", themed(paintToneButton)},
        {"imgButtonSong", paintSongKnob},
        {"imgSLiderSong", themed(paintSongTrack)},
    };
    return table;
}

}  // namespace

PiecePainter buttonPainter(std::string_view control) {
    for (const Named& n : buttonTable())
        if (n.control == control) return n.paint;
    return {};
}

bool isImageListFiller(int index) { return (index >= 11 && index <= 14) || (index >= 19 && index <= 23); }

PiecePainter imageListPainter(int index) {
    auto transport = [](Glyph g, bool pressed, QColor Theme::*light) -> PiecePainter {
        return [=](QPainter& p, const QRect& r, const PieceContext& c) {
            paintTransport(p, r, c.theme, g, pressed, light ? &(c.theme.*light) : nullptr);
        };
    };
    switch (index) {
    case 1: return transport(Glyph::Play, false, nullptr);
    case 2: return transport(Glyph::Play, true, &Theme::lit);
    case 3: return transport(Glyph::Stop, false, nullptr);
    case 4: return transport(Glyph::Stop, true, &Theme::lit);
    case 5: return transport(Glyph::Fade, false, nullptr);
    case 6: return transport(Glyph::Fade, true, &Theme::lit);
    case 7: return transport(Glyph::Pause, false, nullptr);
    case 8: return transport(Glyph::Pause, true, &Theme::lit);
    case 9: return transport(Glyph::Pause, false, &Theme::amber);
    case 10: return transport(Glyph::Pause, true, &Theme::amber);
    case 15:
        return themed([](QPainter& p, const QRect& r, const Theme& t) { paintSizeButton(p, r, t, true); });
    case 16:
        return themed([](QPainter& p, const QRect& r, const Theme& t) { paintSizeButton(p, r, t, false); });
    case 17:
        return themed([](QPainter& p, const QRect& r, const Theme& t) { paintMonoStereo(p, r, t, false); });
    case 18:
        return themed([](QPainter& p, const QRect& r, const Theme& t) { paintMonoStereo(p, r, t, true); });
    case 24: return transport(Glyph::Play, false, &Theme::green);
    default: return {};
    }
}

}  // namespace sonarium::skingen
