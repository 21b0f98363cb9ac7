#pragma once
// The small dialog that serves as the punch in/out editor and as the list of CD drives.
#include "controls/Form.h"
#include "controls/Widgets.h"

namespace sonarium {

class Form2 : public Form {
public:
    Form2() : Form(QStringLiteral("Form2")) { setCaption(QStringLiteral("Sonarium")); }
    ListBox List1{"List1"};
};

}  // namespace sonarium
