#include "shell/Form1Menus.h"

namespace sonarium {

Form1Menus::Form1Menus() {
    // The popups are hidden menus: never in the bar, only opened by their buttons.
    for (MenuItem* popup : {&mnuLoop, &mnuShuffle, &mnuStick, &mnuCriteria, &mnuPhotosize})
        popup->setVisible(false);
    mnuQuit.setShortcut(QStringLiteral("Ctrl+Q"));
}

}  // namespace sonarium
