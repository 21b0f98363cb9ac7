#pragma once
// A drop-down list: the rows and the chosen row follow the model; with no row chosen it shows
// the model's Text. A row the user picks becomes the model's ListIndex, which fires the click.
#include <QComboBox>

#include "controls/Widgets.h"
#include "ui/views/ControlView.h"

namespace sonarium {

class ComboBoxView : public ControlView<QComboBox> {
public:
    ComboBoxView(ComboBox& model, ErrorReporter& errors, QWidget* parent);

protected:
    void syncOwn() override;

private:
    ComboBox& combo_;
    QStringList shownRows_;
    bool syncing_ = false;
};

}  // namespace sonarium
