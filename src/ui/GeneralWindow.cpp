#include "ui/GeneralWindow.h"

#include <QGuiApplication>
#include <QPainter>
#include <QScreen>

#include "shell/FrmGeneral.h"
#include "ui/FormBinding.h"
#include "ui/views/HiFiLook.h"

namespace sonarium {

namespace {

// A frameless card needs an edge of its own to stand out from what lies behind it.
class CardEdge : public QWidget {
public:
    using QWidget::QWidget;

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter p(this);
        p.setPen(hifi::colours::accent.darker(160));
        p.drawRect(rect().adjusted(0, 0, -1, -1));
        p.setPen(hifi::colours::panelDark);
        p.drawRect(rect().adjusted(1, 1, -2, -2));
    }
};

}  // namespace

GeneralWindow::GeneralWindow(FrmGeneral& form, ErrorReporter& errors, QWidget* parent)
    : FormWindow(form, form.allControls(), errors, parent, Qt::Dialog),
      general_(form),
      edge_(new CardEdge(this)) {
    edge_->setAttribute(Qt::WA_TransparentForMouseEvents);
    edge_->setGeometry(rect());
    edge_->raise();
    // Again now that this window's own show preparation is in place.
    binding().refresh();
}

void GeneralWindow::beforeShow() {
    const Qt::WindowFlags flags =
        general_.PanelSplash.Visible() ? Qt::Dialog | Qt::FramelessWindowHint : Qt::Dialog;
    if (windowFlags() != flags) setWindowFlags(flags);
    edge_->setVisible(flags & Qt::FramelessWindowHint);
    edge_->raise();
    const QScreen* screen = QGuiApplication::primaryScreen();
    if (!screen) return;
    QRect frame = frameGeometry();
    frame.moveCenter(screen->availableGeometry().center());
    move(frame.topLeft());
}

void GeneralWindow::resizeEvent(QResizeEvent* e) {
    FormWindow::resizeEvent(e);
    edge_->setGeometry(rect());
}

}  // namespace sonarium
