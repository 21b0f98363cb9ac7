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
    binding_->onRefresh = [this] {
        followSize();
        afterRefresh();
    };
    binding_->beforeShow = [this] { beforeShow(); };
    binding_->refresh();
}

FormWindow::~FormWindow() = default;

QSize FormWindow::sizeFor(int width, int height) const {
    return width > 0 && height > 0 ? QSize(width, height) : FallbackSize;
}

void FormWindow::followSize() {
    const QSize size = sizeFor(twipsToPixels(form_.Width()), twipsToPixels(form_.Height()));
    if (this->size() != size || minimumSize() != size) setFixedSize(size);
}

void FormWindow::closeEvent(QCloseEvent* e) { binding_->closeRequested(*e); }

void FormWindow::paintEvent(QPaintEvent*) {
    QPainter p(this);
    hifi::paintPanel(p, rect());
}

}  // namespace sonarium
