#pragma once
// The base of every view: a Qt widget of kind `Base` bound to one control model. It reads the
// model again on each of its change notifications, and feeds the mouse to the model the way
// the platform's controls report it: MouseDown, MouseUp, Click on a left release inside the
// control. A double click is DblClick then MouseUp (no second MouseDown or Click) only where
// the model handles double clicks; anywhere else the quick second press is one more click,
// MouseDown, Click, MouseUp, as push buttons count it. Losing the keyboard focus to another
// control of the window is the model's LostFocus.
//
// A view owns nothing of the model; the model must outlive it.
#include <QApplication>
#include <QMouseEvent>
#include <QWidget>
#include <utility>

#include "controls/Control.h"
#include "ui/views/ControlSync.h"

namespace sonarium {

template <class Base>
class ControlView : public Base {
public:
    ControlView(Control& model, ErrorReporter& errors, QWidget* parent)
        : Base(parent), model_(model), errors_(errors) {
        this->setObjectName(viewName(model));
        // The platform reports every move over a control, not only drags.
        this->setMouseTracking(true);
        subscription_ = model_.subscribe([this] { refresh(); });
    }
    ~ControlView() override { model_.unsubscribe(subscription_); }
    ControlView(const ControlView&) = delete;
    ControlView& operator=(const ControlView&) = delete;

    Control& control() const { return model_; }

    // Reads the whole model again: what every control has, then what this kind adds.
    void refresh() {
        syncOwn();
        syncCommon(*this, model_, common_, caption());
        this->update();
    }

protected:
    // The kind's own state; runs before the common part, so names can use fresh captions.
    virtual void syncOwn() {}
    // The control's own text, if its kind has one.
    virtual QString caption() const { return {}; }

    // Kinds whose click comes from something else (a list's selection, a button's press)
    // turn this off.
    bool clickOnRelease_ = true;

    void mousePressEvent(QMouseEvent* e) override {
        quickClick_ = false;
        if (e->button() == Qt::LeftButton) leftPressed_ = true;
        feedDown(e);
        Base::mousePressEvent(e);
    }
    void mouseReleaseEvent(QMouseEvent* e) override {
        const bool left = e->button() == Qt::LeftButton;
        const bool click =
            clickOnRelease_ && left && leftPressed_ && this->rect().contains(e->position().toPoint());
        // A quick second click reports its release last, after the click it makes.
        const bool quick = left && std::exchange(quickClick_, false);
        if (left) leftPressed_ = false;
        if (!quick) feedUp(e);
        Base::mouseReleaseEvent(e);  // a button's own click, if it makes one
        if (click) feed([this] { model_.Click(); });
        if (quick) feedUp(e);
    }
    void mouseMoveEvent(QMouseEvent* e) override {
        feedMove(e);
        Base::mouseMoveEvent(e);
    }
    void mouseDoubleClickEvent(QMouseEvent* e) override {
        // The second press of a double click is the double click itself, for a control that
        // handles one. Any other takes it as a press like the first (through the kind's own
        // press, so a button goes down and a list picks), or quick clicks on Faster or Play
        // would count as one.
        if (e->button() == Qt::LeftButton && model_.onDblClick) {
            feed([this] { model_.DblClick(); });
            return;
        }
        this->mousePressEvent(e);
        quickClick_ = e->button() == Qt::LeftButton;
    }

    // The focus came by keyboard (Tab, a mnemonic): only then is a focus ring drawn, so the
    // control that happens to be first when the window opens is not marked.
    bool keyboardFocus() const { return keyboardFocus_ && this->hasFocus(); }
    void focusInEvent(QFocusEvent* e) override {
        keyboardFocus_ = e->reason() == Qt::TabFocusReason || e->reason() == Qt::BacktabFocusReason ||
                         e->reason() == Qt::ShortcutFocusReason;
        Base::focusInEvent(e);
    }
    void focusOutEvent(QFocusEvent* e) override {
        Base::focusOutEvent(e);
        // Focus that leaves with the window (another program, a menu) stays the control's own,
        // and so does focus that moves into the view's own parts (a grid's cell editor).
        if (e->reason() == Qt::ActiveWindowFocusReason || e->reason() == Qt::PopupFocusReason) return;
        if (QWidget* now = QApplication::focusWidget(); now && this->isAncestorOf(now)) return;
        feed([this] { model_.LostFocus(); });
    }

    void feedDown(QMouseEvent* e) { feedMouse(e, &Control::MouseDown, buttonCode(e->button())); }
    void feedUp(QMouseEvent* e) { feedMouse(e, &Control::MouseUp, buttonCode(e->button())); }
    void feedMove(QMouseEvent* e) { feedMouse(e, &Control::MouseMove, buttonsCode(e->buttons())); }
    // One call into the model from a Qt event, its failure told to the program's reporter.
    void feed(const std::function<void()>& call) { sonarium::feed(errors_, call); }

    Control& model_;
    ErrorReporter& errors_;

private:
    void feedMouse(QMouseEvent* e, void (Control::*fn)(int, int, double, double), int button) {
        const QPointF at = twipsAt(*this, *e);
        const int shift = shiftCode(e->modifiers());
        feed([&] { (model_.*fn)(button, shift, at.x(), at.y()); });
    }

    int subscription_ = 0;
    CommonState common_;
    bool leftPressed_ = false;
    bool quickClick_ = false;  // the left button is down for a quick second click
    bool keyboardFocus_ = false;
};

}  // namespace sonarium
