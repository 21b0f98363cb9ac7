#pragma once
// The base of every control model: name, index in a control array, visibility, enabled state,
// position and size in twips, colours, and the mouse and click events that views feed in.
#include <QString>
#include <functional>
#include <optional>

#include "controls/Observable.h"

namespace sonarium {

struct Color {
    int r = 0, g = 0, b = 0;
    bool operator==(const Color&) const = default;
};

enum MouseButton { LeftButton = 1, RightButton = 2, MiddleButton = 4 };

class Control : public Observable {
public:
    using MouseHandler = std::function<void(int button, int shift, double x, double y)>;

    explicit Control(QString name, int index = -1) : name_(std::move(name)), index_(index) {}

    const QString& Name() const { return name_; }
    // The control this one stands in; Left and Top are relative to it (null: the window).
    Control* Container() const { return container_; }
    void setContainer(Control* c) { container_ = c; }
    int Index() const { return index_; }  // -1 when the control is not part of an array

    bool Visible() const { return visible_; }
    void setVisible(bool v) { set(visible_, v); }
    bool Enabled() const { return enabled_; }
    virtual void setEnabled(bool v) { set(enabled_, v); }

    int Left() const { return left_; }
    int Top() const { return top_; }
    int Width() const { return width_; }
    int Height() const { return height_; }
    void setLeft(int v) { set(left_, v); }
    void setTop(int v) { set(top_, v); }
    virtual void setWidth(int v) { set(width_, v); }
    virtual void setHeight(int v) { set(height_, v); }
    void Move(int left, int top, int width, int height) {
        left_ = left, top_ = top, width_ = width, height_ = height;
        changed();
    }

    std::optional<Color> ForeColor() const { return fore_; }
    std::optional<Color> BackColor() const { return back_; }
    void setForeColor(Color c) { fore_ = c, changed(); }
    void setBackColor(Color c) { back_ = c, changed(); }

    const QString& ToolTipText() const { return toolTip_; }
    void setToolTipText(const QString& t) { set(toolTip_, t); }
    // What a screen reader says the control shows ("Elapsed time"); views use it.
    const QString& Description() const { return description_; }
    void setDescription(const QString& d) { description_ = d; }

    // Events. Views call the fire functions; the logic sets the handlers.
    std::function<void()> onClick, onDblClick;
    MouseHandler onMouseDown, onMouseUp, onMouseMove;
    std::function<void()> onLostFocus;

    virtual void Click() {
        if (onClick) onClick();
    }
    void DblClick() {
        if (onDblClick) onDblClick();
    }
    void MouseDown(int b, int s, double x, double y) {
        if (onMouseDown) onMouseDown(b, s, x, y);
    }
    void MouseUp(int b, int s, double x, double y) {
        if (onMouseUp) onMouseUp(b, s, x, y);
    }
    void MouseMove(int b, int s, double x, double y) {
        if (onMouseMove) onMouseMove(b, s, x, y);
    }
    void LostFocus() {
        if (onLostFocus) onLostFocus();
    }

    // Asks the view to give this control the keyboard focus.
    void SetFocus() { ++focusRequests_, changed(); }
    int focusRequests() const { return focusRequests_; }

protected:
    template <typename T>
    void set(T& field, const T& value) {
        if (field == value) return;
        field = value;
        changed();
    }
    void notify() { changed(); }

private:
    QString name_;
    int index_;
    Control* container_ = nullptr;
    bool visible_ = true;
    bool enabled_ = true;
    int left_ = 0, top_ = 0, width_ = 0, height_ = 0;
    std::optional<Color> fore_, back_;
    QString toolTip_, description_;
    int focusRequests_ = 0;
};

}  // namespace sonarium
