#include "ScriptedDialogs.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "controls/Menu.h"

namespace sonarium {

namespace {

const char* kindName(ScriptedDialogs::Kind k) {
    switch (k) {
    case ScriptedDialogs::Kind::MsgBox: return "message box";
    case ScriptedDialogs::Kind::InputBox: return "input box";
    case ScriptedDialogs::Kind::OpenFile: return "open-file dialog";
    case ScriptedDialogs::Kind::SaveFile: return "save-file dialog";
    case ScriptedDialogs::Kind::Color: return "colour dialog";
    case ScriptedDialogs::Kind::Printer: return "printer dialog";
    case ScriptedDialogs::Kind::Directory: return "directory dialog";
    case ScriptedDialogs::Kind::Popup: return "popup menu";
    }
    return "dialog";
}

// The results a box with these buttons can give; the first is what closing it gives.
std::vector<MsgResult> possibleResults(MsgButtons b) {
    switch (b) {
    case MsgButtons::OK: return {MsgResult::OK};
    case MsgButtons::OKCancel: return {MsgResult::Cancel, MsgResult::OK};
    case MsgButtons::AbortRetryIgnore: return {MsgResult::Abort, MsgResult::Retry, MsgResult::Ignore};
    case MsgButtons::YesNoCancel: return {MsgResult::Cancel, MsgResult::Yes, MsgResult::No};
    case MsgButtons::YesNo: return {MsgResult::No, MsgResult::Yes};
    case MsgButtons::RetryCancel: return {MsgResult::Cancel, MsgResult::Retry};
    }
    return {MsgResult::Cancel};
}

// The entry of that Name among the visible, enabled entries, looking into visible sub-menus.
MenuItem* findEntry(MenuItem& menu, const QString& name) {
    for (MenuItem* child : menu.children()) {
        if (!child->Visible()) continue;
        if (child->Name() == name && child->Enabled() && !child->isSeparator()) return child;
        if (MenuItem* found = findEntry(*child, name)) return found;
    }
    return nullptr;
}

ScriptedDialogs::Shown shownOf(ScriptedDialogs::Kind kind, const QString& text = {},
                                const QString& title = {}) {
    ScriptedDialogs::Shown s;
    s.kind = kind;
    s.text = text;
    s.title = title;
    return s;
}

}  // namespace

ScriptedDialogs::Answer ScriptedDialogs::answerOf(AnswerKind kind, const QString& text) {
    Answer a;
    a.kind = kind;
    a.text = text;
    return a;
}

ScriptedDialogs& ScriptedDialogs::answer(MsgResult result) {
    Answer a = answerOf(AnswerKind::Msg);
    a.result = result;
    script_.push_back(a);
    return *this;
}

ScriptedDialogs& ScriptedDialogs::answerInput(const QString& text) {
    script_.push_back(answerOf(AnswerKind::Text, text));
    return *this;
}

ScriptedDialogs& ScriptedDialogs::answerFile(const QString& fileName) {
    script_.push_back(answerOf(AnswerKind::File, fileName));
    return *this;
}

ScriptedDialogs& ScriptedDialogs::answerColor(std::optional<Color> color) {
    Answer a = answerOf(AnswerKind::Color);
    a.color = color;
    script_.push_back(a);
    return *this;
}

ScriptedDialogs& ScriptedDialogs::answerPrinter(bool ok) {
    Answer a = answerOf(AnswerKind::Printer);
    a.ok = ok;
    script_.push_back(a);
    return *this;
}

ScriptedDialogs& ScriptedDialogs::answerDirectory(const QString& dir) {
    script_.push_back(answerOf(AnswerKind::Directory, dir));
    return *this;
}

ScriptedDialogs& ScriptedDialogs::answerPopup(const QString& entryName) {
    script_.push_back(answerOf(AnswerKind::Popup, entryName));
    return *this;
}

QStringList ScriptedDialogs::texts() const {
    QStringList out;
    for (const Shown& s : shown_) out << s.text;
    return out;
}

std::optional<ScriptedDialogs::Answer> ScriptedDialogs::take(Shown shown, AnswerKind wanted) {
    QString what = QStringLiteral("%1 \"%2\"").arg(QLatin1String(kindName(shown.kind)), shown.text);
    if (!shown.title.isEmpty()) what += QStringLiteral(" (title \"%1\")").arg(shown.title);
    shown_.push_back(std::move(shown));
    if (script_.empty()) {
        ADD_FAILURE() << "Unexpected " << what.toStdString() << ": no scripted answer left";
        return std::nullopt;
    }
    if (script_.front().kind != wanted) {
        ADD_FAILURE() << "Unexpected " << what.toStdString()
                      << ": the next scripted answer is for another kind of dialog";
        return std::nullopt;
    }
    Answer a = script_.front();
    script_.pop_front();
    return a;
}

MsgResult ScriptedDialogs::msgBox(const QString& text, MsgButtons buttons, MsgIcon icon,
                                  const QString& title) {
    std::vector<MsgResult> possible = possibleResults(buttons);
    Shown s = shownOf(Kind::MsgBox, text, title);
    s.buttons = buttons;
    s.icon = icon;
    if (autoOk_ && buttons == MsgButtons::OK && (script_.empty() || script_.front().kind != AnswerKind::Msg)) {
        shown_.push_back(std::move(s));
        return MsgResult::OK;
    }
    auto a = take(std::move(s), AnswerKind::Msg);
    if (!a) return possible.front();
    if (std::find(possible.begin(), possible.end(), a->result) == possible.end()) {
        ADD_FAILURE() << "Scripted answer " << int(a->result) << " is not a button of the message box \""
                      << text.toStdString() << "\"";
        return possible.front();
    }
    return a->result;
}

QString ScriptedDialogs::inputBox(const QString& prompt, const QString& title, const QString& defaultText) {
    Shown s = shownOf(Kind::InputBox, prompt, title);
    s.defaultText = defaultText;
    auto a = take(std::move(s), AnswerKind::Text);
    return a ? a->text : QString();
}

QString ScriptedDialogs::fileDialog(Kind kind, const FileDialogRequest& request) {
    Shown s = shownOf(kind, request.title);
    s.file = request;
    auto a = take(std::move(s), AnswerKind::File);
    return a ? a->text : QString();
}

QString ScriptedDialogs::openFile(const FileDialogRequest& request) { return fileDialog(Kind::OpenFile, request); }

QString ScriptedDialogs::saveFile(const FileDialogRequest& request) { return fileDialog(Kind::SaveFile, request); }

std::optional<Color> ScriptedDialogs::chooseColor(Color initial) {
    Shown s = shownOf(Kind::Color);
    s.initialColor = initial;
    auto a = take(std::move(s), AnswerKind::Color);
    return a ? a->color : std::nullopt;
}

bool ScriptedDialogs::printerSetup() {
    auto a = take(shownOf(Kind::Printer), AnswerKind::Printer);
    return a && a->ok;
}

QString ScriptedDialogs::chooseDirectory(const QString& prompt, const QString& startDir) {
    Shown s = shownOf(Kind::Directory, prompt);
    s.defaultText = startDir;
    auto a = take(std::move(s), AnswerKind::Directory);
    return a ? a->text : QString();
}

MenuItem* ScriptedDialogs::popupMenu(MenuItem& menu) {
    Shown s = shownOf(Kind::Popup, menu.Name());
    for (MenuItem* child : menu.children())
        if (child->Visible()) s.entries << child->Name();
    QStringList offered = s.entries;
    auto a = take(std::move(s), AnswerKind::Popup);
    if (!a || a->text.isEmpty()) return nullptr;
    MenuItem* chosen = findEntry(menu, a->text);
    if (!chosen)
        ADD_FAILURE() << "Popup menu " << menu.Name().toStdString() << " offers no visible, enabled entry "
                      << a->text.toStdString() << " (offered: " << offered.join(u',').toStdString() << ")";
    return chosen;
}

}  // namespace sonarium
