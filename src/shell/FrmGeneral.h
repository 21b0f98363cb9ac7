#pragma once
// The dialog of many faces: splash and About box, manual add, scan, criteria list and the
// directory pick for skins. Each face is a set of its controls made visible.
#include "controls/Form.h"
#include "controls/Widgets.h"

namespace sonarium {

class FrmGeneral : public Form {
public:
    FrmGeneral();

    // Splash / About
    Panel PanelSplash{"PanelSplash"};
    Label lblTitle{"lblTitle"}, lblVersion{"lblVersion"}, lblTagline{"lblTagline"};
    CommandButton SScmdOK{"SScmdOK"};

    // The Auto-Queue criteria, one line of SQL each.
    ListBox List1{"List1"};

    // Dialog buttons shared by the other faces.
    CommandButton cmdOK{"cmdOK"}, cmdCancel{"cmdCancel"};

    std::vector<Control*> allControls() { return {&PanelSplash, &lblTitle, &lblVersion, &lblTagline, &SScmdOK, &cmdOK, &cmdCancel}; }
};

}  // namespace sonarium
