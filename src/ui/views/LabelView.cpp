#include "ui/views/LabelView.h"

#include <QPainter>

#include "ui/views/HiFiLook.h"

namespace sonarium {

LabelView::LabelView(Label& model, ErrorReporter& errors, QWidget* parent)
    : ControlView(model, errors, parent), label_(model) {
    setTextFormat(Qt::PlainText);
}

void LabelView::syncOwn() {
    if (text() != label_.Caption()) setText(label_.Caption());
    const Qt::Alignment h = label_.alignment() == Alignment::Center  ? Qt::AlignHCenter
                            : label_.alignment() == Alignment::Right ? Qt::AlignRight
                                                                     : Qt::AlignLeft;
    setAlignment(h | Qt::AlignVCenter);
}

namespace {

// A skin draws the wells of the displays on the panels themselves; a label over a skinned
// panel lets that show through.
bool onSkinnedPanel(const Control& c) {
    const Control* holder = c.Container();
    if (const auto* image = dynamic_cast<const Image*>(holder)) return !image->picture().isNull();
    if (const auto* panel = dynamic_cast<const Panel*>(holder)) return !panel->picture().isNull();
    return false;
}

}  // namespace

void LabelView::paintEvent(QPaintEvent*) {
    QPainter p(this);
    const bool display = !label_.Description().isEmpty();
    if (label_.BackColor())
        p.fillRect(rect(), toQColor(*label_.BackColor()));
    else if (display && !onSkinnedPanel(label_))
        hifi::paintDisplay(p, rect());

    QColor ink = display ? hifi::colours::displayText : hifi::colours::legend;
    if (label_.ForeColor()) ink = toQColor(*label_.ForeColor());
    if (!isEnabled()) ink = ink.darker(180);

    const QRect box = rect().adjusted(display ? 4 : 1, 0, display ? -4 : -1, 0);
    const int maxPx = std::clamp(int(height() * 0.62), 10, 36);
    QFont base = font();
    base.setBold(display && height() >= 22);
    const QFont f = hifi::fittedFont(base, text(), box.size(), maxPx, 9);
    p.setFont(f);
    p.setPen(ink);
    const QString shown = QFontMetrics(f).elidedText(text(), Qt::ElideRight, box.width());
    p.drawText(box, int(alignment()), shown);
}

}  // namespace sonarium
