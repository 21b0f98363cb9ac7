#include "ui/views/PicturePainter.h"

#include <QPainter>

#include "ui/views/PictureConvert.h"

namespace sonarium {

bool PicturePainter::paint(QPainter& p, const QRect& r, const Picture& picture, bool stretch) {
    if (picture.isNull()) return false;
    if (!shown_.sameAs(picture)) {
        shown_ = picture;
        image_ = toQImage(picture);
    }
    p.save();
    p.setRenderHint(QPainter::SmoothPixmapTransform, false);
    if (stretch)
        p.drawImage(r, image_);
    else
        p.drawImage(r.topLeft(), image_);
    p.restore();
    return true;
}

}  // namespace sonarium
