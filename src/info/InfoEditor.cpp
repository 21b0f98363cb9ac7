// The info editor: the viewer's box unlocked, with the font lists and the quit button, for
// writing a song's or a folder's page.
#include "shell/Form1.h"
#include "shell/TextFields.h"

namespace sonarium {

void Form1::wireEditor() {
    mnuEdit.onClick = [this] { mnuEdit_Click(); };
    imgEditInfo.onClick = [this] { mnuEdit.Click(); };
    cmdQuitEditor.onClick = [this] { mnuEdit.Click(); };
    CboFontName.onClick = [this] {
        tryStep([&] { RT.setSelFontName(CboFontName.Text()); });
        RT.SetFocus();
    };
    CboFontSize.onClick = [this] {
        tryStep([&] { RT.setSelFontSize(leadingNumber(CboFontSize.Text())); });
        RT.SetFocus();
    };
}

// Nothing is saved and nothing asked on the way out: the text stays in the box until
// something loads over it.
void Form1::mnuEdit_Click() {
    if (mnuInfo.Checked()) tryStep([&] { mnuInfo.Click(); });
    if (mnuDatabase.Checked()) tryStep([&] { mnuDatabase.Click(); });
    if (!mnuEdit.Checked()) {
        SizeForInfo(false);
        RT.setLocked(false);
        RT.setTabStop(true);
        PanelControls.setVisible(true);
        PanelViewButtons.setVisible(false);
        InfoPanel.setVisible(true);
        mnuEdit.setChecked(true);
        PanelTitles().setVisible(false);
    } else {
        SizeWithoutInfo();
        InfoPanel.setVisible(false);
        mnuEdit.setChecked(false);
        mnuInfo.setEnabled(true);
        PanelTitles().setVisible(true);
    }
}

}  // namespace sonarium
