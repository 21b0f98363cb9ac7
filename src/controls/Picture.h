#pragma once
// A picture as the logic sees it: an immutable bitmap shared by reference, as the original
// controls share one picture object between many image controls. Pixels are 0xAARRGGBB.
// Loading from files and drawing on screen are the platform's job (see PictureLoader).
#include <QString>
#include <cstdint>
#include <memory>
#include <vector>

namespace sonarium {

constexpr int TwipsPerPixel = 15;

class Picture {
public:
    Picture() = default;  // no picture
    Picture(int width, int height, std::vector<std::uint32_t> pixels);

    bool isNull() const { return !data_; }
    int width() const { return data_ ? data_->width : 0; }    // pixels
    int height() const { return data_ ? data_->height : 0; }  // pixels
    const std::uint32_t* pixels() const { return data_ ? data_->pixels.data() : nullptr; }
    std::uint32_t pixel(int x, int y) const;

    // The rectangle x, y, w, h (pixels). Throws RuntimeError when it does not lie inside.
    Picture cut(int x, int y, int w, int h) const;
    static Picture filled(int width, int height, std::uint32_t argb);

    // Same picture object (not equal pixels): what a lamp that "takes the picture" shares.
    bool sameAs(const Picture& o) const { return data_ == o.data_; }
    // Where it came from, for messages and tests ("" for cuts and drawn pictures).
    QString source() const { return data_ ? data_->source : QString(); }
    void setSource(const QString& s);

private:
    struct Data {
        int width = 0;
        int height = 0;
        std::vector<std::uint32_t> pixels;
        QString source;
    };
    std::shared_ptr<const Data> data_;
};

// Loads GIF, BMP and JPEG files; throws RuntimeError when the file is missing or no image.
class PictureLoader {
public:
    virtual ~PictureLoader() = default;
    virtual Picture load(const QString& file) = 0;
};

}  // namespace sonarium
