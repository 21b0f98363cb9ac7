#include "ui/QtDesktop.h"

#include <QCoreApplication>
#include <QCursor>
#include <QDesktopServices>
#include <QDir>
#include <QFile>
#include <QFontDatabase>
#include <QGuiApplication>
#include <QSaveFile>
#include <QScreen>
#include <QStandardPaths>
#include <QThread>
#include <QUrl>

#include "controls/Picture.h"
#include "ui/Assets.h"

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

bool QtDesktop::openHelp() {
    initAssets();
    QFile page(QStringLiteral(":/help/index.html"));
    if (!page.open(QIODevice::ReadOnly)) return false;
    QString dir = QStandardPaths::writableLocation(QStandardPaths::CacheLocation);
    if (dir.isEmpty()) dir = QDir::tempPath() + QStringLiteral("/sonarium");
    dir += QStringLiteral("/help");
    if (!QDir().mkpath(dir)) return false;
    // Written whole under a temporary name and renamed, so a viewer never sees half a page.
    QSaveFile copy(dir + QStringLiteral("/index.html"));
    if (!copy.open(QIODevice::WriteOnly) || copy.write(page.readAll()) < 0 || !copy.commit()) return false;
    return openDocument(copy.fileName());
}

void QtDesktop::quit(int exitCode) {
    QMetaObject::invokeMethod(
        qApp, [exitCode] { exitWhenLoopRuns(exitCode); }, Qt::QueuedConnection);
}

}  // namespace sonarium
