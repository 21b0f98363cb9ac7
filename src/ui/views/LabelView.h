#pragma once
// A label. One that shows a changing value (it has a Description: "Elapsed time") is drawn
// as a lit display; a fixed legend is light text on the panel. The text is drawn as it is,
// with no mnemonic, in the largest font up to the label's height that fits its width.
#include <QLabel>

#include "controls/Widgets.h"
#include "ui/views/ControlView.h"

namespace sonarium {

class LabelView : public ControlView<QLabel> {
public:
    LabelView(Label& model, ErrorReporter& errors, QWidget* parent);

protected:
    void syncOwn() override;
    QString caption() const override { return label_.Caption(); }
    void paintEvent(QPaintEvent*) override;

private:
    Label& label_;
};

}  // namespace sonarium
