#include "ui/QtDesktop.h"

#include <QCoreApplication>
#include <QCursor>
#include <QDesktopServices>
#include <QFileInfo>
#include <QFontDatabase>
#include <QGuiApplication>
#include <QScreen>
#include <QThread>
#include <QUrl>

#include "controls/Picture.h"

namespace sonarium {

namespace {

// Exits once the application's loop runs: an exit asked for while only processEvents runs
// (a wait during start-up) would otherwise be lost.
void exitWhenLoopRuns(int exitCode) {
    if (QThread::currentThread()->loopLevel() > 0)
        QCoreApplication::exit(exitCode);
    else
        QMetaObject::invokeMethod(
            qApp, [exitCode] { exitWhenLoopRuns(exitCode); }, Qt::QueuedConnection);
}

}  // namespace

QStringList QtDesktop::screenFonts() { return QFontDatabase::families(); }

QSize QtDesktop::screenSizeTwips() {
    const QScreen* screen = QGuiApplication::primaryScreen();
    return screen ? screen->size() * TwipsPerPixel : QSize();
}

QPoint QtDesktop::cursorPosTwips() { return QCursor::pos() * TwipsPerPixel; }

bool QtDesktop::openDocument(const QString& file) {
    return QDesktopServices::openUrl(QUrl::fromLocalFile(file));
}

bool QtDesktop::openHelp() { return QFileInfo::exists(helpPage_) && openDocument(helpPage_); }

void QtDesktop::quit(int exitCode) {
    QMetaObject::invokeMethod(
        qApp, [exitCode] { exitWhenLoopRuns(exitCode); }, Qt::QueuedConnection);
}

}  // namespace sonarium
