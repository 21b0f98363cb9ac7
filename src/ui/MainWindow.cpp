#include "ui/MainWindow.h"

#include <QCloseEvent>
#include <QLayout>
#include <QMenuBar>

#include "shell/Form1.h"
#include "ui/FormBinding.h"
#include "ui/views/ControlSync.h"
#include "ui/views/MenuBarBinder.h"
#include "ui/views/ViewFactory.h"

namespace sonarium {

namespace {
constexpr int SurfaceWidth = 634, SurfaceHeight = 465;
// What the window's Height counts beyond the part of the surface that shows.
constexpr int HeightAllowance = 15;
}  // namespace

MainWindow::MainWindow(Form1& form) : form_(form) {
    clip_ = new QWidget(this);
    clip_->setObjectName(QStringLiteral("Form1Client"));
    surface_ = new QWidget(clip_);
    surface_->setObjectName(QStringLiteral("Form1Surface"));
    surface_->setAutoFillBackground(true);
    setCentralWidget(clip_);
    // The window is exactly as large as the bar and the visible part of the surface.
    layout()->setSizeConstraint(QLayout::SetFixedSize);

    menus_ = std::make_unique<MenuBarBinder>(*menuBar(), form.menuBar(), form.C.errors);
    menus_->onTopLevelChanged = [this] { followSize(); };
    views_ = std::make_unique<ViewFactory>(*surface_, form.C.errors);
    views_->build(form.allControls());

    binding_ = std::make_unique<FormBinding>(form, *this, form.C.errors, QStringLiteral("Sonarium"));
    binding_->onRefresh = [this] { followSize(); };
    binding_->refresh();
}

MainWindow::~MainWindow() = default;

QWidget* MainWindow::viewOf(const Control& c) const { return views_->viewOf(c); }

void MainWindow::followSize() {
    const int width = std::max(1, twipsToPixels(form_.Width()));
    const int shown = std::max(0, twipsToPixels(form_.Height()) - HeightAllowance);
    menuBar()->setVisible(menus_->anyTopLevelVisible());
    if (clip_->size() != QSize(width, shown)) clip_->setFixedSize(width, shown);
    const QSize surface(std::max(SurfaceWidth, width), std::max(SurfaceHeight, shown));
    if (surface_->size() != surface) surface_->resize(surface);
}

void MainWindow::requestClose() {
    QCloseEvent e;
    binding_->closeRequested(e);
    if (e.isAccepted()) hide();
}

void MainWindow::closeEvent(QCloseEvent* e) { binding_->closeRequested(*e); }

}  // namespace sonarium
