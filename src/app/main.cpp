// Sonarium: the program keeps its files in its own folder, whatever folder it was launched
// from; the application object builds the program and its windows, and the event loop runs
// until the program asks the desktop to quit.
#include <QApplication>
#include <QDir>
#include <QIcon>
#include <QMessageBox>
#include <cstdio>

#include "app/Application.h"
#include "app/StartFolder.h"

namespace {

QIcon builtInIcon() {
    QIcon icon;
    for (const char* size : {"32x32", "64x64", "256x256"})
        icon.addFile(QStringLiteral(":/icons/hicolor/%1/apps/sonarium.png").arg(QLatin1String(size)));
    return icon;
}

}  // namespace

int main(int argc, char** argv) {
    sonarium::Application::prepareProcess();
    QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Sonarium"));
    QApplication::setApplicationVersion(QStringLiteral(SONARIUM_VERSION));
    // The desktop entry's name: the desktop matches the windows to the entry and its icon.
    QGuiApplication::setDesktopFileName(QStringLiteral("sonarium"));
    // The installed icon theme's, else the copy built into the program (a build tree's run).
    QApplication::setWindowIcon(QIcon::fromTheme(QStringLiteral("sonarium"), builtInIcon()));
    // Windows come and go with the forms; closing the last one must not end the process.
    QApplication::setQuitOnLastWindowClosed(false);

    const QString launchDir = QDir::currentPath();
    const QString folder =
        sonarium::startFolderFor(qEnvironmentVariable("SONARIUM_HOME"), QDir::homePath(), launchDir);
    if (const QString problem = sonarium::enterStartFolder(folder); !problem.isEmpty()) {
        std::fprintf(stderr, "%s\n", qPrintable(problem));
        QMessageBox::critical(nullptr, QStringLiteral("Sonarium"),
                              problem + QStringLiteral("\nSONARIUM_HOME can name another folder."));
        return 1;
    }
    sonarium::Application application(sonarium::commandLineOf(QApplication::arguments(), launchDir),
                                      QDir::currentPath());
    application.start();
    return app.exec();
}
