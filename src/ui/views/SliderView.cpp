#include "ui/views/SliderView.h"

namespace sonarium {

SliderView::SliderView(Slider& model, ErrorReporter& errors, QWidget* parent)
    : ControlView(model, errors, parent), slider_(model) {
    clickOnRelease_ = false;
    connect(this, &QSlider::valueChanged, this, [this](int v) {
        if (syncing_ || v == slider_.Value()) return;
        feed([&] { slider_.Scroll(v); });
    });
}

void SliderView::syncOwn() {
    syncing_ = true;
    setOrientation(slider_.Height() > slider_.Width() ? Qt::Vertical : Qt::Horizontal);
    setRange(slider_.Min(), slider_.Max());
    setValue(slider_.Value());
    setTickPosition(slider_.TickFrequency() > 0 ? QSlider::TicksBelow : QSlider::NoTicks);
    setTickInterval(slider_.TickFrequency());
    syncing_ = false;
}

}  // namespace sonarium
