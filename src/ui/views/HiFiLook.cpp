#include "ui/views/HiFiLook.h"

#include <QApplication>
#include <QFontMetrics>
#include <QPainter>
#include <QStyleFactory>

namespace sonarium::hifi {

QPalette palette() {
    QPalette p;
    p.setColor(QPalette::Window, colours::panel);
    p.setColor(QPalette::WindowText, colours::legend);
    p.setColor(QPalette::Base, colours::display);
    p.setColor(QPalette::AlternateBase, colours::panelDark);
    p.setColor(QPalette::Text, colours::displayText);
    p.setColor(QPalette::Button, colours::panel);
    p.setColor(QPalette::ButtonText, colours::legend);
    p.setColor(QPalette::BrightText, colours::accent);
    p.setColor(QPalette::Highlight, QColor(0x8a, 0x5e, 0x1c));
    p.setColor(QPalette::HighlightedText, QColor(0xff, 0xf3, 0xde));
    p.setColor(QPalette::Light, colours::panelLight);
    p.setColor(QPalette::Midlight, colours::panelLight.darker(115));
    p.setColor(QPalette::Mid, colours::panelDark.lighter(160));
    p.setColor(QPalette::Dark, colours::panelDark);
    p.setColor(QPalette::Shadow, Qt::black);
    p.setColor(QPalette::ToolTipBase, colours::display);
    p.setColor(QPalette::ToolTipText, colours::displayText);
    p.setColor(QPalette::PlaceholderText, colours::legend.darker(150));
    p.setColor(QPalette::Link, colours::accent);
    for (auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        p.setColor(QPalette::Disabled, role, colours::legend.darker(190));
    return p;
}

void install(QApplication& app) {
    if (QStyle* fusion = QStyleFactory::create(QStringLiteral("Fusion"))) app.setStyle(fusion);
    app.setPalette(palette());
    QFont f(QStringLiteral("DejaVu Sans"));
    f.setPixelSize(11);
    app.setFont(f);
}

void paintPanel(QPainter& p, const QRect& r, const QColor& face) {
    if (r.isEmpty()) return;
    p.fillRect(r, face);
    // A soft bevel: lit from the top left, one pixel each way.
    p.setPen(face.lighter(140));
    p.drawLine(r.topLeft(), r.topRight());
    p.drawLine(r.topLeft(), r.bottomLeft());
    p.setPen(face.darker(170));
    p.drawLine(r.bottomLeft(), r.bottomRight());
    p.drawLine(r.topRight(), r.bottomRight());
}

void paintDisplay(QPainter& p, const QRect& r) {
    if (r.isEmpty()) return;
    p.fillRect(r, colours::display);
    p.setPen(colours::panelDark);
    p.drawLine(r.topLeft(), r.topRight());
    p.drawLine(r.topLeft(), r.bottomLeft());
    p.setPen(colours::panelLight);
    p.drawLine(r.bottomLeft(), r.bottomRight());
    p.drawLine(r.topRight(), r.bottomRight());
}

void paintGroove(QPainter& p, const QRect& r) {
    if (r.isEmpty()) return;
    p.fillRect(r, colours::panelDark);
    if (r.height() > 2) {
        p.setPen(colours::panelLight);
        p.drawLine(r.bottomLeft(), r.bottomRight());
    }
}

void paintLamp(QPainter& p, const QRect& r, bool lit, const QColor& glow) {
    if (r.isEmpty()) return;
    p.save();
    p.setRenderHint(QPainter::Antialiasing, true);
    const QRectF box = QRectF(r).adjusted(0.5, 0.5, -0.5, -0.5);
    p.setPen(QPen(QColor(0x05, 0x05, 0x06), 1));
    p.setBrush(lit ? glow : QColor(0x22, 0x24, 0x28));
    p.drawEllipse(box);
    // A small highlight makes it read as a lens.
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(255, 255, 255, lit ? 120 : 40));
    p.drawEllipse(QRectF(box.left() + box.width() * 0.25, box.top() + box.height() * 0.15, box.width() * 0.3,
                         box.height() * 0.3));
    p.restore();
}

void paintKnob(QPainter& p, const QRect& r, bool down) {
    if (r.isEmpty()) return;
    paintPanel(p, r, down ? colours::panelLight : colours::panelLight.lighter(115));
    p.setPen(colours::panelDark);
    if (r.height() >= r.width())
        p.drawLine(r.left() + 2, r.center().y(), r.right() - 2, r.center().y());
    else
        p.drawLine(r.center().x(), r.top() + 2, r.center().x(), r.bottom() - 2);
}

void paintButton(QPainter& p, const QRect& r, const QString& caption, bool down, bool enabled) {
    if (r.isEmpty()) return;
    QLinearGradient g(r.topLeft(), r.bottomLeft());
    const QColor top = down ? colours::panelDark.lighter(130) : colours::panelLight.lighter(110);
    const QColor bottom = down ? colours::panelDark.lighter(170) : colours::panel;
    g.setColorAt(0, top);
    g.setColorAt(1, bottom);
    p.fillRect(r, g);
    p.setPen(down ? colours::panelDark : colours::panelLight.lighter(130));
    p.drawLine(r.topLeft(), r.topRight());
    p.drawLine(r.topLeft(), r.bottomLeft());
    p.setPen(down ? colours::panelLight : colours::panelDark);
    p.drawLine(r.bottomLeft(), r.bottomRight());
    p.drawLine(r.topRight(), r.bottomRight());
    if (caption.isEmpty()) return;
    const QRect text = r.adjusted(2, 1, -2, -1).translated(down ? 1 : 0, down ? 1 : 0);
    p.setFont(fittedFont(p.font(), caption, text.size(), 11, 7, true));
    p.setPen(enabled ? colours::legend.lighter(115) : colours::legend.darker(180));
    p.drawText(text, Qt::AlignCenter | Qt::TextWordWrap, caption);
}

void paintFocus(QPainter& p, const QRect& r) {
    p.save();
    p.setPen(QPen(colours::accent, 1, Qt::DotLine));
    p.setBrush(Qt::NoBrush);
    p.drawRect(r.adjusted(0, 0, -1, -1));
    p.restore();
}

QFont fittedFont(QFont base, const QString& text, const QSize& box, int maxPx, int minPx, bool wrap) {
    for (int px = maxPx; px > minPx; --px) {
        base.setPixelSize(px);
        const QFontMetrics fm(base);
        const QRect need = wrap ? fm.boundingRect(QRect(0, 0, box.width(), 10000), Qt::TextWordWrap, text)
                                : QRect(0, 0, fm.horizontalAdvance(text), fm.height());
        if (need.width() <= box.width() && need.height() <= box.height()) return base;
    }
    base.setPixelSize(minPx);
    return base;
}

}  // namespace sonarium::hifi
