#pragma once
// The program's dialogs on Qt Widgets: message and input boxes, file, colour and directory
// dialogs, and popup menus built from the menu models. Each dialog is modal to the parent
// widget set here (none at first) and runs its own nested event loop until answered.
#include <QPointer>
#include <QPrinter>
#include <QStringList>
#include <QWidget>

#include "controls/Dialogs.h"

namespace sonarium {

class QtDialogs : public Dialogs {
public:
    explicit QtDialogs(QWidget* parent = nullptr) : parent_(parent) {}
    void setParentWidget(QWidget* parent) { parent_ = parent; }

    // "Database|*.MDB|All|*.*" becomes {"Database (*.MDB)", "All (*.*)"}; several patterns of
    // one entry ("*.BMP;*.GIF") are joined by blanks. A description without a pattern is dropped.
    static QStringList nameFilters(const QString& filter);

    MsgResult msgBox(const QString& text, MsgButtons buttons, MsgIcon icon, const QString& title) override;
    QString inputBox(const QString& prompt, const QString& title, const QString& defaultText) override;
    QString openFile(const FileDialogRequest& request) override;
    QString saveFile(const FileDialogRequest& request) override;
    std::optional<Color> chooseColor(Color initial) override;
    bool printerSetup() override;
    void printPage(const QByteArray& rtf) override;
    QString chooseDirectory(const QString& prompt, const QString& startDir) override;
    MenuItem* popupMenu(MenuItem& menu) override;

private:
    QString fileDialog(const FileDialogRequest& request, bool save);

    QPointer<QWidget> parent_;
    // The printer the set-up dialog configures; the editor prints on it.
    QPrinter printer_;
};

}  // namespace sonarium
