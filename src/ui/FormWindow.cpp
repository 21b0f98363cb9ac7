#include "ui/FormWindow.h"

#include <QCloseEvent>
#include <QPainter>

#include "controls/Form.h"
#include "ui/FormBinding.h"
#include "ui/views/ControlSync.h"
#include "ui/views/HiFiLook.h"

namespace sonarium {

namespace {
// A form that has no size of its own yet (its design comes later) still opens usably.
constexpr QSize FallbackSize{320, 200};
}  // namespace

FormWindow::FormWindow(Form& form, const std::vector<Control*>& controls, ErrorReporter& errors,
                       QWidget* parent, Qt::WindowFlags flags)
    : QWidget(parent, flags), form_(form), views_(*this, errors) {
    views_.build(controls);
    binding_ = std::make_unique<FormBinding>(form, *this, errors, form.Caption());
    binding_->onRefresh = [this] { followSize(); };
    binding_->beforeShow = [this] { beforeShow(); };
    binding_->refresh();
}

FormWindow::~FormWindow() = default;

void FormWindow::followSize() {
    const int w = twipsToPixels(form_.Width()), h = twipsToPixels(form_.Height());
    const QSize size = w > 0 && h > 0 ? QSize(w, h) : FallbackSize;
    if (this->size() != size || minimumSize() != size) setFixedSize(size);
}

void FormWindow::closeEvent(QCloseEvent* e) { binding_->closeRequested(*e); }

void FormWindow::paintEvent(QPaintEvent*) {
    QPainter p(this);
    hifi::paintPanel(p, rect());
}

}  // namespace sonarium
