#pragma once
// What the program asks of the desktop beyond windows: fonts, the screen, the pointer,
// opening a document in its viewer, and ending the process.
#include <QPoint>
#include <QSize>
#include <QString>
#include <QStringList>

namespace sonarium {

class Desktop {
public:
    virtual ~Desktop() = default;
    // Names of the screen fonts, in the system's order.
    virtual QStringList screenFonts() = 0;
    // Screen size and pointer position, in twips.
    virtual QSize screenSizeTwips() = 0;
    virtual QPoint cursorPosTwips() = 0;
    // Opens a file in the desktop's viewer without waiting; false when it could not start.
    virtual bool openDocument(const QString& file) = 0;
    // Opens the program's own help page in the desktop's viewer, without waiting.
    virtual bool openHelp() { return false; }
    // Ends the process once the current event is done.
    virtual void quit(int exitCode) = 0;
};

}  // namespace sonarium
