#include "controls/Picture.h"

#include "controls/Errors.h"

namespace sonarium {

Picture::Picture(int width, int height, std::vector<std::uint32_t> pixels) {
    if (width <= 0 || height <= 0 || pixels.size() != std::size_t(width) * std::size_t(height))
        throw RuntimeError(RuntimeError::InvalidPicture, QStringLiteral("Invalid picture"));
    auto d = std::make_shared<Data>();
    d->width = width;
    d->height = height;
    d->pixels = std::move(pixels);
    data_ = std::move(d);
}

std::uint32_t Picture::pixel(int x, int y) const {
    if (!data_ || x < 0 || y < 0 || x >= data_->width || y >= data_->height) return 0;
    return data_->pixels[std::size_t(y) * data_->width + x];
}

Picture Picture::cut(int x, int y, int w, int h) const {
    if (!data_ || x < 0 || y < 0 || w <= 0 || h <= 0 || x + w > data_->width || y + h > data_->height)
        throw RuntimeError(RuntimeError::InvalidPropertyValue,
                           QStringLiteral("Clip rectangle %1, %2, %3, %4 outside a %5 x %6 bitmap")
                               .arg(x)
                               .arg(y)
                               .arg(w)
                               .arg(h)
                               .arg(width())
                               .arg(height()));
    std::vector<std::uint32_t> px(std::size_t(w) * h);
    for (int row = 0; row < h; ++row)
        for (int col = 0; col < w; ++col)
            px[std::size_t(row) * w + col] = data_->pixels[std::size_t(y + row) * data_->width + x + col];
    return Picture(w, h, std::move(px));
}

Picture Picture::filled(int width, int height, std::uint32_t argb) {
    return Picture(width, height, std::vector<std::uint32_t>(std::size_t(width) * height, argb));
}

void Picture::setSource(const QString& s) {
    if (!data_) return;
    auto d = std::make_shared<Data>(*data_);
    d->source = s;
    data_ = std::move(d);
}

}  // namespace sonarium
