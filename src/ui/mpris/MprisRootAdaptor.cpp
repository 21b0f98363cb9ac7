#include "ui/mpris/MprisRootAdaptor.h"

#include <QGuiApplication>
#include <QWidget>

namespace sonarium {

MprisRootAdaptor::MprisRootAdaptor(QObject* parent, const QList<QWidget*>& windows)
    : QDBusAbstractAdaptor(parent) {
    for (QWidget* w : windows) windows_ << w;
}

void MprisRootAdaptor::Raise() {
    for (const QPointer<QWidget>& w : windows_) {
        if (!w || !w->isVisible()) continue;
        // The window's binding reports the new state to the form model.
        if (w->windowState() & Qt::WindowMinimized)
            w->setWindowState(w->windowState() & ~Qt::WindowMinimized);
        // The offscreen platform has no stacking order and says so on every raise.
        if (QGuiApplication::platformName() != QLatin1String("offscreen")) w->raise();
        w->activateWindow();
    }
}

}  // namespace sonarium
