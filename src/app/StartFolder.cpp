#include "app/StartFolder.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

namespace sonarium {

QString startFolderFor(const QString& sonariumHome, const QString& userHome, const QString& launchDir) {
    if (!sonariumHome.isEmpty()) return QDir::cleanPath(QDir(launchDir).absoluteFilePath(sonariumHome));
    return QDir::cleanPath(userHome + QStringLiteral("/Sonarium"));
}

QString enterStartFolder(const QString& folder) {
    if (!QDir().mkpath(folder))
        return QStringLiteral("Sonarium cannot make %1, the folder for its files.").arg(folder);
    if (!QFileInfo(folder).isWritable() || !QDir::setCurrent(folder))
        return QStringLiteral("Sonarium cannot write in %1, the folder for its files.").arg(folder);
    return {};
}

QString commandLineOf(const QStringList& arguments, const QString& launchDir) {
    const QString line = arguments.mid(1).join(QLatin1Char(' '));
    if (line.isEmpty() || QDir::isAbsolutePath(line)) return line;
    return QDir::cleanPath(launchDir + QLatin1Char('/') + line);
}

QString sharedFile(const QString& name) {
    return QDir::cleanPath(QCoreApplication::applicationDirPath() +
                           QStringLiteral("/" SONARIUM_DATA_FROM_BIN "/") + name);
}

}  // namespace sonarium
