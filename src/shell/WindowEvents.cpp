// The main window's focus, keys and Help menu.
#include "controls/Errors.h"
#include "shell/Form1.h"
#include "shell/FrmGeneral.h"
#include "shell/FrmMiniPlayer.h"

namespace sonarium {

namespace {
constexpr int KeyF4 = 115;
}

void Form1::Form_Activate() {
    if (DatabaseAttached == 0) {
        // The library is attached on the first activation, not at load, so a start in mini
        // mode opens it only when the main window first comes up.
        tryStep([&] { C.data.database().Close(); });
        tryStep([&] { C.data.setDatabaseName(M.DatabasePath); });
        tryStep([&] { C.data.setRecordSource(QStringLiteral("SongData")); });
        tryStep([&] { C.data.Refresh(); });
        tryStep([&] { UpdateRecordCount(); });
        DatabaseAttached = 1;
        tryStep([&] { imgButon_Click(1); });
        return;
    }
    tryStep([&] {
        const Picture& mini = frmMiniPlayer.Photo.picture();
        Photo.setPicture(mini.isNull() ? imgMpeg3.picture() : mini);
    });
    tryStep([&] {
        if (M.ReturnedFromMini) {
            M.ReturnedFromMini = false;
            PanelPhoto.setVisible(true);
        }
    });
}

// F4 starts or stops the song, unless the editor or the library has the window.
void Form1::Form_KeyDown(int& keyCode, int shift) {
    if (keyCode != KeyF4) return;
    if (mnuEdit.Checked() || mnuDatabase.Checked()) return;
    tryStep([&] {
        if (M.SongPlaying)
            BtnStop_MouseUp(LeftButton, 0, 0, 0);
        else
            BtnPlay_MouseUp(LeftButton, 0, 0, 0);
    });
    keyCode = 0;
}

void Form1::mnuContents_Click() {
    tryStep([&] {
        if (!C.desktop.openHelp())
            throw RuntimeError(RuntimeError::FileNotFound,
                               QStringLiteral("The help page could not be opened"));
    });
}

void Form1::mnuAbout_Click() {
    tryStep([&] { frmGeneral.PanelSplash.setVisible(true); });
    tryStep([&] { frmGeneral.SScmdOK.setVisible(true); });
    tryStep([&] { frmGeneral.Show(C.loop, true); });
    tryStep([&] { frmGeneral.PanelSplash.setVisible(false); });
}

}  // namespace sonarium
