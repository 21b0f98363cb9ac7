#include "SkinFiles.h"

#include <QFile>
#include <QImageReader>
#include <QImageWriter>
#include <QSaveFile>

namespace sonarium::skingen {

bool saveBitmap(const QImage& image, const QString& path, QString& error) {
    return saveImage(image.convertToFormat(QImage::Format_RGB888), path, "BMP", error);
}

bool saveImage(const QImage& image, const QString& path, const char* format, QString& error) {
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly)) {
        error = QStringLiteral("cannot write %1: %2").arg(path, file.errorString());
        return false;
    }
    QImageWriter writer(&file, format);
    if (!writer.write(image) || !file.commit()) {
        error = QStringLiteral("cannot write %1: %2").arg(path, writer.errorString());
        return false;
    }
    return true;
}

bool checkImage(const QImage& drawn, const QString& path, QString& error) {
    QImageReader reader(path);
    const QImage back = reader.read();
    if (back.isNull()) {
        error = QStringLiteral("%1 does not load back: %2").arg(path, reader.errorString());
        return false;
    }
    if (back.size() != drawn.size()) {
        error = QStringLiteral("%1 loads as %2 x %3, not %4 x %5")
                    .arg(path)
                    .arg(back.width())
                    .arg(back.height())
                    .arg(drawn.width())
                    .arg(drawn.height());
        return false;
    }
    const auto format = drawn.hasAlphaChannel() ? QImage::Format_ARGB32 : QImage::Format_RGB32;
    if (back.convertToFormat(format) != drawn.convertToFormat(format)) {
        error = QStringLiteral("%1 loads back with different pixels").arg(path);
        return false;
    }
    return true;
}

bool saveText(const QByteArray& text, const QString& path, QString& error) {
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size() || !file.commit()) {
        error = QStringLiteral("cannot write %1: %2").arg(path, file.errorString());
        return false;
    }
    QFile back(path);
    if (!back.open(QIODevice::ReadOnly) || back.readAll() != text) {
        error = QStringLiteral("%1 does not read back as written").arg(path);
        return false;
    }
    return true;
}

}  // namespace sonarium::skingen
