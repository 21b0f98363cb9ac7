#pragma once
// The program's icon: a tile of the theme's brushed metal holding a record with a label in the
// theme's light and a small level meter, at every size of the desktop's hicolor icon theme.
#include <QImage>
#include <QString>

#include "Theme.h"

namespace sonarium::skingen {

// The icon `px` pixels square, transparent around the tile.
QImage drawIcon(const Theme& t, int px);

// Writes <dir>/hicolor/<N>x<N>/apps/sonarium.png for each size, and the 256-pixel one as
// Icon-256.png into `previewDir` when it is given. False with `error` set on the first problem.
bool writeIcons(const Theme& t, const QString& dir, const QString& previewDir, QString& error);

}  // namespace sonarium::skingen
