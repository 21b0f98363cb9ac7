#pragma once
// Pictures for looking at a skin: the sheets, enlarged copies, and mock-ups of the window that
// put each cut of the written sheets on its control, with sample text in the skin's colours.
#include <QImage>
#include <QString>

#include "Theme.h"

namespace sonarium::skingen {

struct SkinSheets {
    QImage panels, buttons, database;
};

// Writes the preview PNGs into `dir`; false with `error` set when one cannot be written.
bool writePreviews(const SkinSheets& sheets, const Theme& t, const QString& dir, QString& error);

}  // namespace sonarium::skingen
