#pragma once
// The desktop on Qt: fonts from the font database, the primary screen and the pointer in
// twips (15 per pixel, fixed), documents opened by the desktop's viewer, and quitting through
// the application's event loop.
#include "controls/Desktop.h"

namespace sonarium {

class QtDesktop : public Desktop {
public:
    QStringList screenFonts() override;
    QSize screenSizeTwips() override;
    QPoint cursorPosTwips() override;
    bool openDocument(const QString& file) override;
    // The help page is built into the program; the viewer gets a copy of it written to the
    // user's cache directory, as a viewer cannot read the program's resources.
    bool openHelp() override;
    // Queued, so the current event (and any handler it waits in) finishes first; the request
    // waits for the application's own loop if that is not running yet.
    void quit(int exitCode) override;
};

}  // namespace sonarium
