#include "ui/views/CheckBoxView.h"

#include <QPainter>

#include "ui/views/HiFiLook.h"

namespace sonarium {

CheckBoxView::CheckBoxView(CheckBox& model, ErrorReporter& errors, QWidget* parent)
    : ControlView(model, errors, parent), box_(model) {
    clickOnRelease_ = false;
    setTristate(true);
    setFocusPolicy(Qt::StrongFocus);
    connect(this, &QAbstractButton::clicked, this,
            [this] { feed([this] { box_.setValue(box_.Value() == 0 ? 1 : 0); }); });
}

void CheckBoxView::syncOwn() {
    if (text() != box_.Caption()) setText(box_.Caption());
    const Qt::CheckState state = box_.Value() == 1   ? Qt::Checked
                                 : box_.Value() == 2 ? Qt::PartiallyChecked
                                                     : Qt::Unchecked;
    if (checkState() != state) setCheckState(state);
}

void CheckBoxView::paintEvent(QPaintEvent*) {
    QPainter p(this);
    if (!painter_.paint(p, rect(), box_.picture(), false)) {
        if (width() <= 14 && height() <= 14)
            hifi::paintLamp(p, rect(), box_.Value() != 0,
                            box_.Value() == 2 ? hifi::colours::accent.darker(150) : hifi::colours::accent);
        else
            paintBox(p);
    }
    if (keyboardFocus()) hifi::paintFocus(p, rect());
}

void CheckBoxView::paintBox(QPainter& p) {
    const int side = std::min(height(), 13);
    const QRect mark(1, (height() - side) / 2, side, side);
    hifi::paintDisplay(p, mark);
    if (box_.Value() != 0) {
        p.save();
        p.setRenderHint(QPainter::Antialiasing, true);
        p.setPen(QPen(box_.Value() == 1 ? hifi::colours::accent : hifi::colours::legend.darker(150), 2));
        const QRectF m = QRectF(mark).adjusted(3, 3, -3, -3);
        p.drawLine(QPointF(m.left(), m.center().y()), QPointF(m.center().x() - 1, m.bottom()));
        p.drawLine(QPointF(m.center().x() - 1, m.bottom()), QPointF(m.right(), m.top()));
        p.restore();
    }
    if (box_.Caption().isEmpty()) return;
    p.setPen(box_.ForeColor() ? toQColor(*box_.ForeColor()) : hifi::colours::legend);
    p.drawText(rect().adjusted(side + 5, 0, 0, 0), Qt::AlignLeft | Qt::AlignVCenter, box_.Caption());
}

}  // namespace sonarium
