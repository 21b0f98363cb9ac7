#pragma once
// Pictures of the models to and from QImage (Format_ARGB32, whose pixels are the same
// 0xAARRGGBB words). Only QImage here: a QPixmap made before the application object exists
// ends the process, and these run in loaders and tests too.
#include <QImage>

#include "controls/Picture.h"

namespace sonarium {

// Shares the picture's pixels without copying; the image keeps the picture alive. A null
// picture gives a null image.
QImage toQImage(const Picture& picture);
// Copies any image into a picture; a null image gives a null picture.
Picture fromQImage(const QImage& image);

}  // namespace sonarium
