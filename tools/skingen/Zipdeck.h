#pragma once
// The Zipdeck skin: Panel.bmp, Buttons.bmp, CoOrds.txt and vu.txt drawn and written from the
// layout table, and pictures of the assembled window to look at.
#include <QByteArray>
#include <QImage>
#include <QString>

#include "Theme.h"

namespace sonarium::skingen::zipdeck {

QByteArray coordsText();
QByteArray vuText(const Theme& t);

// The window as the program shows it, on a plain desktop colour where the mask cuts it away:
// every shown control's picture at its place, lamps partly lit, a time on the digits, sample
// text in the display and the list. `collapsed` shows only the deck, as "Hide list" leaves it.
QImage assembled(const Theme& t, const QImage& panel, const QImage& sheet, bool collapsed);

// Checks the table and the drawn panel, then writes the four files into `dir` and, when
// `previewDir` is given, the previews there. False with `error` set on the first problem.
bool writeSkin(const Theme& t, const QString& dir, const QString& previewDir, QString& error);

}  // namespace sonarium::skingen::zipdeck
