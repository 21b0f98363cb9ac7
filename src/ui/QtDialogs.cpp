#include "ui/QtDialogs.h"

#include <QColorDialog>
#include <QCursor>
#include <QFileDialog>
#include <QGuiApplication>
#include <QInputDialog>
#include <QMenu>
#include <QMessageBox>
#include <QPrintDialog>
#include <QTextDocument>
#include <map>

#include "controls/Menu.h"
#include "info/rtf/RtfReader.h"
#include "ui/views/RichTextConvert.h"

namespace sonarium {

namespace {

// A box without a title of its own shows the program's name, as the platform's boxes did.
QString titleOrDefault(const QString& title) {
    return title.isEmpty() ? QGuiApplication::applicationDisplayName() : title;
}

QMessageBox::StandardButtons qtButtons(MsgButtons b) {
    switch (b) {
    case MsgButtons::OK: return QMessageBox::Ok;
    case MsgButtons::OKCancel: return QMessageBox::Ok | QMessageBox::Cancel;
    case MsgButtons::AbortRetryIgnore: return QMessageBox::Abort | QMessageBox::Retry | QMessageBox::Ignore;
    case MsgButtons::YesNoCancel: return QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel;
    case MsgButtons::YesNo: return QMessageBox::Yes | QMessageBox::No;
    case MsgButtons::RetryCancel: return QMessageBox::Retry | QMessageBox::Cancel;
    }
    return QMessageBox::Ok;
}

// The first button is the default, as on the platform the program was made for.
QMessageBox::StandardButton firstButton(MsgButtons b) {
    switch (b) {
    case MsgButtons::OK:
    case MsgButtons::OKCancel: return QMessageBox::Ok;
    case MsgButtons::AbortRetryIgnore: return QMessageBox::Abort;
    case MsgButtons::YesNoCancel:
    case MsgButtons::YesNo: return QMessageBox::Yes;
    case MsgButtons::RetryCancel: return QMessageBox::Retry;
    }
    return QMessageBox::Ok;
}

// What closing the box without a button gives.
MsgResult closedResult(MsgButtons b) {
    switch (b) {
    case MsgButtons::OK: return MsgResult::OK;
    case MsgButtons::AbortRetryIgnore: return MsgResult::Abort;
    case MsgButtons::YesNo: return MsgResult::No;
    default: return MsgResult::Cancel;
    }
}

QMessageBox::Icon qtIcon(MsgIcon icon) {
    switch (icon) {
    case MsgIcon::None: return QMessageBox::NoIcon;
    case MsgIcon::Critical: return QMessageBox::Critical;
    case MsgIcon::Question: return QMessageBox::Question;
    case MsgIcon::Exclamation: return QMessageBox::Warning;
    case MsgIcon::Information: return QMessageBox::Information;
    }
    return QMessageBox::NoIcon;
}

std::optional<MsgResult> resultOf(QMessageBox::StandardButton b) {
    switch (b) {
    case QMessageBox::Ok: return MsgResult::OK;
    case QMessageBox::Cancel: return MsgResult::Cancel;
    case QMessageBox::Abort: return MsgResult::Abort;
    case QMessageBox::Retry: return MsgResult::Retry;
    case QMessageBox::Ignore: return MsgResult::Ignore;
    case QMessageBox::Yes: return MsgResult::Yes;
    case QMessageBox::No: return MsgResult::No;
    default: return std::nullopt;
    }
}

// Visible entries in order; an entry with entries of its own becomes a sub-menu.
void addEntries(QMenu& qmenu, const MenuItem& item, std::map<QAction*, MenuItem*>& chosenBy) {
    for (MenuItem* child : item.children()) {
        if (!child->Visible()) continue;
        if (child->isSeparator()) {
            qmenu.addSeparator();
            continue;
        }
        if (!child->children().empty()) {
            QMenu* sub = qmenu.addMenu(child->Caption());
            sub->setObjectName(child->Name());
            sub->setEnabled(child->Enabled());
            addEntries(*sub, *child, chosenBy);
            continue;
        }
        QString text = child->Caption();
        if (!child->Shortcut().isEmpty()) text += u'\t' + child->Shortcut();  // shown, not bound
        QAction* action = qmenu.addAction(text);
        action->setObjectName(child->Name());
        action->setCheckable(child->Checked());
        action->setChecked(child->Checked());
        action->setEnabled(child->Enabled());
        chosenBy[action] = child;
    }
}

}  // namespace

QStringList QtDialogs::nameFilters(const QString& filter) {
    const QStringList parts = filter.split(u'|');
    QStringList out;
    for (int i = 0; i + 1 < parts.size(); i += 2) {
        QStringList patterns = parts[i + 1].split(u';', Qt::SkipEmptyParts);
        for (QString& p : patterns) p = p.trimmed();
        if (patterns.isEmpty()) continue;
        out << QStringLiteral("%1 (%2)").arg(parts[i], patterns.join(u' '));
    }
    return out;
}

MsgResult QtDialogs::msgBox(const QString& text, MsgButtons buttons, MsgIcon icon, const QString& title) {
    QMessageBox box(qtIcon(icon), titleOrDefault(title), text, qtButtons(buttons), parent_);
    box.setTextFormat(Qt::PlainText);  // the exact text: "<" and "&" are not markup
    box.setDefaultButton(firstButton(buttons));
    box.exec();
    auto clicked = box.standardButton(box.clickedButton());
    return resultOf(clicked).value_or(closedResult(buttons));
}

QString QtDialogs::inputBox(const QString& prompt, const QString& title, const QString& defaultText) {
    QInputDialog dlg(parent_);
    dlg.setInputMode(QInputDialog::TextInput);
    dlg.setWindowTitle(titleOrDefault(title));
    dlg.setLabelText(prompt);
    dlg.setTextValue(defaultText);
    return dlg.exec() == QDialog::Accepted ? dlg.textValue() : QString();
}

QString QtDialogs::fileDialog(const FileDialogRequest& request, bool save) {
    QFileDialog dlg(parent_, request.title, request.initDir);
    // Qt's own dialog matches name filters without regard to case ("*.MDB" shows a.mdb);
    // the desktop's native dialogs do not.
    dlg.setOption(QFileDialog::DontUseNativeDialog);
    // The filter shows the program's own descriptions, not a second copy of the patterns.
    dlg.setOption(QFileDialog::HideNameFilterDetails);
    // Callers ask their own overwrite question where the program has one.
    dlg.setOption(QFileDialog::DontConfirmOverwrite);
    dlg.setAcceptMode(save ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
    // The open dialog also takes a name that does not exist yet: "Create New Database" uses it.
    dlg.setFileMode(QFileDialog::AnyFile);
    const QStringList filters = nameFilters(request.filter);
    if (!filters.isEmpty()) dlg.setNameFilters(filters);
    if (!request.fileName.isEmpty()) dlg.selectFile(request.fileName);
    if (dlg.exec() != QDialog::Accepted) return {};
    return dlg.selectedFiles().value(0);
}

QString QtDialogs::openFile(const FileDialogRequest& request) { return fileDialog(request, false); }

QString QtDialogs::saveFile(const FileDialogRequest& request) { return fileDialog(request, true); }

std::optional<Color> QtDialogs::chooseColor(Color initial) {
    QColor c = QColorDialog::getColor(QColor(initial.r, initial.g, initial.b), parent_);
    if (!c.isValid()) return std::nullopt;
    return Color{c.red(), c.green(), c.blue()};
}

// Printing needs Qt Print Support, which the program does not link yet: the set-up answers as
// if cancelled, and says why once.
void QtDialogs::printPage(const QByteArray& rtf) {
    QTextDocument page;
    fillTextDocument(readRtf(rtf), page);
    page.print(&printer_);
}

bool QtDialogs::printerSetup() {
    QPrintDialog dialog(&printer_, parent_);
    return dialog.exec() == QDialog::Accepted;
}

QString QtDialogs::chooseDirectory(const QString& prompt, const QString& startDir) {
    return QFileDialog::getExistingDirectory(parent_, prompt, startDir, QFileDialog::ShowDirsOnly);
}

MenuItem* QtDialogs::popupMenu(MenuItem& menu) {
    QMenu qmenu(parent_);
    qmenu.setObjectName(menu.Name());
    std::map<QAction*, MenuItem*> chosenBy;
    addEntries(qmenu, menu, chosenBy);
    QAction* chosen = qmenu.exec(QCursor::pos());
    auto it = chosenBy.find(chosen);
    return it == chosenBy.end() ? nullptr : it->second;
}

}  // namespace sonarium
