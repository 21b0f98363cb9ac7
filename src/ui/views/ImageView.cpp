#include "ui/views/ImageView.h"

#include <QPainter>
#include <algorithm>

#include "ui/views/HiFiLook.h"

namespace sonarium {

ImageView::ImageView(Image& model, ErrorReporter& errors, QWidget* parent)
    : ControlView(model, errors, parent), image_(model), box_(dynamic_cast<PictureBox*>(&model)) {}

void ImageView::paintEvent(QPaintEvent*) {
    QPainter p(this);
    if (!painter_.paint(p, rect(), image_.picture(), image_.Stretch())) paintBlank(p);
    if (box_ && !box_->printed().isEmpty()) {
        // One line from the print position, in the box's font; what doesn't fit is cut off.
        QFont font(QStringLiteral("DejaVu Sans"));
        font.setPointSizeF(std::clamp(box_->FontSize(), 4.0, 72.0));
        font.setBold(box_->FontBold());
        p.setFont(font);
        p.setPen(box_->ForeColor() ? toQColor(*box_->ForeColor()) : hifi::colours::legend);
        p.drawText(rect().adjusted(2 + twipsToPixels(box_->CurrentX()), 0, 0, 0),
                   Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
                   QString(box_->printed()).replace(QChar(0), u' '));  // a tag's padding shows blank
    }
}

void ImageView::paintBlank(QPainter& p) {
    const QRect r = rect();
    if (box_) {
        hifi::paintPanel(p, r, image_.BackColor() ? toQColor(*image_.BackColor()) : hifi::colours::panel);
    } else if (r.height() <= 4) {
        hifi::paintGroove(p, r);
    } else if (r.width() <= 14 && r.height() <= 14) {
        hifi::paintLamp(p, r, false);
    } else if (r.height() >= 40) {
        hifi::paintDisplay(p, r);
    }
}

}  // namespace sonarium
