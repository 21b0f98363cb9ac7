// The library scanner: a walk over a directory tree that adds every MP3 file whose full name
// the library doesn't know yet, with its tag and length as the player reads them.
#include <QFileInfo>

#include "controls/Errors.h"
#include "library/KnownPaths.h"
#include "library/SongFileColumns.h"
#include "shell/Form1.h"
#include "shell/FrmGeneral.h"
#include "shell/TextFields.h"

namespace sonarium {

namespace {

QString withSlash(const QString& dir) { return dir.endsWith(u'/') ? dir : dir + u'/'; }

// One file of the walk: a name not known gets a record. The known names grow with each new
// one, even when the library refused it; the count of records has then not grown, so the new
// name takes the place of the last one known.
void scanFile(Form1& f, const QString& entry, const QString& fileName) {
    Recordset& records = f.C.data.recordset();
    f.tryStep([&] { f.C.mp3.Open(entry, QString()); });
    bool known = false;
    f.tryStep([&] {
        const std::int32_t count = records.RecordCount();
        known = fitsRecordLoop(count) && f.KnownPaths->contains(entry, count);
    });
    // A known file stays open in the player until the next Open.
    if (known) return;

    f.tryStep([&] { records.AddNew(); });
    std::int32_t seconds = 0;
    f.tryStep([&] { seconds = toInt32(f.C.mp3.Length()); });
    f.SongLength = seconds;
    f.M.SongSeconds = seconds;
    writeFileColumns(f.C.errors, records, f.C.mp3, entry, f.Dir1.Path(), fileName, durationText(seconds));
    f.tryStep([&] { records.Update(); });
    f.tryStep([&] { f.KnownPaths->resize(records.RecordCount()); });
    f.tryStep([&] { f.KnownPaths->set(records.RecordCount(), entry); });
    f.NewTitles += 1;
    f.tryStep([&] { f.C.mp3.Close(); });
}

}  // namespace

void Form1::wireScanner() {
    KnownPaths = std::make_shared<KnownPathList>();
    cmdSearch.onClick = [this] { cmdSearch_Click(); };
    CmdDataAdd.onClick = [this] { CmdDataAdd_Click(); };
    frmGeneral.onActivate = [this] { FrmGeneral_Activate(); };
    frmGeneral.cmdOK.onClick = [this] { FrmGeneral_cmdOK_Click(); };
    frmGeneral.cmdCancel.onClick = [this] { FrmGeneral_cmdCancel_Click(); };
    frmGeneral.CmdClose.onClick = [this] { FrmGeneral_CmdClose_Click(); };
    frmGeneral.cmdAdd.onClick = [this] { FrmGeneral_cmdAdd_Click(); };
    frmGeneral.Drive1.onChange = [this] { FrmGeneral_Drive1_Change(); };
    frmGeneral.Dir1.onChange = [this] { FrmGeneral_Dir1_Change(); };
}

// A click while a scan runs is its cancel button.
void Form1::cmdSearch_Click() {
    if (SearchRunning) {
        SearchRunning = false;
        return;
    }
    tryStep([&] { frmGeneral.setFace(FrmGeneral::Face::Scan); });
    M.DialogAccepted = false;
    tryStep([&] { frmGeneral.Show(C.loop, true); });
    FrmGeneral& g = frmGeneral;
    FrmGeneral::showControls({&g.lblStartFrom, &g.cmdCancel, &g.cmdOK}, false);
    FrmGeneral::showControls({&g.cmdAdd, &g.CmdClose, &g.Dir1, &g.Drive1, &g.File1, &g.Label1}, true);
    if (!M.DialogAccepted) return;

    tryStep([&] { cmdSearch.setPicture(imgCancelSearch.picture()); });
    DoSearch();
    // The grid comes back in its order, without any filter it had.
    if (!SqlOrder.isEmpty()) {
        tryStep([&] { C.data.setRecordSource(QStringLiteral("Select * From SongData ") + SqlOrder); });
        tryStep([&] { C.data.Refresh(); });
    }
    tryStep([&] { UpdateRecordCount(); });
    tryStep([&] {
        C.dialogs.msgBox(QString::number(NewTitles) + QStringLiteral(" new titles found"), MsgButtons::OK,
                         MsgIcon::Information, QStringLiteral("Auto Update"));
    });
    tryStep([&] { cmdSearch.setPicture(imgAutoUpdate.picture()); });
    tryStep([&] { AlignButtons(); });
}

// The known names are those of the records in view now: with a filter in force, only the
// filtered ones. The walk starts from the drive, not the chosen directory (see ScanDirectory).
void Form1::DoSearch() {
    Recordset& records = C.data.recordset();
    tryStep([&] {
        const std::int32_t count = records.RecordCount();
        KnownPaths->resize(-1);
        KnownPaths->resize(count);
    });
    tryStep([&] {
        const std::int32_t count = records.RecordCount();
        if (count <= 0) return;
        records.MoveFirst();
        if (!fitsRecordLoop(count)) return;
        for (int i = 1; i <= count; ++i) {
            tryStep(
                [&] { KnownPaths->set(i, records.Fields(QStringLiteral("Path\\File")).Value().toString()); });
            tryStep([&] { records.MoveNext(); });
        }
    });
    NewTitles = 0;
    tryStep([&] { Fillist.setPattern(QStringLiteral("*.MP3")); });
    QString start = Drive1.Drive(), backUp;
    std::int32_t dirCount = Dir1.ListCount();
    ScanDirectory(start, dirCount, backUp);
    tryStep([&] { Fillist.setPath(Dir1.Path()); });
    Dir1.setVisible(true);
    SearchRunning = false;
}

// Events are let through once per directory, on entering it: a cancel takes effect there. A
// directory's sub-directories go from the last in the list to the first, each walked whole
// before the next, and its own files come after them all.
//
// The first level is given the drive: moving the list to it lands in the drive's current
// directory, whose sub-directories are then walked, as many as the chosen directory has, each
// coming back to the chosen directory, which then has its files read. From the drive's current
// directory that is the whole tree.
//
// A walk that is told to stop returns true from the directory it was entering; the level
// above returns at once with false, and the levels above that leave their loops and still
// read the files of where the list was left.
bool Form1::ScanDirectory(QString& newPath, std::int32_t& dirCount, QString& backUp) {
    const bool result = false;
    SearchRunning = true;
    tryStep([&] { C.loop.doEvents(); });
    if (!SearchRunning) return true;

    int toPeek = Dir1.ListCount();
    if (!M.IncludeSubDirs) toPeek = 0;
    bool abandon = false;
    while (toPeek >= 1 && SearchRunning) {
        QString oldPath = Dir1.Path();
        tryStep([&] { Dir1.setPath(newPath); });
        if (Dir1.ListCount() >= 1) {
            tryStep([&] { Dir1.setPath(Dir1.List(toPeek - 1)); });
            // A directory the walk is already in is not walked again: a link back up the tree,
            // or a child that could not be entered, which leaves the list where it was, would
            // otherwise recurse without end.
            QString child = Dir1.Path();
            const QString real = QFileInfo(child).canonicalFilePath();
            if (!ScanTrail.contains(real)) {
                ScanTrail << real;
                abandon = ScanDirectory(child, dirCount, oldPath);
                ScanTrail.removeLast();
            } else {
                tryStep([&] { Dir1.setPath(oldPath); });  // as the child's return would have
            }
        }
        toPeek -= 1;
        if (abandon) return result;
    }

    // A directory's records are committed together: no events run inside the loop, so nothing
    // else sees the library while the transaction is open.
    if (Fillist.ListCount() != 0) {
        const QString thePath = withSlash(Dir1.Path());
        const int files = Fillist.ListCount();
        bool inTransaction = false;
        tryStep([&] {
            C.data.database().BeginTrans();
            inTransaction = true;
        });
        for (int ind = 0; ind < files; ++ind) {
            const QString name = Fillist.List(ind);
            scanFile(*this, thePath + name, name);
        }
        if (inTransaction) tryStep([&] { C.data.database().CommitTrans(); });
    }
    if (!backUp.isEmpty()) tryStep([&] { Dir1.setPath(backUp); });
    return result;
}

}  // namespace sonarium
