#pragma once
// A command button with a caption ("OK"). A mouse click reaches the model as MouseDown,
// MouseUp, Click; a press by key (Space, or its "&" mnemonic) or by a screen reader as Click
// alone, as the platform's buttons do.
#include <QAbstractButton>

#include "controls/Widgets.h"
#include "ui/views/ControlView.h"

namespace sonarium {

class CommandButtonView : public ControlView<QAbstractButton> {
public:
    CommandButtonView(CommandButton& model, ErrorReporter& errors, QWidget* parent);

protected:
    void syncOwn() override;
    QString caption() const override;
    void paintEvent(QPaintEvent*) override;

private:
    CommandButton& button_;
};

}  // namespace sonarium
