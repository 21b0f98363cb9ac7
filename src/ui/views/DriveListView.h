#pragma once
// The drive list as a drop-down: one row per volume ("/", "/media/user/USB  [USB]"), the
// current drive chosen. Opening the list reads the volumes again, as a medium may have come or
// gone; a pick goes to the model's ListIndex, which sets its Drive and fires the change.
#include <QComboBox>

#include "controls/DriveListBox.h"
#include "ui/views/ControlView.h"

namespace sonarium {

class DriveListView : public ControlView<QComboBox> {
public:
    DriveListView(DriveListBox& model, ErrorReporter& errors, QWidget* parent);

    void showPopup() override;

protected:
    void syncOwn() override;

private:
    DriveListBox& drives_;
    QStringList shownRows_;
    bool syncing_ = false;
};

}  // namespace sonarium
