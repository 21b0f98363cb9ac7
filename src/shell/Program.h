#pragma once
// The program's own units built once from the components: the module's state and the four
// windows. Main() is the entry procedure.
#include "controls/Components.h"
#include "controls/CurrentDirectory.h"
#include "controls/DriveDirectories.h"
#include "shell/Form1.h"
#include "shell/Form2.h"
#include "shell/FrmGeneral.h"
#include "shell/FrmMiniPlayer.h"
#include "shell/Module1.h"

namespace sonarium {

class Program {
public:
    explicit Program(Components& components);

    // Shows the splash, reads the mode from Config.dat, loads the main window (which runs its
    // whole start), then takes the splash away. The process then lives as long as a window.
    void Main();

    Components& C;
    Module1 M;
    // The program's current directory, where it started.
    CurrentDirectory currentDirectory;
    // Where each drive's folder lists start, shared by the main window's and the dialog's.
    DriveDirectories driveDirectories;
    FrmGeneral frmGeneral;
    Form2 form2;
    FrmMiniPlayer frmMiniPlayer;
    Form1 form1;
};

}  // namespace sonarium
