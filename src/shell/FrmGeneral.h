#pragma once
// The dialog of many faces: splash and About box, manual add, scan, criteria list and the
// directory pick for skins. Each face is a set of its controls made visible; the design state
// is the manual add face, and a face that changes it puts it back when the dialog closes.
#include "controls/DirListBox.h"
#include "controls/DriveListBox.h"
#include "controls/FileListBox.h"
#include "controls/Form.h"
#include "controls/Volumes.h"
#include "controls/Widgets.h"

namespace sonarium {

class FrmGeneral : public Form {
public:
    // The drive and directory lists see the machine's volumes, and start on the drive and
    // directory of the process's current directory.
    FrmGeneral(Volumes& volumes, DriveDirectories& drives, const QString& startDir);

    // The faces that use the lists. Each shows its controls and hides those it has no use
    // for; a control it doesn't name keeps its state (the check box for sub-directories is
    // only ever hidden by the directory pick for skins).
    enum class Face { ManualAdd, Scan, Criteria };
    void setFace(Face face);
    static void showControls(std::initializer_list<Control*> controls, bool visible);

    // Splash / About
    Panel PanelSplash{"PanelSplash"};
    Label lblTitle{"lblTitle"}, lblVersion{"lblVersion"}, lblTagline{"lblTagline"};
    CommandButton SScmdOK{"SScmdOK"};

    // Manual add and scan: a start directory, or a file of it.
    DriveListBox Drive1;
    DirListBox Dir1;
    FileListBox File1;
    CheckBox chkSubs{"chkSubs"};
    Label lblSubs{"lblSubs"}, lblStartFrom{"lblStartFrom"}, Label1{"Label1"};
    CommandButton cmdAdd{"cmdAdd"}, CmdClose{"CmdClose"};

    // Criteria list
    ListBox List1{"List1"};
    Label lblAutoSet{"lblAutoSet"};

    // Dialog buttons shared by the faces.
    CommandButton cmdOK{"cmdOK"}, cmdCancel{"cmdCancel"};

    // The splash panel comes after the dialog's controls, so that its view lies over them.
    std::vector<Control*> allControls() {
        return {&Label1,    &lblStartFrom, &lblAutoSet, &File1,      &List1,      &Drive1,
                &Dir1,      &chkSubs,      &lblSubs,    &cmdAdd,     &CmdClose,   &cmdOK,
                &cmdCancel, &PanelSplash,  &lblTitle,   &lblVersion, &lblTagline, &SScmdOK};
    }

private:
    void design();
};

}  // namespace sonarium
