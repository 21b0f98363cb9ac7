#include "ui/views/PictureConvert.h"

#include <cstring>

namespace sonarium {

QImage toQImage(const Picture& picture) {
    if (picture.isNull() || picture.width() <= 0 || picture.height() <= 0) return {};
    // The image reads the picture's own buffer; a copy of the picture rides along as the
    // cleanup data, so the buffer lives as long as any image that shares it.
    auto* keep = new Picture(picture);
    return QImage(
        reinterpret_cast<const uchar*>(keep->pixels()), keep->width(), keep->height(),
        keep->width() * int(sizeof(std::uint32_t)), QImage::Format_ARGB32,
        [](void* p) { delete static_cast<Picture*>(p); }, keep);
}

Picture fromQImage(const QImage& image) {
    if (image.isNull()) return {};
    const QImage argb = image.convertToFormat(QImage::Format_ARGB32);
    std::vector<std::uint32_t> pixels(std::size_t(argb.width()) * std::size_t(argb.height()));
    for (int y = 0; y < argb.height(); ++y)
        std::memcpy(pixels.data() + std::size_t(y) * std::size_t(argb.width()), argb.constScanLine(y),
                    std::size_t(argb.width()) * sizeof(std::uint32_t));
    return Picture(argb.width(), argb.height(), std::move(pixels));
}

}  // namespace sonarium
