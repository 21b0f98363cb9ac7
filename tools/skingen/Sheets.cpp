#include "Sheets.h"

#include <QPainter>
#include <QStringList>
#include <stdexcept>
#include <string>
#include <vector>

#include "Paint.h"

namespace sonarium::skingen {

using namespace mainskin;

namespace {

bool sameRect(const Rect& a, const Rect& b) { return a.x == b.x && a.y == b.y && a.w == b.w && a.h == b.h; }
bool overlap(const Rect& a, const Rect& b) {
    return a.x < b.right() && b.x < a.right() && a.y < b.bottom() && b.y < a.bottom();
}

// Of the pictures that share pixels, these are drawn first and give way to the others: the
// table puts btnContact across both btnGigGuide and cmdCurrentSongInfo, and the song-info
// button is the one that is always on the screen.
constexpr std::string_view yielding[] = {"btnContact"};
bool yields(std::string_view control) {
    for (std::string_view y : yielding)
        if (y == control) return true;
    return false;
}

// Draws each rectangle once, clipped to it, with the piece's own origin.
class SheetPainter {
public:
    explicit SheetPainter(QImage& sheet) : p_(&sheet) {}

    bool drawn(const Rect& r) const {
        for (const Rect& d : done_)
            if (sameRect(d, r)) return true;
        return false;
    }
    template <class Paint>
    void draw(const Rect& r, Paint&& paint) {
        done_.push_back(r);
        p_.save();
        p_.setClipRect(toQRect(r));
        p_.translate(r.x, r.y);
        paint(p_, QRect(0, 0, r.w, r.h));
        p_.restore();
    }

private:
    QPainter p_;
    std::vector<Rect> done_;
};

[[noreturn]] void missing(std::string_view what) {
    throw std::runtime_error("no drawing for " + std::string(what));
}

QImage crop(const QImage& from, const Rect& r) { return from.copy(toQRect(r)); }

}  // namespace

QImage PieceContext::ground(std::string_view panel, const Rect& place) const {
    for (const Cut& cut : PanelCuts)
        if (cut.control == panel)
            return crop(panels, {cut.rect.x + place.x, cut.rect.y + place.y, place.w, place.h});
    missing(panel);
}

QImage PieceContext::databaseGround(const Rect& place) const { return crop(database, place); }

QImage drawPanelsSheet(const Theme& t) {
    QImage sheet(PanelsMinWidth, PanelsMinHeight, QImage::Format_RGB32);
    sheet.fill(t.faceBottom);
    SheetPainter sp(sheet);
    auto draw = [&](const Cut& cut) {
        if (sp.drawn(cut.rect)) return;  // Image8 and Image9 are one picture
        const PanelPainter paint = panelPainter(cut.control);
        if (!paint) missing(cut.control);
        sp.draw(cut.rect, [&](QPainter& p, const QRect& r) { paint(p, r, t); });
    };
    for (const Cut& cut : PanelCuts) draw(cut);
    draw(PhotoCut);
    return sheet;
}

QImage drawButtonsSheet(const Theme& t, const QImage& panels, const QImage& database) {
    QImage sheet(ButtonsMinWidth, ButtonsMinHeight, QImage::Format_RGB32);
    sheet.fill(t.faceBottom);
    const PieceContext ctx{t, panels, database};
    {
        SheetPainter sp(sheet);
        // The image list first: its indices tell apart the states that share a control's name
        // (the two pictures of imgSize), and a Buttons cut on the same rectangle is then done.
        for (int i = 0; i < int(ImageListCuts.size()); ++i) {
            const int index = i + 1;
            const Rect& r = ImageListCuts[std::size_t(i)];
            if (isImageListFiller(index) || sp.drawn(r)) continue;
            const PiecePainter paint = imageListPainter(index);
            if (!paint) missing("image " + std::to_string(index));
            sp.draw(r, [&](QPainter& p, const QRect& local) { paint(p, local, ctx); });
        }
        auto draw = [&](const Cut& cut) {
            if (sp.drawn(cut.rect)) return;
            const PiecePainter paint = buttonPainter(cut.control);
            if (!paint) missing(cut.control);
            sp.draw(cut.rect, [&](QPainter& p, const QRect& local) { paint(p, local, ctx); });
        };
        for (const Cut& cut : ButtonCuts)
            if (yields(cut.control)) draw(cut);
        for (const Cut& cut : ButtonCuts)
            if (!yields(cut.control)) draw(cut);
    }
    return sheet;
}

QStringList overlappingCuts() {
    struct Named {
        QString name;
        Rect rect;
    };
    std::vector<Named> pieces;
    for (const Cut& c : ButtonCuts)
        pieces.push_back({QString::fromLatin1(c.control.data(), qsizetype(c.control.size())), c.rect});
    for (int i = 0; i < int(ImageListCuts.size()); ++i)
        if (!isImageListFiller(i + 1))
            pieces.push_back({QStringLiteral("image %1").arg(i + 1), ImageListCuts[std::size_t(i)]});
    QStringList found;
    for (std::size_t a = 0; a < pieces.size(); ++a)
        for (std::size_t b = a + 1; b < pieces.size(); ++b)
            if (!sameRect(pieces[a].rect, pieces[b].rect) && overlap(pieces[a].rect, pieces[b].rect))
                found << pieces[a].name + QStringLiteral(" / ") + pieces[b].name;
    return found;
}

}  // namespace sonarium::skingen
