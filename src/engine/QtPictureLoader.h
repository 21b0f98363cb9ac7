#pragma once
// Loads GIF, BMP, JPEG and PNG files into pictures with QImage, which needs no display. The
// format is taken from the file's contents, not its extension. A name whose exact spelling
// does not exist is found without regard to case.
#include "controls/Picture.h"

namespace sonarium {

class QtPictureLoader : public PictureLoader {
public:
    // Throws RuntimeError: FileNotFound (53) when there is no such file, InvalidPicture (481)
    // when the file holds no picture of those formats.
    Picture load(const QString& file) override;
};

}  // namespace sonarium
