#include "ScriptedDialogs.h"

#include <gtest/gtest.h>

#include "controls/Menu.h"

namespace sonarium {

namespace {

// What closing a box with these buttons gives, the answer when the script gives none.
MsgResult closedResult(MsgButtons b) {
    switch (b) {
    case MsgButtons::OK: return MsgResult::OK;
    case MsgButtons::AbortRetryIgnore: return MsgResult::Abort;
    case MsgButtons::YesNo: return MsgResult::No;
    default: return MsgResult::Cancel;
    }
}

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
    Shown s{Kind::MsgBox, text, title};
    if (autoOk_ && buttons == MsgButtons::OK && (script_.empty() || script_.front().kind != Kind::MsgBox)) {
        shown_.push_back(std::move(s));
        return MsgResult::OK;
    }
    const Answer a = take(std::move(s));
    return a.given ? a.result : closedResult(buttons);
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
