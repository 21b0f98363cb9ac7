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
        QString text = {};   // message or prompt; file dialogs: their title; popup: the menu's Name
        QString title = {};  // message and input boxes
    };

    // --- Script (each adds one answer at the end) ---
    ScriptedDialogs& answer(MsgResult result) { return script(Kind::MsgBox, {}, result); }
    ScriptedDialogs& answerInput(const QString& text) { return script(Kind::InputBox, text); }
    // Open or save; "" cancels.
    ScriptedDialogs& answerFile(const QString& fileName) { return script(Kind::OpenFile, fileName); }
    // "" dismisses the menu.
    ScriptedDialogs& answerPopup(const QString& entryName) { return script(Kind::Popup, entryName); }
    // Message boxes with only an OK button take OK without a scripted answer.
    void setAutoAnswerOk(bool on) { autoOk_ = on; }

    // --- Looking in ---
    const std::vector<Shown>& shown() const { return shown_; }
    // The text of each dialog shown, in order.
    QStringList texts() const;
    void clear() { shown_.clear(), script_.clear(); }

    // --- Dialogs ---
    MsgResult msgBox(const QString& text, MsgButtons buttons, MsgIcon, const QString& title) override;
    QString inputBox(const QString& prompt, const QString& title, const QString&) override {
        return take({Kind::InputBox, prompt, title}).text;
    }
    QString openFile(const FileDialogRequest& request) override {
        return take({Kind::OpenFile, request.title}).text;
    }
    QString saveFile(const FileDialogRequest& request) override {
        return take({Kind::SaveFile, request.title}).text;
    }
    MenuItem* popupMenu(MenuItem& menu) override;
    // No test scripts a colour, a printer or a directory: these fail the test and are cancelled.
    std::optional<Color> chooseColor(Color) override {
        take({Kind::Color});
        return std::nullopt;
    }
    bool printerSetup() override { return take({Kind::Printer}).given; }
    QString chooseDirectory(const QString& prompt, const QString&) override {
        return take({Kind::Directory, prompt}).text;
    }

private:
    struct Answer {
        Kind kind = Kind::MsgBox;
        QString text;
        MsgResult result = MsgResult::Cancel;
        bool given = false;  // false: the cancelling answer of an unexpected dialog
    };

    ScriptedDialogs& script(Kind kind, const QString& text, MsgResult result = MsgResult::Cancel) {
        script_.push_back(Answer{kind, text, result, true});
        return *this;
    }
    // Records the dialog and takes the next answer if it is of the dialog's kind; otherwise
    // fails the test and gives the cancelling answer.
    Answer take(Shown shown);

    std::deque<Answer> script_;
    std::vector<Shown> shown_;
    bool autoOk_ = false;
};

}  // namespace sonarium
