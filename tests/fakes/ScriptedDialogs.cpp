#include "ScriptedDialogs.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "controls/Menu.h"

namespace sonarium {

namespace {

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

}  // namespace

QStringList ScriptedDialogs::texts() const {
    QStringList out;
    for (const Shown& s : shown_) out << s.text;
    return out;
}

ScriptedDialogs::Answer ScriptedDialogs::take(Shown shown) {
    static const char* const kindNames[] = {"message box",      "input box",     "open-file dialog",
                                            "save-file dialog", "colour dialog", "printer dialog",
                                            "directory dialog", "popup menu"};
    QString what = QStringLiteral("%1 \"%2\"").arg(QLatin1String(kindNames[int(shown.kind)]), shown.text);
    if (!shown.title.isEmpty()) what += QStringLiteral(" (title \"%1\")").arg(shown.title);
    const Kind kind = shown.kind;
    shown_.push_back(std::move(shown));
    // A file answer serves the open and the save dialog alike.
    const auto fits = [kind](Kind k) { return k == kind || (k == Kind::OpenFile && kind == Kind::SaveFile); };
    if (script_.empty() || !fits(script_.front().kind)) {
        ADD_FAILURE() << "Unexpected " << what.toStdString()
                      << (script_.empty() ? ": no scripted answer left"
                                          : ": the next scripted answer is for another kind of dialog");
        return {};
    }
    Answer a = script_.front();
    script_.pop_front();
    return a;
}

MsgResult ScriptedDialogs::msgBox(const QString& text, MsgButtons buttons, MsgIcon, const QString& title) {
    const std::vector<MsgResult> possible = possibleResults(buttons);
    Shown s{Kind::MsgBox, text, title, buttons};
    if (autoOk_ && buttons == MsgButtons::OK && (script_.empty() || script_.front().kind != Kind::MsgBox)) {
        shown_.push_back(std::move(s));
        return MsgResult::OK;
    }
    const Answer a = take(std::move(s));
    if (!a.given) return possible.front();
    if (std::find(possible.begin(), possible.end(), a.result) == possible.end()) {
        ADD_FAILURE() << "Scripted answer " << int(a.result) << " is not a button of the message box \""
                      << text.toStdString() << "\"";
        return possible.front();
    }
    return a.result;
}

MenuItem* ScriptedDialogs::popupMenu(MenuItem& menu) {
    const Answer a = take({Kind::Popup, menu.Name()});
    if (a.text.isEmpty()) return nullptr;
    MenuItem* chosen = findEntry(menu, a.text);
    if (!chosen)
        ADD_FAILURE() << "Popup menu " << menu.Name().toStdString() << " offers no visible, enabled entry "
                      << a.text.toStdString();
    return chosen;
}

}  // namespace sonarium
