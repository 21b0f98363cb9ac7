#include "ui/views/ComboBoxView.h"

namespace sonarium {

ComboBoxView::ComboBoxView(ComboBox& model, ErrorReporter& errors, QWidget* parent)
    : ControlView(model, errors, parent), combo_(model) {
    clickOnRelease_ = false;
    setFocusPolicy(Qt::StrongFocus);
    connect(this, &QComboBox::activated, this, [this](int row) {
        if (syncing_ || row == combo_.ListIndex()) return;
        feed([&] { combo_.setListIndex(row); });
        refresh();  // a refused pick shows the model's row again
    });
}

void ComboBoxView::syncOwn() {
    syncing_ = true;
    if (shownRows_ != combo_.rows()) {
        shownRows_ = combo_.rows();
        clear();
        addItems(shownRows_);
    }
    if (currentIndex() != combo_.ListIndex()) setCurrentIndex(combo_.ListIndex());
    if (combo_.ListIndex() < 0) setPlaceholderText(combo_.Text());
    syncing_ = false;
}

}  // namespace sonarium
