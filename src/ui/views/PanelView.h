#pragma once
// A panel: the container of other views, a raised panel of the front (its back colour when the
// model has one) or the picture a skin gave it, with its caption centred when it has one.
#include <QFrame>

#include "controls/Widgets.h"
#include "ui/views/ControlView.h"
#include "ui/views/PicturePainter.h"

namespace sonarium {

class PanelView : public ControlView<QFrame> {
public:
    PanelView(sonarium::Panel& model, ErrorReporter& errors, QWidget* parent);

protected:
    QString caption() const override { return panel_.Caption(); }
    void paintEvent(QPaintEvent*) override;

private:
    sonarium::Panel& panel_;
    PicturePainter painter_;
};

}  // namespace sonarium
