#include "shell/Program.h"

#include <QDir>

#include "controls/Errors.h"
#include "controls/FileNames.h"
#include "shell/TextFields.h"

namespace sonarium {

Program::Program(Components& components)
    : C(components),
      driveDirectories(components.volumes, components.startDir),
      frmGeneral(components.volumes, driveDirectories),
      form1(M, components, driveDirectories, frmGeneral, form2, frmMiniPlayer) {}

// Every step that fails is skipped and the next one runs.
void Program::Main() {
    auto step = [](const std::function<void()>& s) { tryStep(s); };
    step([&] { frmGeneral.Load(); });
    step([&] { frmGeneral.SScmdOK.setVisible(false); });
    step([&] { frmGeneral.PanelSplash.setVisible(true); });
    step([&] { frmGeneral.Show(C.loop); });
    step([&] { frmGeneral.Refresh(); });
    // Let the splash paint before the slow load.
    step([&] { C.loop.doEvents(); });

    step([&] {
        // Relative to the current directory, as LoadConfig's AppDir is: the two agree.
        const QString file = QDir::current().filePath(QStringLiteral("Config.dat"));
        if (!fileExists(file)) return;
        TextFieldReader in = TextFieldReader::open(file);
        if (!in.atEnd()) M.MiniMode = in.readInt16();
    });
    // In mini mode the main window is loaded hidden; otherwise its load shows it at the end.
    step([&] {
        if (M.MiniMode == 1) {
            form1.Load();
            form1.setVisible(false);
        }
    });
    step([&] { form1.Load(); });
    step([&] { frmGeneral.PanelSplash.setVisible(false); });
    step([&] { frmGeneral.Unload(); });
}

}  // namespace sonarium
