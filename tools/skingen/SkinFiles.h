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
// `image` as it is, in the file format `format` ("PNG" keeps its transparency).
bool saveImage(const QImage& image, const QString& path, const char* format, QString& error);
// The image on disk has the drawing's size and every one of its pixels, with their alpha when
// the drawing has any.
bool checkImage(const QImage& drawn, const QString& path, QString& error);
// `text` at `path`, written whole and read back byte for byte.
bool saveText(const QByteArray& text, const QString& path, QString& error);

}  // namespace sonarium::skingen
