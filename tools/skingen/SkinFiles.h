#pragma once
// Writing a skin's files: each one whole under a temporary name and renamed into place, then
// read back and compared with what was meant, so a skin on disk is either whole and right or
// not replaced.
#include <QByteArray>
#include <QImage>
#include <QString>

namespace sonarium::skingen {

// `image` as a 24-bit BMP at `path`; false with `error` set when it cannot be written.
bool saveBitmap(const QImage& image, const QString& path, QString& error);
// The bitmap on disk has the drawing's size and every one of its pixels.
bool checkBitmap(const QImage& drawn, const QString& path, QString& error);
// `text` at `path`, written whole and read back byte for byte.
bool saveText(const QByteArray& text, const QString& path, QString& error);

}  // namespace sonarium::skingen
