// Sonarium: the application object builds the program and its windows; the event loop runs
// until the program asks the desktop to quit.
#include <QApplication>
#include <QDir>

#include "app/Application.h"

int main(int argc, char** argv) {
    sonarium::Application::prepareProcess();
    QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Sonarium"));
    QApplication::setApplicationVersion(QStringLiteral("3.4"));
    // Windows come and go with the forms; closing the last one must not end the process.
    QApplication::setQuitOnLastWindowClosed(false);
    sonarium::Application application(QApplication::arguments(), QDir::currentPath());
    application.start();
    return app.exec();
}
