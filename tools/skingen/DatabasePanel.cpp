// The library panel's background: the heading rail for the column buttons, the grid's recess,
// the line of count, order and filter, and the tray of commands along the bottom.
#include "Paint.h"
#include "Sheets.h"
#include "WindowPlaces.h"

namespace sonarium::skingen {

using namespace places;

QImage drawDatabasePanel(const Theme& t) {
    QImage panel(databaseOnWindow.w, databaseOnWindow.h, QImage::Format_RGB32);
    QPainter p(&panel);
    const QRect r = panel.rect();
    paintMetal(p, r, t, seedOf("PicDatabase"));
    raisedEdge(p, r, t);

    // The column buttons move to their columns at run time, and each menu arrow takes the
    // rail's pixels at the first column as its ground: so the rail has no grain and changes
    // only from top to bottom.
    const QRect rail(1, 1, r.width() - 2, toQRect(grid).top() - 3);
    QLinearGradient g(rail.topLeft(), rail.bottomLeft());
    g.setColorAt(0, t.faceTop);
    g.setColorAt(1, t.faceBottom);
    p.fillRect(rail, g);
    p.fillRect(QRect(rail.left(), rail.top(), rail.width(), 1), t.bevelLight);

    well(p, toQRect(grid), t, true);
    for (const auto& box : {records, order, filter}) well(p, toQRect(box), t);
    tray(p, toQRect(command(0)).united(toQRect(command(commandCount - 1))).adjusted(-2, -2, 2, 2), t);
    return panel;
}

}  // namespace sonarium::skingen
