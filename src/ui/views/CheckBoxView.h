#pragma once
// A check box. With a picture it is graphical: the picture is all it shows. Without one, a
// small one is a lamp that glows while checked, a larger one a box with a check mark and its
// caption. A click asks the model for the next value (unchecked becomes checked, anything
// else unchecked); the model's Value then sets what is shown.
#include <QCheckBox>

#include "controls/Widgets.h"
#include "ui/views/ControlView.h"
#include "ui/views/PicturePainter.h"

namespace sonarium {

class CheckBoxView : public ControlView<QCheckBox> {
public:
    CheckBoxView(CheckBox& model, ErrorReporter& errors, QWidget* parent);

protected:
    void syncOwn() override;
    QString caption() const override { return box_.Caption(); }
    void paintEvent(QPaintEvent*) override;
    bool hitButton(const QPoint& pos) const override { return rect().contains(pos); }
    void nextCheckState() override {}

private:
    void paintBox(QPainter& p);

    CheckBox& box_;
    PicturePainter painter_;
};

}  // namespace sonarium
