#pragma once
// The base of every view: a Qt widget of kind `Base` bound to one control model. It reads the
// model again on each of its change notifications, and feeds the mouse to the model the way
// the platform's controls report it: MouseDown, MouseUp, Click on a left release inside the
// control, and on a double click DblClick then MouseUp (no second MouseDown or Click).
//
// A view owns nothing of the model; the model must outlive it.
#include <QMouseEvent>
#include <QWidget>

#include "controls/Control.h"
#include "ui/views/ControlSync.h"

namespace sonarium {

template <class Base>
class ControlView : public Base {
public:
    ControlView(Control& model, QWidget* parent) : Base(parent), model_(model) {
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
        if (e->button() == Qt::LeftButton) leftPressed_ = true;
        feedDown(e);
        Base::mousePressEvent(e);
    }
    void mouseReleaseEvent(QMouseEvent* e) override {
        const bool click = clickOnRelease_ && e->button() == Qt::LeftButton && leftPressed_ &&
                           this->rect().contains(e->position().toPoint());
        if (e->button() == Qt::LeftButton) leftPressed_ = false;
        feedUp(e);
        Base::mouseReleaseEvent(e);
        if (click) feed([this] { model_.Click(); });
    }
    void mouseMoveEvent(QMouseEvent* e) override {
        feedMove(e);
        Base::mouseMoveEvent(e);
    }
    void mouseDoubleClickEvent(QMouseEvent* e) override {
        // The second press of a double click is the double click itself.
        if (e->button() == Qt::LeftButton) feed([this] { model_.DblClick(); });
        else feedDown(e);
    }

    // The focus came by keyboard (Tab, a mnemonic): only then is a focus ring drawn, so the
    // control that happens to be first when the window opens is not marked.
    bool keyboardFocus() const { return keyboardFocus_ && this->hasFocus(); }
    void focusInEvent(QFocusEvent* e) override {
        keyboardFocus_ = e->reason() == Qt::TabFocusReason || e->reason() == Qt::BacktabFocusReason ||
                         e->reason() == Qt::ShortcutFocusReason;
        Base::focusInEvent(e);
    }

    void feedDown(QMouseEvent* e) { feedMouse(e, &Control::MouseDown, buttonCode(e->button())); }
    void feedUp(QMouseEvent* e) { feedMouse(e, &Control::MouseUp, buttonCode(e->button())); }
    void feedMove(QMouseEvent* e) { feedMouse(e, &Control::MouseMove, buttonsCode(e->buttons())); }

    Control& model_;

private:
    void feedMouse(QMouseEvent* e, void (Control::*fn)(int, int, double, double), int button) {
        const QPointF at = twipsAt(*this, *e);
        const int shift = shiftCode(e->modifiers());
        feed([&] { (model_.*fn)(button, shift, at.x(), at.y()); });
    }

    int subscription_ = 0;
    CommonState common_;
    bool leftPressed_ = false;
    bool keyboardFocus_ = false;
};

}  // namespace sonarium
