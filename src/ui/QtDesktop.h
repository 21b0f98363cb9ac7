#pragma once
// The desktop on Qt: fonts from the font database, the primary screen and the pointer in
// twips (15 per pixel, fixed), documents opened by the desktop's viewer, and quitting through
// the application's event loop.
#include <utility>

#include "controls/Desktop.h"

namespace sonarium {

class QtDesktop : public Desktop {
public:
    // `helpPage`: the installed help page's file.
    explicit QtDesktop(QString helpPage) : helpPage_(std::move(helpPage)) {}

    QStringList screenFonts() override;
    QSize screenSizeTwips() override;
    QPoint cursorPosTwips() override;
    bool openDocument(const QString& file) override;
    // The installed help page, in the desktop's viewer; false if it is not there.
    bool openHelp() override;
    // Queued, so the current event (and any handler it waits in) finishes first; the request
    // waits for the application's own loop if that is not running yet.
    void quit(int exitCode) override;

private:
    QString helpPage_;
};

}  // namespace sonarium
