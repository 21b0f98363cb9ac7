#pragma once
// An image that acts as a button (it has a hint): a QAbstractButton, so it takes the keyboard
// focus and screen readers see a button named by the hint. A mouse click reaches the model as
// MouseDown, MouseUp, Click; a press by key or by a screen reader, which has no mouse, reaches
// it as the same three with the pointer in the middle, so the handlers (most act on MouseUp)
// run as for a click.
#include <QAbstractButton>

#include "controls/Widgets.h"
#include "ui/views/ControlView.h"
#include "ui/views/PicturePainter.h"

namespace sonarium {

class ImageButtonView : public ControlView<QAbstractButton> {
public:
    ImageButtonView(Image& model, ErrorReporter& errors, QWidget* parent);

protected:
    void paintEvent(QPaintEvent*) override;
    void mouseReleaseEvent(QMouseEvent* e) override;

private:
    void pressed();

    Image& image_;
    PicturePainter painter_;
    bool releasing_ = false;  // inside a mouse release: the click came from the mouse
};

}  // namespace sonarium
