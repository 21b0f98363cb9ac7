#pragma once
// A slider: range and value follow the model; a value the user sets goes to the model as a
// scroll. Upright when the control is taller than wide.
#include <QSlider>

#include "controls/Widgets.h"
#include "ui/views/ControlView.h"

namespace sonarium {

class SliderView : public ControlView<QSlider> {
public:
    SliderView(Slider& model, ErrorReporter& errors, QWidget* parent);

protected:
    void syncOwn() override;

private:
    Slider& slider_;
    bool syncing_ = false;
};

}  // namespace sonarium
