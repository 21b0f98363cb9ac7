#include "ui/views/PanelView.h"

#include <QPainter>

#include "ui/views/HiFiLook.h"

namespace sonarium {

PanelView::PanelView(sonarium::Panel& model, ErrorReporter& errors, QWidget* parent)
    : ControlView(model, errors, parent), panel_(model) {
    setFrameShape(QFrame::NoFrame);
}

void PanelView::paintEvent(QPaintEvent*) {
    QPainter p(this);
    if (!painter_.paint(p, rect(), panel_.picture(), false))
        hifi::paintPanel(p, rect(),
                         panel_.BackColor() ? toQColor(*panel_.BackColor()) : hifi::colours::panel);
    if (panel_.Caption().isEmpty()) return;
    p.setPen(panel_.ForeColor() ? toQColor(*panel_.ForeColor()) : hifi::colours::legend);
    p.drawText(rect(), Qt::AlignCenter, panel_.Caption());
}

}  // namespace sonarium
