// The grid's current record: its photo, and the commands that delete records and files.
#include <QFile>

#include "controls/Errors.h"
#include "controls/FileNames.h"
#include "controls/SongNames.h"
#include "shell/Form1.h"

namespace sonarium {

namespace {
QString fieldOf(Recordset& records, const char* name) {
    return records.Fields(QString::fromLatin1(name)).Value().toString();
}
}  // namespace

// The folder's picture first, then the song's own, each kind replacing the one before. The
// folder's JPEG is looked for as ".GPG", so only the song's own JPEG is ever found here.
void Form1::DBGrid1_RowColChange() {
    Recordset& records = C.data.recordset();
    QString dir;
    tryStep([&] { dir = fieldOf(records, "Path") + u'/'; });
    tryStep([&] {
        if (dir.isEmpty())
            throw RuntimeError(RuntimeError::InvalidCall,
                               QStringLiteral("Invalid procedure call or argument"));
        LastDir = folderName(dir);
    });
    tryStep([&] { Photo.setVisible(false); });
    tryStep([&] { Photo.setStretch(false); });
    for (const char* kind : {".GIF", ".BMP", ".GPG"})
        tryStep([&] { Photo.setPicture(C.pictures.load(dir + LastDir + QLatin1String(kind))); });
    for (const char* kind : {".GIF", ".BMP", ".JPG"})
        tryStep([&] {
            Photo.setPicture(C.pictures.load(fieldOf(records, "Path") + u'/' + fieldOf(records, "File") +
                                             QLatin1String(kind)));
        });
    tryStep([&] {
        if (Photo.picture().isNull()) Photo.setPicture(imgMpeg3.picture());
    });
    SizePhoto();
}

void Form1::cmdDeleteLine_Click() {
    bool none = true;
    tryStep([&] { none = C.data.recordset().AbsolutePosition() < 0; });
    if (none) {
        C.dialogs.msgBox(QStringLiteral("No record selected - click on a line to select"), MsgButtons::OK,
                         MsgIcon::Exclamation, QStringLiteral("Delete Line"));
        return;
    }
    if (C.dialogs.msgBox(QStringLiteral("Delete selected record from Database?"), MsgButtons::YesNo,
                         MsgIcon::Exclamation, QStringLiteral("Delete All")) != MsgResult::Yes)
        return;
    tryStep([&] { C.data.recordset().Delete(); });
    tryStep([&] { UpdateRecordCount(); });
}

// A file that can't be deleted still loses its record.
void Form1::CmdDeleteFile_Click() {
    Recordset& records = C.data.recordset();
    QString name;
    bool any = false;
    tryStep([&] {
        name = fieldOf(records, "Path\\File");
        any = records.RecordCount() != 0 && !name.isEmpty();
    });
    if (!any) return;
    if (C.dialogs.msgBox(QStringLiteral("Permanently remove file ") + name + QStringLiteral(" from disk"),
                         MsgButtons::OKCancel, MsgIcon::Exclamation,
                         QStringLiteral("Delete File")) != MsgResult::OK)
        return;
    tryStep([&] {
        if (!QFile::remove(resolveFileName(name)))
            throw RuntimeError(RuntimeError::PathFileAccess, QStringLiteral("Path/File access error"));
    });
    tryStep([&] { records.Delete(); });
    tryStep([&] { UpdateRecordCount(); });
}

// The count label keeps the old number; only RecordTotal knows the library is empty.
void Form1::cmdClearAll_Click() {
    if (C.dialogs.msgBox(QStringLiteral("Delete all records from Database?"), MsgButtons::YesNo,
                         MsgIcon::Exclamation, QStringLiteral("Delete All")) != MsgResult::Yes)
        return;
    tryStep([&] { C.data.database().Execute(QStringLiteral("Delete * From SongData")); });
    tryStep([&] { C.data.Refresh(); });
    RecordTotal = 0;
}

}  // namespace sonarium
