#include "ui/views/DriveListView.h"

namespace sonarium {

DriveListView::DriveListView(DriveListBox& model, ErrorReporter& errors, QWidget* parent)
    : ControlView(model, errors, parent), drives_(model) {
    clickOnRelease_ = false;
    setFocusPolicy(Qt::StrongFocus);
    connect(this, &QComboBox::activated, this, [this](int row) {
        if (syncing_ || row == drives_.ListIndex()) return;
        feed([&] { drives_.setListIndex(row); });
        refresh();  // a drive that failed leaves the model's own drive shown
    });
}

void DriveListView::showPopup() {
    feed([this] { drives_.Refresh(); });
    QComboBox::showPopup();
}

void DriveListView::syncOwn() {
    syncing_ = true;
    QStringList rows;
    for (int i = 0; i < drives_.ListCount(); ++i) rows << drives_.List(i);
    if (rows != shownRows_) {
        shownRows_ = rows;
        clear();
        addItems(rows);
    }
    if (currentIndex() != drives_.ListIndex()) setCurrentIndex(drives_.ListIndex());
    // A drive that is no longer mounted is still the current one: say so.
    setPlaceholderText(drives_.Drive());
    syncing_ = false;
}

}  // namespace sonarium
