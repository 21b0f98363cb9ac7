#include "engine/QtPictureLoader.h"

#include <QFile>
#include <QFileInfo>
#include <QImage>
#include <QImageReader>
#include <cstring>

#include "controls/Errors.h"
#include "controls/FileNames.h"

namespace sonarium {

namespace {

bool isAcceptedFormat(const QByteArray& format) {
    return format == "gif" || format == "bmp" || format == "jpeg" || format == "jpg" || format == "png";
}

// A bitmap's header states its file size. Qt fills the rows that a file cut short lacks and
// reports success, so a damaged skin sheet would load as a half-black picture: check first.
bool bitmapCutShort(const QString& path, qint64 actualSize) {
    QFile f(path);
    if (!f.open(QIODevice::ReadOnly)) return false;
    const QByteArray head = f.read(6);
    if (head.size() < 6 || !head.startsWith("BM")) return false;
    const auto* b = reinterpret_cast<const unsigned char*>(head.constData());
    const quint32 declared = b[2] | (b[3] << 8) | (b[4] << 16) | (quint32(b[5]) << 24);
    return declared > actualSize;  // 0, which some writers put there, never counts
}

[[noreturn]] void invalid(const QString& file, const QString& why) {
    throw RuntimeError(RuntimeError::InvalidPicture,
                       QStringLiteral("Invalid picture: %1 (%2)").arg(file, why));
}

}  // namespace

Picture QtPictureLoader::load(const QString& file) {
    const QString path = resolveFileName(file);
    const QFileInfo info(path);
    if (file.isEmpty() || !info.exists() || info.isDir())
        throw RuntimeError(RuntimeError::FileNotFound, QStringLiteral("File not found: %1").arg(file));

    if (!info.isReadable()) invalid(file, QStringLiteral("the file cannot be read"));

    QImageReader reader(path);
    reader.setDecideFormatFromContent(true);
    const QByteArray format = reader.format().toLower();
    if (format.isEmpty()) invalid(file, QStringLiteral("not an image"));
    if (!isAcceptedFormat(format))
        invalid(file,
                QStringLiteral("%1 is not a GIF, BMP, JPEG or PNG image").arg(QString::fromLatin1(format)));
    if (format == "bmp" && bitmapCutShort(path, info.size()))
        invalid(file, QStringLiteral("the bitmap is cut short"));
    QImage image = reader.read();
    if (image.isNull()) invalid(file, reader.errorString());

    image = image.convertToFormat(QImage::Format_ARGB32);
    const int w = image.width(), h = image.height();
    std::vector<std::uint32_t> pixels(std::size_t(w) * std::size_t(h));
    // Rows are copied one by one: a QImage row may be padded past width * 4 bytes.
    for (int y = 0; y < h; ++y)
        std::memcpy(pixels.data() + std::size_t(y) * w, image.constScanLine(y), std::size_t(w) * 4);
    Picture picture(w, h, std::move(pixels));
    picture.setSource(file);
    return picture;
}

}  // namespace sonarium
