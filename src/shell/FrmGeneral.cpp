#include "shell/FrmGeneral.h"

#include <QDir>

#include "controls/Errors.h"

namespace sonarium {

FrmGeneral::FrmGeneral(Volumes& volumes, DriveDirectories& drives, const QString& startDir)
    : Form(QStringLiteral("FrmGeneral")),
      Drive1(QStringLiteral("Drive1"), volumes, startDir),
      Dir1(QStringLiteral("Dir1"), volumes, drives, startDir),
      File1(QStringLiteral("File1"), startDir) {
    setCaption(QStringLiteral("Sonarium"));
    design();
    // The About box closes with its OK button.
    SScmdOK.onClick = [this] { Hide(); };
}

// Sizes in twips, 15 to a pixel: a dialog of 400 by 240 pixels. The headings share the top
// line, the file list and the criteria list the left, the drive and directory lists the right;
// the add face's buttons sit under the files, OK and Cancel under the directories.
void FrmGeneral::design() {
    Move(0, 0, 6000, 3600);
    PanelSplash.Move(0, 0, 6000, 3600);
    PanelSplash.setVisible(false);
    for (Control* c : std::initializer_list<Control*>{&lblTitle, &lblVersion, &lblTagline, &SScmdOK})
        c->setContainer(&PanelSplash);
    lblTitle.setCaption(QStringLiteral("Sonarium"));
    lblTitle.setAlignment(Alignment::Center);
    lblTitle.Move(0, 600, 6000, 900);
    lblVersion.setCaption(QStringLiteral("Version 3.4"));
    lblVersion.setAlignment(Alignment::Center);
    lblVersion.Move(0, 1650, 6000, 360);
    lblTagline.setCaption(QStringLiteral("Player / Ripper / Encoder / Decoder / Playlister"));
    lblTagline.setAlignment(Alignment::Center);
    lblTagline.Move(0, 2100, 6000, 360);
    SScmdOK.setCaption(QStringLiteral("OK"));
    SScmdOK.Move(2400, 2850, 1200, 450);

    Label1.setCaption(QStringLiteral("Select a title ..............."));
    Label1.Move(120, 90, 5760, 300);
    lblStartFrom.setCaption(QStringLiteral("Select a drive and directory to start searching from."));
    lblStartFrom.Move(120, 90, 5760, 300);
    lblAutoSet.setCaption(QStringLiteral("Double click to remove a selected criteria"));
    lblAutoSet.Move(120, 90, 5760, 300);

    File1.Move(120, 450, 2760, 2520);
    File1.setPattern(QStringLiteral("*.MP3"));
    File1.setDescription(QStringLiteral("Songs"));
    List1.Move(120, 450, 5760, 2220);
    List1.setDescription(QStringLiteral("Criteria"));
    Drive1.Move(3000, 450, 2880, 330);
    Drive1.setDescription(QStringLiteral("Drive"));
    Dir1.Move(3000, 840, 2880, 1830);
    Dir1.setDescription(QStringLiteral("Folders"));
    chkSubs.Move(3000, 2760, 240, 240);
    chkSubs.setDescription(QStringLiteral("Include Sub-Directories"));
    lblSubs.setCaption(QStringLiteral("Include Sub-Directories"));
    lblSubs.Move(3300, 2760, 2580, 240);

    cmdAdd.setCaption(QStringLiteral("Add/Update"));
    cmdAdd.Move(120, 3105, 1320, 375);
    CmdClose.setCaption(QStringLiteral("Close"));
    CmdClose.Move(1560, 3105, 1320, 375);
    cmdOK.setCaption(QStringLiteral("OK"));
    cmdOK.Move(3240, 3105, 1260, 375);
    cmdCancel.setCaption(QStringLiteral("Cancel"));
    cmdCancel.Move(4620, 3105, 1260, 375);

    setFace(Face::ManualAdd);
}

void FrmGeneral::showControls(std::initializer_list<Control*> controls, bool visible) {
    for (Control* c : controls) c->setVisible(visible);
}

void FrmGeneral::setFace(Face face) {
    const auto show = showControls;
    switch (face) {
    case Face::ManualAdd:
        show({&Drive1, &Dir1, &File1, &Label1, &cmdAdd, &CmdClose}, true);
        show({&lblStartFrom, &cmdOK, &cmdCancel, &List1, &lblAutoSet}, false);
        break;
    case Face::Scan:
        show({&Drive1, &Dir1, &lblStartFrom, &cmdOK, &cmdCancel}, true);
        show({&cmdAdd, &CmdClose, &File1, &Label1}, false);
        break;
    case Face::Criteria:
        show({&List1, &lblAutoSet, &cmdOK}, true);
        show({&cmdAdd, &CmdClose, &Dir1, &Drive1, &File1, &Label1, &lblStartFrom, &cmdCancel}, false);
        break;
    }
}

}  // namespace sonarium
