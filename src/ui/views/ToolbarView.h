#pragma once
// A toolbar: one tool button a model button, in order, with its tool tip as its name for the
// keyboard and screen readers, and a small drawn picture for its key. Check buttons stay down
// while their value is 1. A press goes to the model's ButtonClick.
#include <QToolButton>
#include <QWidget>
#include <vector>

#include "controls/Toolbar.h"
#include "ui/views/ControlView.h"

namespace sonarium {

class ToolbarView : public ControlView<QWidget> {
public:
    ToolbarView(Toolbar& model, ErrorReporter& errors, QWidget* parent);

protected:
    void syncOwn() override;

private:
    Toolbar& bar_;
    std::vector<QToolButton*> buttons_;
};

}  // namespace sonarium
