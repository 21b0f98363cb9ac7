// The song's photo: found by name beside the song, sized to one of the two frames.
#include "controls/Errors.h"
#include "controls/SongNames.h"
#include "shell/Form1.h"
#include "shell/TextFields.h"

namespace sonarium {

namespace {
constexpr int FullPhotoWidth = 3465;
constexpr int SquarePhotoWidth = 1920;
constexpr int PhotoHeight = 1920;
}  // namespace

// JPEG beats BMP beats GIF, and the song's own photo beats its directory's.
void Form1::TryPhotos(Image& photo, int row) {
    const QStringList kinds = {QStringLiteral(".GIF"), QStringLiteral(".BMP"), QStringLiteral(".JPG")};
    auto folder = [&] { return folderBase(SongPathOf(row)); };
    auto song = [&] { return SongPathOf(row) + lstSongs.List(row); };
    for (const auto& base : {std::function<QString()>(folder), std::function<QString()>(song)})
        for (const QString& kind : kinds) tryStep([&] { photo.setPicture(C.pictures.load(base() + kind)); });
}

// The photo came in at its own size. The two known widths stay; any other becomes the chosen
// width. Every photo is stretched to the frame's height.
void Form1::SizePhoto() {
    tryStep([&] {
        if (Photo.Width() != FullPhotoWidth && Photo.Width() != SquarePhotoWidth) Photo.setWidth(PhotoWidth);
    });
    tryStep([&] {
        if (Photo.Height() != PhotoHeight) Photo.setHeight(PhotoHeight);
    });
    tryStep([&] { Photo.setStretch(true); });
    tryStep([&] {
        const bool square = Photo.Width() == SquarePhotoWidth;
        Image8.setVisible(square);
        Image9.setVisible(square);
    });
    tryStep([&] { Photo.setLeft(toInt32((FullPhotoWidth - Photo.Width()) / 2.0)); });
    tryStep([&] { Photo.setVisible(true); });
}

// The frame's two sizes, chosen from the photo's menu. The wide one is 3645, not the 3465 of
// the layout: a wide frame stands a little left of its panel, and a photo that comes in at
// 3645 is still sized.
void Form1::PlacePhoto(int width) {
    tryStep([&] { Photo.setWidth(width); });
    PhotoWidth = std::int16_t(width);
    Image8.setVisible(width == SquarePhotoWidth);
    Image9.setVisible(width == SquarePhotoWidth);
    tryStep([&] { Photo.setLeft(toInt32((FullPhotoWidth - Photo.Width()) / 2.0)); });
    tryStep([&] { SaveConfig(); });
}

}  // namespace sonarium
