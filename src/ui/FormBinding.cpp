#include "ui/FormBinding.h"

#include <QApplication>
#include <QCloseEvent>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QWidget>
#include <QWindow>

#include "controls/Form.h"
#include "controls/Picture.h"
#include "ui/views/ControlSync.h"
#include "ui/views/KeyCodes.h"

namespace sonarium {

namespace {

// Marks the windows of forms, so activation can tell a form from a message box or a menu.
constexpr const char* FormWindowProperty = "sonariumForm";

bool isFormWindow(const QWindow* w) {
    if (!w) return false;
    for (QWidget* top : QApplication::topLevelWidgets())
        if (top->windowHandle() == w) return top->property(FormWindowProperty).toBool();
    return false;
}

}  // namespace

FormBinding::FormBinding(Form& form, QWidget& window, ErrorReporter& errors, QString fallbackCaption)
    : form_(form), window_(window), errors_(errors), fallbackCaption_(std::move(fallbackCaption)) {
    window_.setObjectName(form.Name());
    window_.setProperty(FormWindowProperty, true);
    place_ = QPoint(form.Left(), form.Top());
    refreshes_ = form.refreshes();
    subscription_ = form_.subscribe([this] { refresh(); });
    connect(qApp, &QGuiApplication::focusWindowChanged, this, [this](QWindow* w) { focusWindowChanged(w); });
    window_.installEventFilter(this);
    qApp->installEventFilter(this);
}

FormBinding::~FormBinding() { form_.unsubscribe(subscription_); }

void FormBinding::refresh() {
    syncing_ = true;
    const QString caption = form_.Caption().isEmpty() ? fallbackCaption_ : form_.Caption();
    if (window_.windowTitle() != caption) window_.setWindowTitle(caption);
    if (form_.MousePointer() == Hourglass)
        window_.setCursor(Qt::WaitCursor);
    else
        window_.unsetCursor();
    if (onRefresh) onRefresh();
    // The window was placed by the window system at first; a place the model sets later moves it.
    const QPoint place(form_.Left(), form_.Top());
    if (place != place_) {
        place_ = place;
        const QPoint pixels(twipsToPixels(place.x()), twipsToPixels(place.y()));
        window_.move(placeFilter ? placeFilter(pixels) : pixels);
    }
    syncVisible();
    if (window_.isVisible()) {
        const Qt::WindowStates want = form_.windowState() == WindowState::Minimized   ? Qt::WindowMinimized
                                      : form_.windowState() == WindowState::Maximized ? Qt::WindowMaximized
                                                                                      : Qt::WindowNoState;
        if ((window_.windowState() & (Qt::WindowMinimized | Qt::WindowMaximized)) != want)
            window_.setWindowState((window_.windowState() & ~(Qt::WindowMinimized | Qt::WindowMaximized)) |
                                   want);
    }
    if (form_.refreshes() != refreshes_) {
        refreshes_ = form_.refreshes();
        if (window_.isVisible()) window_.repaint();
    }
    syncing_ = false;
}

void FormBinding::syncVisible() {
    if (form_.Visible() == window_.isVisible()) return;
    if (!form_.Visible()) {
        window_.hide();
        return;
    }
    if (beforeShow) beforeShow();
    window_.setWindowModality(form_.Modal() ? Qt::ApplicationModal : Qt::NonModal);
    window_.show();
    // The offscreen platform has no stacking order and says so on every raise.
    if (QGuiApplication::platformName() != QLatin1String("offscreen")) window_.raise();
    window_.activateWindow();
}

void FormBinding::closeRequested(QCloseEvent& e) {
    bool mayClose = false;
    feed(errors_, [&] { mayClose = form_.QueryUnload(); });
    // A close that may go on unloads the form, as the platform's window close does; the main
    // window's own close procedure cancels and takes the window away itself.
    if (mayClose && form_.Visible()) feed(errors_, [&] { form_.Unload(); });
    if (mayClose && !form_.Visible())
        e.accept();
    else
        e.ignore();
}

void FormBinding::focusWindowChanged(QWindow* w) {
    if (!w || w->type() == Qt::Popup || w->type() == Qt::ToolTip) return;
    if (w == window_.windowHandle()) {
        if (active_) return;
        active_ = true;
        feed(errors_, [this] { form_.Activate(); });
    } else if (isFormWindow(w)) {
        active_ = false;
    }
}

bool FormBinding::eventFilter(QObject* watched, QEvent* event) {
    switch (event->type()) {
    case QEvent::KeyPress: return keyPressed(watched, event);
    case QEvent::Move:
        // The user moved the window: the model's Left and Top say where it is now.
        if (watched == &window_ && !syncing_ && window_.isVisible()) {
            place_ = window_.pos() * TwipsPerPixel;
            feed(errors_, [this] { form_.Move(place_.x(), place_.y(), form_.Width(), form_.Height()); });
        }
        return false;
    case QEvent::WindowStateChange:
        if (watched == &window_ && !syncing_) {
            const Qt::WindowStates s = window_.windowState();
            const WindowState state = s & Qt::WindowMinimized   ? WindowState::Minimized
                                      : s & Qt::WindowMaximized ? WindowState::Maximized
                                                                : WindowState::Normal;
            feed(errors_, [&] { form_.setWindowState(state); });
        }
        return false;
    default: return false;
    }
}

// Seen by the application's filter once per delivery: only the delivery to the window's focus
// widget (or to the window when nothing has the focus) counts, not its propagation to parents.
bool FormBinding::keyPressed(QObject* receiver, QEvent* event) {
    if (!receiver->isWidgetType() || static_cast<QWidget*>(receiver)->window() != &window_) return false;
    QWidget* focus = window_.focusWidget();
    if (receiver != (focus ? focus : &window_)) return false;
    auto* key = static_cast<QKeyEvent*>(event);
    const int code = platformKeyCode(key->key(), key->modifiers());
    if (code == 0) return false;
    bool swallowed = false;
    feed(errors_, [&] { swallowed = form_.KeyDown(code, shiftCode(key->modifiers())); });
    return swallowed;
}

}  // namespace sonarium
