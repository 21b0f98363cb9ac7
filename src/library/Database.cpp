// The song database: making a new one, choosing the one in use, and the panel that shows it.
#include <QFile>

#include "controls/Errors.h"
#include "controls/FileNames.h"
#include "library/LibrarySchema.h"
#include "shell/Form1.h"

namespace sonarium {

namespace {
const QString Locale = QStringLiteral(";LANGID=0x0409;CP=1252;COUNTRY=0");
const QString Password = QStringLiteral(";PWD=qvdnhzr;");

FileDialogRequest databaseDialog(const QString& appDir) {
    FileDialogRequest request;
    request.filter = QStringLiteral("Database|*.MDB");
    request.initDir = appDir;
    return request;
}
}  // namespace

// Callers ask before an existing file is replaced. A failure reaches the caller.
void Form1::MakeDatabase(const QString& file) {
    const QString existing = resolveFileName(file);
    if (QFile::exists(existing) && !QFile::remove(existing))
        throw RuntimeError(RuntimeError::PermissionDenied, QStringLiteral("Permission denied"));
    std::unique_ptr<Database> db = C.data.CreateDatabase(file, Locale);
    for (const QString& statement : libraryStatements()) db->Execute(statement);
}

void Form1::mnuCreateDatabase_Click() {
    QString name = C.dialogs.openFile(databaseDialog(M.AppDir));
    currentDirectory.change(M.AppDir);
    if (name.isEmpty()) return;
    name = currentDirectory.filePath(name);
    if (fileExists(name) &&
        C.dialogs.msgBox(QStringLiteral("Database already exists - overwrite?"), MsgButtons::YesNo,
                         MsgIcon::Exclamation, QStringLiteral("Create Database")) == MsgResult::No)
        return;
    const QString before = M.DatabasePath;
    try {
        M.DatabasePath = name;
        MakeDatabase(name);
    } catch (const RuntimeError& e) {
        // Nothing was made: the library in use stays the one the next start opens.
        M.DatabasePath = before;
        C.dialogs.msgBox(QStringLiteral("Cannot create database - ") + name + QStringLiteral("\n") + e.text(),
                         MsgButtons::OK, MsgIcon::Exclamation, QStringLiteral("Create Database"));
        return;
    }
    try {
        C.data.database().Close();
        C.data.setDatabaseName(name);
        C.data.setRecordSource(QStringLiteral("SongData"));
        C.data.Refresh();
        SaveConfig();
    } catch (const RuntimeError& e) {
        // The database in use may be the one that couldn't be replaced: say so and go on.
        C.dialogs.msgBox(e.text(), MsgButtons::OK, MsgIcon::Exclamation, QStringLiteral("Create Database"));
    }
}

// An error anywhere ends the command with the engine's text; DatabasePath then keeps its value.
// An empty name still reaches the last step, so the next start falls back to the default.
void Form1::mnuDefaultDatabase_Click() {
    try {
        QString name = C.dialogs.openFile(databaseDialog(M.AppDir));
        currentDirectory.change(M.AppDir);
        if (!name.isEmpty()) {
            name = currentDirectory.filePath(name);
            C.data.database().Close();
            C.data.setDatabaseName(name);
            C.data.setConnect(Password);
            SqlSelect = QStringLiteral("Select * From SongData");
            C.data.setRecordSource(SqlOrder.isEmpty() ? SqlSelect : SqlSelect + u' ' + SqlOrder);
            C.data.Refresh();
        }
        M.DatabasePath = name;
        SaveConfig();
    } catch (const RuntimeError& e) {
        C.dialogs.msgBox(e.text(), MsgButtons::OK, MsgIcon::Exclamation, QStringLiteral("Database"));
    }
}

// The library panel and the two info panels exclude one another.
void Form1::mnuDatabase_Click() {
    if (!mnuDatabase.Checked()) {
        if (mnuInfo.Checked()) tryStep([&] { mnuInfo.Click(); });
        if (mnuEdit.Checked()) tryStep([&] { mnuEdit.Click(); });
        PanelDatabase.setVisible(true);
        mnuDatabase.setChecked(true);
        tryStep([&] { AlignButtons(); });
    } else {
        PanelDatabase.setVisible(false);
        mnuDatabase.setChecked(false);
    }
}

}  // namespace sonarium
