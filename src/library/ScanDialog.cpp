// FrmGeneral's lists in its add and scan faces: they start from the main window's drive and
// directory each time the dialog comes up, and OK hands the choice back.
#include "controls/Errors.h"
#include "shell/Form1.h"
#include "shell/FrmGeneral.h"

namespace sonarium {

// The file list follows the disk each time too, also when the directory is the one it had.
void Form1::FrmGeneral_Activate() {
    tryStep([&] { frmGeneral.Drive1.setDrive(Drive1.Drive()); });
    tryStep([&] { frmGeneral.Dir1.setPath(Dir1.Path()); });
    tryStep([&] { frmGeneral.File1.setPath(frmGeneral.Dir1.Path()); });
}

// The main window's lists take the choice, so their change handlers run as for the user's own
// pick. With the sub-directory box hidden the dialog is the directory pick for a skin, whose
// answer is the directory itself.
void Form1::FrmGeneral_cmdOK_Click() {
    FrmGeneral& g = frmGeneral;
    M.IncludeSubDirs = false;
    if (g.chkSubs.Value() == 1) M.IncludeSubDirs = true;
    tryStep([&] { Drive1.setDrive(g.Drive1.Drive()); });
    tryStep([&] { Dir1.setPath(g.Dir1.Path()); });
    M.DialogAccepted = true;
    if (!g.chkSubs.Visible()) M.SelectedDir = g.Dir1.Path();
    g.Hide();
}

void Form1::FrmGeneral_cmdCancel_Click() {
    M.DialogAccepted = false;
    frmGeneral.Hide();
}

void Form1::FrmGeneral_CmdClose_Click() { frmGeneral.Hide(); }

void Form1::FrmGeneral_Dir1_Change() {
    tryStep([&] { frmGeneral.File1.setPath(frmGeneral.Dir1.Path()); });
}

// As the main window's drive change: a drive that isn't ready is asked about until the user
// gives up, and the drive list then goes back to the drive of the directory shown.
void Form1::FrmGeneral_Drive1_Change() {
    FrmGeneral& g = frmGeneral;
    const QString oldPath = g.Dir1.Path();
    bool retry;
    do {
        retry = false;
        try {
            g.Dir1.setPath(g.Drive1.Drive());
        } catch (const RuntimeError&) {
            tryStep([&] { g.Dir1.setPath(oldPath); });
            if (C.dialogs.msgBox(QStringLiteral("Not ready reading Drive ") + g.Drive1.Drive().toUpper() +
                                     QStringLiteral(" Retry?"),
                                 MsgButtons::YesNo, MsgIcon::Exclamation,
                                 QStringLiteral("Change Drive")) == MsgResult::Yes)
                retry = true;
            else
                tryStep([&] { g.Drive1.setDrive(g.Dir1.Path()); });
        }
    } while (retry);
    tryStep([&] { g.File1.setPath(g.Dir1.Path()); });
}

}  // namespace sonarium
