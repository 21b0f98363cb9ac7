#include "library/ColumnButtons.h"

#include <vector>

namespace sonarium {

namespace {

constexpr int Size = 17;

// A face with a one-pixel bevel: `light` along the top and left, `dark` along the bottom and
// right (swapped, the square looks pressed in).
struct Canvas {
    int w, h;
    std::vector<std::uint32_t> px;
    Canvas(int width, int height, std::uint32_t face, std::uint32_t light, std::uint32_t dark)
        : w(width), h(height), px(std::size_t(width * height), face) {
        for (int x = 0; x < w; ++x) at(x, 0) = light, at(x, h - 1) = dark;
        for (int y = 0; y < h; ++y) at(0, y) = light, at(w - 1, y) = dark;
    }
    std::uint32_t& at(int x, int y) { return px[std::size_t(y * w + x)]; }
    void span(int y, int from, int to, std::uint32_t c) {
        for (int x = from; x <= to; ++x) at(x, y) = c;
    }
    Picture picture() { return Picture(w, h, std::move(px)); }
};

}  // namespace

Picture indentPicture() { return Canvas(Size, Size, 0xFF26282Cu, 0xFF141518u, 0xFF4B4F57u).picture(); }

Picture orderPicture() {
    Canvas c(Size, Size, 0xFF3A3D44u, 0xFF6A6F78u, 0xFF141518u);
    for (int r = 0; r < 5; ++r) c.span(6 + r, 8 - r, 8 + r, 0xFFF2A33Au);
    return c.picture();
}

Picture filterPicture() {
    Canvas c(Size, Size, 0xFF2C5FB8u, 0xFF6F9BE8u, 0xFF142C5Au);
    for (int y = 5; y <= 7; ++y) c.span(y, 4 + (y - 5), 12 - (y - 5), 0xFFFFFFFFu);
    for (int y = 8; y <= 11; ++y) c.span(y, 7, 9, 0xFFFFFFFFu);
    return c.picture();
}

Picture dropArrowPicture() {
    Canvas c(11, 12, 0xFF3A3D44u, 0xFF6A6F78u, 0xFF141518u);
    for (int r = 0; r < 4; ++r) c.span(4 + r, 2 + r, 8 - r, 0xFFC4C9D0u);
    return c.picture();
}

}  // namespace sonarium
