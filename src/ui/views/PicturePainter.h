#pragma once
// Draws a model's picture: whole, at its own size from the top left corner, or stretched to
// the control's size. Never smoothed, so skin pieces keep their pixels. The converted image is
// kept until the model holds another picture object.
#include <QImage>
#include <QRect>

#include "controls/Picture.h"

class QPainter;

namespace sonarium {

class PicturePainter {
public:
    // False when there is no picture to draw.
    bool paint(QPainter& p, const QRect& r, const Picture& picture, bool stretch);

private:
    Picture shown_;
    QImage image_;
};

}  // namespace sonarium
