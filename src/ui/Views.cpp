#include "ui/Views.h"

#include <QApplication>

#include "shell/Program.h"
#include "ui/FormWindow.h"
#include "ui/GeneralWindow.h"
#include "ui/MainWindow.h"
#include "ui/MiniPlayerWindow.h"
#include "ui/views/HiFiLook.h"

namespace sonarium {

Views::Views(Program& program) {
    if (auto* app = qobject_cast<QApplication*>(QCoreApplication::instance())) hifi::install(*app);
    main_ = std::make_unique<MainWindow>(program.form1);
    // The mini player stands on its own: it is the program's window while the main one hides.
    mini_ = std::make_unique<MiniPlayerWindow>(program.frmMiniPlayer, program.C.errors);
    general_ = std::make_unique<GeneralWindow>(program.frmGeneral, program.C.errors, main_.get());
    form2_ = std::make_unique<FormWindow>(program.form2, program.form2.allControls(), program.C.errors,
                                          main_.get(), Qt::Dialog);
}

Views::~Views() = default;

}  // namespace sonarium
