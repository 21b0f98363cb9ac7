#include "shell/Program.h"

#include "controls/Errors.h"
#include "controls/FileNames.h"
#include "shell/TextFields.h"

namespace sonarium {

Program::Program(Components& components)
    : C(components),
      currentDirectory(components.startDir),
      driveDirectories(components.volumes, currentDirectory.path()),
      frmGeneral(components.volumes, driveDirectories, currentDirectory.path()),
      form2(M, components),
      frmMiniPlayer(M, components),
      form1(M, components, currentDirectory, driveDirectories, frmGeneral, form2, frmMiniPlayer) {}

// Every step that fails is skipped and the next one runs.
void Program::Main() {
    tryStep(C.errors, [&] { frmGeneral.Load(); });
    tryStep(C.errors, [&] { frmGeneral.SScmdOK.setVisible(false); });
    tryStep(C.errors, [&] { frmGeneral.PanelSplash.setVisible(true); });
    tryStep(C.errors, [&] { frmGeneral.Show(C.loop); });
    tryStep(C.errors, [&] { frmGeneral.Refresh(); });
    // Let the splash paint before the slow load.
    tryStep(C.errors, [&] { C.loop.doEvents(); });

    tryStep(C.errors, [&] {
        // Relative to the current directory, as LoadConfig's AppDir is: the two agree.
        const QString file = currentDirectory.filePath(QStringLiteral("Config.dat"));
        if (!fileExists(file)) return;
        TextFieldReader in = TextFieldReader::open(file);
        if (!in.atEnd()) M.MiniMode = in.readInt16();
    });
    // In mini mode the main window is loaded hidden; otherwise its load shows it at the end.
    tryStep(C.errors, [&] {
        if (M.MiniMode == 1) {
            form1.Load();
            form1.setVisible(false);
        }
    });
    tryStep(C.errors, [&] { form1.Load(); });
    tryStep(C.errors, [&] { frmGeneral.PanelSplash.setVisible(false); });
    tryStep(C.errors, [&] { frmGeneral.Unload(); });
}

}  // namespace sonarium
