#include "ui/views/ControlSync.h"

#include <QColor>
#include <QMouseEvent>
#include <QPalette>
#include <QWidget>
#include <cmath>

#include "controls/Errors.h"
#include "controls/Picture.h"

namespace sonarium {

QString viewName(const Control& c) {
    return c.Index() >= 0 ? QStringLiteral("%1(%2)").arg(c.Name()).arg(c.Index()) : c.Name();
}

int twipsToPixels(int twips) { return int(std::lround(double(twips) / TwipsPerPixel)); }

QRect pixelRect(const Control& c) {
    return QRect(twipsToPixels(c.Left()), twipsToPixels(c.Top()), std::max(0, twipsToPixels(c.Width())),
                 std::max(0, twipsToPixels(c.Height())));
}

int buttonCode(Qt::MouseButton b) {
    switch (b) {
    case Qt::LeftButton: return LeftButton;
    case Qt::RightButton: return RightButton;
    case Qt::MiddleButton: return MiddleButton;
    default: return 0;
    }
}

int buttonsCode(Qt::MouseButtons b) {
    return (b & Qt::LeftButton ? LeftButton : 0) | (b & Qt::RightButton ? RightButton : 0) |
           (b & Qt::MiddleButton ? MiddleButton : 0);
}

int shiftCode(Qt::KeyboardModifiers m) {
    return (m & Qt::ShiftModifier ? 1 : 0) | (m & Qt::ControlModifier ? 2 : 0) |
           (m & Qt::AltModifier ? 4 : 0);
}

QPointF twipsAt(const QWidget& view, const QMouseEvent& e) {
    // Relative to the view itself, also when the event came through a child (a list's viewport).
    const QPointF p = view.mapFromGlobal(e.globalPosition());
    return p * TwipsPerPixel;
}

QColor toQColor(const Color& c) { return QColor(c.r, c.g, c.b); }

void feed(ErrorReporter& errors, const std::function<void()>& call) { tryStep(errors, call); }

namespace {

void applyColours(QWidget& w, const Control& c, CommonState& s) {
    if (c.ForeColor() == s.fore && c.BackColor() == s.back) return;
    s.fore = c.ForeColor();
    s.back = c.BackColor();
    // A model never takes a colour away again, so the view's own palette is the start.
    QPalette p = w.palette();
    if (s.fore) {
        const QColor f = toQColor(*s.fore);
        for (auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) p.setColor(role, f);
    }
    if (s.back) {
        const QColor b = toQColor(*s.back);
        for (auto role : {QPalette::Window, QPalette::Base, QPalette::Button}) p.setColor(role, b);
    }
    w.setPalette(p);
}

QString accessibleNameOf(const Control& c, const QString& caption) {
    const QString hint = c.ToolTipText().trimmed();
    if (!hint.isEmpty()) return hint;
    if (!caption.isEmpty()) return caption;
    return c.Description();
}

}  // namespace

void syncCommon(QWidget& w, const Control& c, CommonState& s, const QString& caption) {
    const QRect r = pixelRect(c);
    if (w.geometry() != r) w.setGeometry(r);
    if (w.isEnabled() != c.Enabled()) w.setEnabled(c.Enabled());
    const QString tip = c.ToolTipText().trimmed();
    if (w.toolTip() != tip) w.setToolTip(tip);
    const QString name = accessibleNameOf(c, caption);
    if (w.accessibleName() != name) w.setAccessibleName(name);
    if (w.accessibleDescription() != c.Description()) w.setAccessibleDescription(c.Description());
    applyColours(w, c, s);
    if (c.focusRequests() != s.focusRequests) {
        s.focusRequests = c.focusRequests();
        if (!s.first) w.setFocus(Qt::OtherFocusReason);
    }
    // Last, so that a view that appears does so at its new place.
    if (w.isVisibleTo(w.parentWidget()) != c.Visible() || s.first) w.setVisible(c.Visible());
    s.first = false;
}

}  // namespace sonarium
