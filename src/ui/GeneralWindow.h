#pragma once
// The dialog of many faces. While its splash panel is up (the splash at start, the About box)
// it is a frameless card centred on the screen; its other faces are an ordinary dialog, also
// centred.
#include "ui/FormWindow.h"

namespace sonarium {

class FrmGeneral;

class GeneralWindow : public FormWindow {
public:
    GeneralWindow(FrmGeneral& form, ErrorReporter& errors, QWidget* parent);

protected:
    void beforeShow() override;
    void resizeEvent(QResizeEvent* e) override;

private:
    FrmGeneral& general_;
    QWidget* edge_;  // the card's outline, over the views
};

}  // namespace sonarium
