#pragma once
// Every question, message and file dialog goes through this interface: Qt dialogs in the
// program, a scripted answerer in tests that records what was shown.
#include <QString>
#include <optional>

#include "controls/Control.h"

namespace sonarium {

class MenuItem;

enum class MsgButtons {
    OK = 0,
    OKCancel = 1,
    AbortRetryIgnore = 2,
    YesNoCancel = 3,
    YesNo = 4,
    RetryCancel = 5
};
enum class MsgIcon { None = 0, Critical = 16, Question = 32, Exclamation = 48, Information = 64 };
enum class MsgResult { OK = 1, Cancel = 2, Abort = 3, Retry = 4, Ignore = 5, Yes = 6, No = 7 };

struct FileDialogRequest {
    QString title;
    QString filter;  // "Database|*.MDB", pairs of description and pattern joined by "|"
    QString initDir;
    QString fileName;  // initial name
};

class Dialogs {
public:
    virtual ~Dialogs() = default;

    virtual MsgResult msgBox(const QString& text, MsgButtons buttons, MsgIcon icon, const QString& title) = 0;
    // Returns "" when cancelled, as the platform's input box does.
    virtual QString inputBox(const QString& prompt, const QString& title, const QString& defaultText) = 0;
    // File name chosen, or "" when cancelled.
    virtual QString openFile(const FileDialogRequest& request) = 0;
    virtual QString saveFile(const FileDialogRequest& request) = 0;
    // Colour chosen, or nothing when cancelled.
    virtual std::optional<Color> chooseColor(Color initial) = 0;
    // The printer set-up; false when cancelled.
    virtual bool printerSetup() = 0;
    // Prints a page, given as RTF, on the printer that the set-up chose.
    virtual void printPage(const QByteArray& rtf) {}
    // A directory, or "" when cancelled.
    virtual QString chooseDirectory(const QString& prompt, const QString& startDir) = 0;
    // Opens a menu's entries as a popup at the pointer; returns the entry chosen, or null.
    // The caller runs the entry's click, so the handler runs before the popup call returns.
    virtual MenuItem* popupMenu(MenuItem& menu) = 0;
};

}  // namespace sonarium
