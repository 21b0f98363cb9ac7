#pragma once
// What every view does the same way: copy the state all controls share (place, size,
// visibility, enabled state, colours, hint, names for screen readers, focus requests) onto
// its widget, and turn Qt's mouse events into the platform's terms (button 1 left, 2 right,
// 4 middle; shift mask 1 Shift, 2 Ctrl, 4 Alt; positions in twips inside the control).
#include <QPointF>
#include <QRect>
#include <QString>
#include <functional>
#include <optional>

#include "controls/Control.h"
#include "controls/Errors.h"

class QWidget;
class QMouseEvent;
class QColor;

namespace sonarium {

// The control's name as tests and tools find it: "BtnPlay", or "Title(3)" in an array.
QString viewName(const Control& c);

// The control's place in pixels inside its container (15 twips to a pixel).
QRect pixelRect(const Control& c);
int twipsToPixels(int twips);

int buttonCode(Qt::MouseButton b);
int buttonsCode(Qt::MouseButtons b);
int shiftCode(Qt::KeyboardModifiers m);
// Where the event happened, in twips from the control's top left corner.
QPointF twipsAt(const QWidget& view, const QMouseEvent& e);

QColor toQColor(const Color& c);

// Runs one call into the model from a Qt event. A failure ends here, logged: Qt's event
// dispatch must never see an exception.
void feed(ErrorReporter& errors, const std::function<void()>& call);

// What syncCommon applied last, so that unchanged state costs nothing.
struct CommonState {
    int focusRequests = 0;
    std::optional<Color> fore, back;
    bool first = true;
};

// `caption` is the control's own text, if its kind has one: it names the widget for screen
// readers when the control has no hint.
void syncCommon(QWidget& w, const Control& c, CommonState& state, const QString& caption = {});

}  // namespace sonarium
