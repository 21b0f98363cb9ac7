// The manual add or update of one file, chosen in FrmGeneral's add face: a file the library
// knows has its record refreshed from its tag, any other gets a new record.
#include "controls/Errors.h"
#include "library/SongFileColumns.h"
#include "shell/Form1.h"
#include "shell/FrmGeneral.h"
#include "shell/TextFields.h"

namespace sonarium {

void Form1::CmdDataAdd_Click() {
    tryStep([&] { frmGeneral.Show(C.loop, true); });
    tryStep([&] { AlignButtons(); });
}

// The record is looked for in the records in view, by walking them, so the one found is the
// current record that the edit changes. Only the columns the file fills are written: what the
// user typed into Tempo and the columns after it stays. The dialog stays open for the next
// file, and the grid is left as it is.
void Form1::FrmGeneral_cmdAdd_Click() {
    FrmGeneral& g = frmGeneral;
    if (g.File1.FileName().isEmpty()) {
        tryStep([&] {
            C.dialogs.msgBox(QStringLiteral("No file selected"), MsgButtons::OK, MsgIcon::Exclamation,
                             QStringLiteral("Add/Update"));
        });
        return;
    }
    const QString fileName = g.File1.FileName();
    const QString dir = g.Dir1.Path();
    const QString entry = (dir.endsWith(u'/') ? dir : dir + u'/') + fileName;
    tryStep([&] { C.mp3.Open(entry, QString()); });

    Recordset& records = C.data.recordset();
    bool found = false;
    tryStep([&] { records.MoveFirst(); });
    tryStep([&] {
        const std::int32_t count = records.RecordCount();
        if (!fitsRecordLoop(count)) return;
        const QString wanted = entry.toUpper();
        for (int i = 1; i <= count; ++i) {
            bool same = false;
            tryStep([&] {
                same = records.Fields(QStringLiteral("Path\\File")).Value().toString().toUpper() == wanted;
            });
            if (same) {
                found = true;
                break;
            }
            tryStep([&] { records.MoveNext(); });
        }
    });
    tryStep([&] { found ? records.Edit() : records.AddNew(); });

    // The length is held in 16 bits here: a file longer than that keeps no length.
    std::int16_t seconds = 0;
    tryStep([&] { seconds = toInt16(C.mp3.Length()); });
    writeFileColumns(C.errors, records, C.mp3, entry, dir, fileName, durationText(seconds));
    tryStep([&] { records.Update(); });
    tryStep([&] {
        C.dialogs.msgBox(found ? QStringLiteral("File Updated") : QStringLiteral("File Added"),
                         MsgButtons::OK, MsgIcon::Information, QStringLiteral("Manual Update"));
    });
    tryStep([&] { C.mp3.Close(); });
}

}  // namespace sonarium
