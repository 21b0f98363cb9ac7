#pragma once
// Dialogs for tests: answers are scripted in advance and taken in order, and everything shown
// is recorded for assertions. A dialog shown with no answer of its kind next in the script
// fails the test (with the dialog's text) and gets the cancelling answer, so a test never
// hangs on an unexpected question.
#include <QStringList>
#include <deque>
#include <optional>
#include <vector>

#include "QtPrinters.h"
#include "controls/Dialogs.h"

namespace sonarium {

class ScriptedDialogs : public Dialogs {
public:
    enum class Kind { MsgBox, InputBox, OpenFile, SaveFile, Color, Printer, Directory, Popup };

    struct Shown {
        Kind kind = Kind::MsgBox;
        QString text;   // message or prompt; file dialogs: their title; popup: the menu's Name
        QString title;  // message and input boxes
        MsgButtons buttons = MsgButtons::OK;
        MsgIcon icon = MsgIcon::None;
        QString defaultText;      // input box default; directory pick: start directory
        FileDialogRequest file;   // file dialogs
        std::optional<Color> initialColor;
        QStringList entries;      // popup: Names of the visible entries offered
    };

    ~ScriptedDialogs() override = default;

    // --- Script (each adds one answer at the end) ---
    ScriptedDialogs& answer(MsgResult result);
    ScriptedDialogs& answerInput(const QString& text);
    ScriptedDialogs& answerFile(const QString& fileName);  // open or save; "" cancels
    ScriptedDialogs& answerColor(std::optional<Color> color);
    ScriptedDialogs& answerPrinter(bool ok);
    ScriptedDialogs& answerDirectory(const QString& dir);
    ScriptedDialogs& answerPopup(const QString& entryName);  // "" dismisses the menu
    // Message boxes with only an OK button take OK without a scripted answer.
    void setAutoAnswerOk(bool on) { autoOk_ = on; }

    // --- Looking in ---
    const std::vector<Shown>& shown() const { return shown_; }
    // The text of each dialog shown, in order.
    QStringList texts() const;
    // Scripted answers not taken yet.
    int unanswered() const { return int(script_.size()); }
    void clear() { shown_.clear(), script_.clear(); }

    // --- Dialogs ---
    MsgResult msgBox(const QString& text, MsgButtons buttons, MsgIcon icon, const QString& title) override;
    QString inputBox(const QString& prompt, const QString& title, const QString& defaultText) override;
    QString openFile(const FileDialogRequest& request) override;
    QString saveFile(const FileDialogRequest& request) override;
    std::optional<Color> chooseColor(Color initial) override;
    bool printerSetup() override;
    QString chooseDirectory(const QString& prompt, const QString& startDir) override;
    MenuItem* popupMenu(MenuItem& menu) override;

private:
    enum class AnswerKind { Msg, Text, File, Color, Printer, Directory, Popup };
    struct Answer {
        AnswerKind kind = AnswerKind::Msg;
        MsgResult result = MsgResult::Cancel;
        QString text;
        std::optional<Color> color;
        bool ok = false;
    };

    static Answer answerOf(AnswerKind kind, const QString& text = {});
    // Records the dialog and takes the next answer if it is of the kind wanted; otherwise
    // fails the test and gives nothing.
    std::optional<Answer> take(Shown shown, AnswerKind wanted);
    QString fileDialog(Kind kind, const FileDialogRequest& request);

    std::deque<Answer> script_;
    std::vector<Shown> shown_;
    bool autoOk_ = false;
};

}  // namespace sonarium
