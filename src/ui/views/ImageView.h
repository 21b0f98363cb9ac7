#pragma once
// An image or picture box that is not a button: it only paints. Without a picture, a picture
// box is a panel of the front, and an image is drawn by its shape: a thin one is a groove, a
// small one a lamp, a large one a recessed screen; others stay clear until a skin fills them.
// A picture box also shows the text printed on it.
#include <QWidget>

#include "controls/Widgets.h"
#include "ui/views/ControlView.h"
#include "ui/views/PicturePainter.h"

namespace sonarium {

class ImageView : public ControlView<QWidget> {
public:
    ImageView(Image& model, ErrorReporter& errors, QWidget* parent);

protected:
    void paintEvent(QPaintEvent*) override;

private:
    void paintBlank(QPainter& p);

    Image& image_;
    PictureBox* box_;  // null for a plain image
    PicturePainter painter_;
};

}  // namespace sonarium
