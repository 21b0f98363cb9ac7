#include "ui/MiniPlayerWindow.h"

#include <QBitmap>
#include <QGuiApplication>
#include <QMouseEvent>
#include <QPainter>
#include <QScreen>

#include "shell/FrmMiniPlayer.h"
#include "ui/FormBinding.h"
#include "ui/views/ControlSync.h"
#include "ui/views/HiFiLook.h"
#include "ui/views/PictureConvert.h"

namespace sonarium {

namespace {
// The least of the window that is always there: enough to see it, grab it and close it.
constexpr int Least = 24;

QRect screenArea() {
    const QScreen* screen = QGuiApplication::primaryScreen();
    return screen ? screen->availableGeometry() : QRect(0, 0, 1024, 768);
}
}  // namespace

MiniPlayerWindow::MiniPlayerWindow(FrmMiniPlayer& form, ErrorReporter& errors)
    : FormWindow(form, form.allControls(), errors, nullptr, Qt::Window | Qt::FramelessWindowHint),
      mini_(form),
      errors_(errors) {
    setAttribute(Qt::WA_NoSystemBackground);
    binding().placeFilter = [](QPoint p) {
        const QRect area = screenArea();
        return QPoint(std::clamp(p.x(), area.left() - 2000, area.right() - Least),
                      std::clamp(p.y(), area.top(), area.bottom() - Least));
    };
    for (QWidget* child : findChildren<QWidget*>()) child->installEventFilter(this);
    // The list shows whole rows of a small type: the skin sizes the list for them.
    if (QWidget* list = viewOf(form.lstSongSets)) {
        QFont font(QStringLiteral("DejaVu Sans"));
        font.setPixelSize(9);
        list->setFont(font);
        list->setStyleSheet(
            QStringLiteral("QListWidget { border: none; } QListWidget::item { height: 12px; }"));
        list->setProperty("verticalScrollBarPolicy", int(Qt::ScrollBarAlwaysOff));
    }
    binding().refresh();
}

QRegion MiniPlayerWindow::shapeOf(const QImage& picture, const QSize& size) {
    const QRegion whole(QRect(QPoint(0, 0), size));
    if (picture.isNull()) return whole;
    const QImage rgb = picture.convertToFormat(QImage::Format_RGB32);
    const QBitmap keyed = QBitmap::fromImage(rgb.createMaskFromColor(KeyColour, Qt::MaskInColor));
    QRegion shape = QRegion(QRect(QPoint(0, 0), size)) - QRegion(QRect(QPoint(0, 0), picture.size()));
    shape += QRegion(keyed).intersected(whole);
    const QRect bounds = shape.boundingRect();
    return bounds.width() >= Least && bounds.height() >= Least ? shape : whole;
}

QSize MiniPlayerWindow::sizeFor(int width, int height) const {
    const QRect area = screenArea();
    return QSize(std::clamp(width, Least, std::max(Least, area.width())),
                 std::clamp(height, Least, std::max(Least, area.height())));
}

void MiniPlayerWindow::afterRefresh() {
    if (!shown_.sameAs(mini_.picture())) {
        shown_ = mini_.picture();
        background_ = toQImage(shown_);
        shapedFor_ = QSize();
    }
    if (shapedFor_ != size()) {
        shapedFor_ = size();
        setMask(shapeOf(background_, size()));
    }
    update();
}

void MiniPlayerWindow::paintEvent(QPaintEvent*) {
    QPainter p(this);
    hifi::paintPanel(p, rect());
    if (!background_.isNull()) p.drawImage(QPoint(0, 0), background_);
}

bool MiniPlayerWindow::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::ToolTip) return true;
    return FormWindow::eventFilter(watched, event);
}

void MiniPlayerWindow::feedMouse(QMouseEvent* e, void (Control::*fn)(int, int, double, double), int button) {
    const QPointF at = e->position() * TwipsPerPixel;
    const int shift = shiftCode(e->modifiers());
    feed(errors_, [&] { (mini_.*fn)(button, shift, at.x(), at.y()); });
}

void MiniPlayerWindow::mousePressEvent(QMouseEvent* e) {
    feedMouse(e, &Control::MouseDown, buttonCode(e->button()));
}
void MiniPlayerWindow::mouseReleaseEvent(QMouseEvent* e) {
    feedMouse(e, &Control::MouseUp, buttonCode(e->button()));
}
void MiniPlayerWindow::mouseMoveEvent(QMouseEvent* e) {
    feedMouse(e, &Control::MouseMove, buttonsCode(e->buttons()));
}

}  // namespace sonarium
