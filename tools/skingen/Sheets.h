#pragma once
// The sheets of a main skin and the painters of their pieces. A painter draws one piece into
// the rectangle it is given (its cut, moved to the origin) and is clipped to it. Pieces that
// sit on a panel without filling their place take the panel's own pixels as their ground, so
// that they blend in wherever the window puts them.
#include <QByteArray>
#include <QImage>
#include <QPainter>
#include <QStringList>
#include <functional>
#include <string_view>

#include "Theme.h"
#include "skins/MainSkinLayout.h"

namespace sonarium::skingen {

struct PieceContext {
    const Theme& theme;
    const QImage& panels;    // the finished Panels sheet, for grounds
    const QImage& database;  // the finished library background, for grounds

    // The pixels of panel `panel` (a name of the Panels table) under `place` on that panel.
    QImage ground(std::string_view panel, const mainskin::Rect& place) const;
    // The pixels of the library background under `place`.
    QImage databaseGround(const mainskin::Rect& place) const;
};

using PiecePainter = std::function<void(QPainter&, const QRect&, const PieceContext&)>;
using PanelPainter = std::function<void(QPainter&, const QRect&, const Theme&)>;

// The painter of each piece by control name, or of each image-list index; empty when none.
PanelPainter panelPainter(std::string_view control);
PiecePainter buttonPainter(std::string_view control);
PiecePainter imageListPainter(int index);
// Image-list indices that only keep the numbering and are never shown.
bool isImageListFiller(int index);

// The three bitmaps and the colour file of a skin.
QImage drawPanelsSheet(const Theme& t);
QImage drawDatabasePanel(const Theme& t);
QImage drawButtonsSheet(const Theme& t, const QImage& panels, const QImage& database);
QByteArray colorsText(const Theme& t);

// Pairs of different pictures whose rectangles share pixels, as "a / b" lines: where the table
// makes one picture show part of another.
QStringList overlappingCuts();

// The top deck and the no-photo picture, each drawn in a file of its own.
void paintTopPanel(QPainter& p, const QRect& r, const Theme& t);
void paintPhotoArt(QPainter& p, const QRect& r, const Theme& t);
// The no-photo picture's record, also the program's icon's: a vinyl disc of `radius` around
// `centre` with a `label` in its middle; without `grooves` (for small sizes) it is plain vinyl.
void paintRecord(QPainter& p, QPointF centre, double radius, const Theme& t, const QColor& label,
                 bool grooves);

}  // namespace sonarium::skingen
