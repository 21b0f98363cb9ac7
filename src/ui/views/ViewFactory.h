#pragma once
// Makes the view that fits each control model: a label view for a Label, a button for an image
// with a hint, a drop-down for a drive list... Each view lives inside the view of its model's
// container, or on the window's surface when it has none, so the containers are made first
// whatever the order of the list. Timers and other models that show nothing get no view.
#include <map>
#include <vector>

class QWidget;

namespace sonarium {

class Control;
class ErrorReporter;

class ViewFactory {
public:
    // Failures of the calls that the views feed to their models are told to `errors`.
    ViewFactory(QWidget& surface, ErrorReporter& errors) : surface_(surface), errors_(errors) {}

    void build(const std::vector<Control*>& controls);
    // The view of a control made here, or null.
    QWidget* viewOf(const Control& c) const;

private:
    QWidget* make(Control& c);

    QWidget& surface_;
    ErrorReporter& errors_;
    std::map<const Control*, QWidget*> views_;
};

}  // namespace sonarium
