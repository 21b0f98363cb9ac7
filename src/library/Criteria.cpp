// The Auto-Queue criteria: lines of a Where clause built from values in the grid, kept in
// FrmGeneral's List1 in the order of entry. They join by plain concatenation, each line ending
// in a blank, and nothing groups them: the engine's own precedence (And before Or) decides, so
// an exclusion applies only to the alternative just before it. Values go in as they stand, so *
// and ? act as wild cards and a double quote breaks the statement.
#include "controls/Errors.h"
#include "shell/Form1.h"
#include "shell/FrmGeneral.h"

namespace sonarium {

namespace {

const QString SelectFromSongData = QStringLiteral("Select * From SongData ");

}  // namespace

void Form1::wireCriteria() {
    mnuAdd.onClick = [this] { AddCriterion(QStringLiteral("Where")); };
    mnuExclude.onClick = [this] { AddCriterion(QStringLiteral("And Not")); };
    mnuClearCriteria.onClick = [this] { mnuClearCriteria_Click(); };
    mnuViewCriteria.onClick = [this] { mnuViewCriteria_Click(); };
    mnuFilterAutoSet.onClick = [this] { mnuFilterAutoSet_Click(); };
    cmdAutoSet.onClick = [this] { cmdAutoSet_Click(); };
    frmGeneral.List1.onDblClick = [this] { FrmGeneral_List1_DblClick(); };
}

// The value is the current record's, read from the record set: a null value, or no current
// record at all, gives an empty pattern. The first line of a list is the Where line, any later
// one an alternative; an exclusion is never first, as its menu entry is off on an empty list.
void Form1::AddCriterion(const QString& kind) {
    ListBox& list = frmGeneral.List1;
    QString field, value;
    tryStep([&] { field = C.data.recordset().Fields(MenuColumn).Name(); });
    tryStep([&] { value = C.data.recordset().Fields(MenuColumn).Value().toString(); });
    QString start = kind;
    if (kind == QStringLiteral("Where") && list.ListCount() > 0) start = QStringLiteral("Or");
    tryStep([&] {
        list.AddItem(start + QStringLiteral(" [") + field + QStringLiteral("] Like (\"") + value +
                     QStringLiteral("\") "));
    });
}

void Form1::mnuClearCriteria_Click() {
    if (C.dialogs.msgBox(QStringLiteral("Clear Criteria"), MsgButtons::OKCancel, MsgIcon::Exclamation,
                         QStringLiteral("Clear Criteria")) == MsgResult::OK)
        frmGeneral.List1.Clear();
}

// OK on this face takes its usual path too: the dialog's drive and directory go to this
// window's lists. Closing puts back the controls of the add face, but not its Cancel button.
void Form1::mnuViewCriteria_Click() {
    FrmGeneral& g = frmGeneral;
    tryStep([&] { g.setFace(FrmGeneral::Face::Criteria); });
    tryStep([&] { g.Show(C.loop, true); });
    FrmGeneral::showControls({&g.cmdAdd, &g.CmdClose, &g.Dir1, &g.Drive1, &g.File1, &g.Label1}, true);
    FrmGeneral::showControls({&g.List1, &g.lblAutoSet, &g.cmdOK}, false);
}

// Removing the first of several lines makes the next one the Where line, by cutting its start
// off, and moves it to the end of the list. An exclusion loses its negation on the way. With
// more than two lines the list then starts with Or or And Not, which the engine refuses until
// the user clears it.
void Form1::FrmGeneral_List1_DblClick() {
    ListBox& list = frmGeneral.List1;
    if (list.ListIndex() != 0 || list.ListCount() <= 1) {
        tryStep([&] { list.RemoveItem(list.ListIndex()); });
        return;
    }
    tryStep([&] { list.RemoveItem(0); });
    QString line;
    tryStep([&] {
        list.setListIndex(0);
        line = list.Text();
    });
    if (line.startsWith(QStringLiteral("Or")))
        line = QStringLiteral("Where") + line.mid(2);
    else
        line = QStringLiteral("Where") + line.mid(7);
    tryStep([&] { list.RemoveItem(list.ListIndex()); });
    tryStep([&] { list.AddItem(line); });
}

// Each line is selected in turn as it is read, so the selection ends on the last one.
QString Form1::JoinCriteria() {
    ListBox& list = frmGeneral.List1;
    QString joined;
    for (int i = 0; i < list.ListCount(); ++i) {
        tryStep([&] {
            list.setListIndex(i);
            joined += list.Text();
        });
    }
    return joined;
}

void Form1::mnuFilterAutoSet_Click() {
    if (frmGeneral.List1.ListCount() == 0) return;
    // The entry is off while the menu offers the removal; a caption left from an earlier menu
    // still gets here, and then it removes the filter as that command would.
    if (mnuFilter.Caption() == QStringLiteral("Remove Filter")) {
        mnuFilter_Click();
        return;
    }
    SqlSelect = SelectFromSongData + JoinCriteria();
    tryStep([&] { C.data.setRecordSource(SqlSelect + u' ' + SqlOrder); });
    tryStep([&] { C.data.Refresh(); });
    tryStep([&] { UpdateRecordCount(); });
    FilterOn = true;
    tryStep([&] { Timer2.setEnabled(true); });
    tryStep([&] { lblFilter.setCaption(QStringLiteral("Auto-Queue")); });
    for (int i = 1; i <= 14; ++i) tryStep([&] { imgButon[i].setPicture(Indent.picture()); });
    tryStep([&] { imgButon[OrderColumn].setPicture(Button.picture()); });
    tryStep([&] { imgButon[MenuColumn].setPicture(ButtonBlue.picture()); });
}

// The matching records join the queue behind what it holds, in the grid's order. A statement
// the engine refuses leaves the grid on what it showed, and that whole view is queued. Past
// the queue's last directory slot the rows come without a directory. The grid then shows the
// criteria's records when a filter was on, though its label and buttons keep the old filter.
void Form1::cmdAutoSet_Click() {
    if (frmGeneral.List1.ListCount() == 0) {
        tryStep([&] {
            C.dialogs.msgBox(QStringLiteral("Auto-Queue is empty"), MsgButtons::OK, MsgIcon::Exclamation,
                             QStringLiteral("Auto-Queue"));
        });
        return;
    }
    SqlSelect = SelectFromSongData + JoinCriteria();
    Recordset& records = C.data.recordset();
    tryStep([&] { C.data.setRecordSource(SqlSelect + u' ' + SqlOrder); });
    tryStep([&] { C.data.Refresh(); });
    tryStep([&] { UpdateRecordCount(); });
    tryStep([&] { records.MoveFirst(); });
    tryStep([&] {
        const std::int32_t count = records.RecordCount();
        for (std::int32_t i = 1; i <= count; ++i) {
            tryStep([&] { lstSongs.AddItem(records.Fields(QStringLiteral("File")).Value().toString()); });
            tryStep([&] {
                SongPathOf(lstSongs.ListCount() - 1) =
                    records.Fields(QStringLiteral("Path")).Value().toString() + u'/';
            });
            tryStep([&] { records.MoveNext(); });
        }
    });
    tryStep([&] { GetTotTime(); });
    if (FilterOn)
        tryStep([&] { C.data.setRecordSource(SqlSelect + u' ' + SqlOrder); });
    else
        tryStep([&] { C.data.setRecordSource(QStringLiteral("Select * From SongData") + u' ' + SqlOrder); });
    tryStep([&] { C.data.Refresh(); });
    tryStep([&] { UpdateRecordCount(); });
    tryStep([&] { Timer2.setEnabled(true); });
}

}  // namespace sonarium
