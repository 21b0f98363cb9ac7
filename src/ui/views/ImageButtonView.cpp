#include "ui/views/ImageButtonView.h"

#include <QPainter>

#include "ui/views/HiFiLook.h"

namespace sonarium {

ImageButtonView::ImageButtonView(Image& model, ErrorReporter& errors, QWidget* parent)
    : ControlView(model, errors, parent), image_(model) {
    clickOnRelease_ = false;
    setFocusPolicy(Qt::StrongFocus);
    connect(this, &QAbstractButton::clicked, this, [this] { pressed(); });
}

void ImageButtonView::mouseReleaseEvent(QMouseEvent* e) {
    releasing_ = true;
    ControlView::mouseReleaseEvent(e);
    releasing_ = false;
}

void ImageButtonView::pressed() {
    if (!releasing_) {
        const double x = image_.Width() / 2.0, y = image_.Height() / 2.0;
        feed([&] { image_.MouseDown(LeftButton, 0, x, y); });
        feed([&] { image_.MouseUp(LeftButton, 0, x, y); });
    }
    feed([&] { image_.Click(); });
}

void ImageButtonView::paintEvent(QPaintEvent*) {
    QPainter p(this);
    const QRect r = rect();
    if (!painter_.paint(p, r, image_.picture(), image_.Stretch())) {
        if (r.width() <= 14 && r.height() <= 14)
            hifi::paintLamp(p, r, isDown());
        else if (r.height() < 12 || r.width() < 20)
            hifi::paintKnob(p, r, isDown());
        else
            hifi::paintButton(p, r, image_.ToolTipText().trimmed(), isDown(), isEnabled());
    }
    if (keyboardFocus()) hifi::paintFocus(p, r);
}

}  // namespace sonarium
