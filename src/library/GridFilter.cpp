// The column menu of the grid: filter on the current record's value, or search for a typed one.
// Values go into the statements as they stand, so a quote in one breaks the statement and
// the step is skipped, and * and ? in one act as wild cards.
#include "controls/Errors.h"
#include "shell/Form1.h"
#include "shell/FrmGeneral.h"

namespace sonarium {

namespace {
const QString RemoveFilter = QStringLiteral("Remove Filter");
}

// The menu offers the filter's removal only on the column it was made on; opening it on
// another column moves MenuColumn even if no command is then chosen.
void Form1::imgDown_Click(int index) {
    auto name = [&] { return C.data.recordset().Fields(index).Name(); };
    tryStep([&] { mnuExclude.setEnabled(frmGeneral.List1.ListCount() > 0); });
    if (index != MenuColumn || !FilterOn) {
        tryStep([&] { mnuFilter.setCaption(QStringLiteral("Filter using selected ") + name()); });
        tryStep([&] { mnuFilterAutoSet.setEnabled(true); });
    } else {
        tryStep([&] { mnuFilter.setCaption(RemoveFilter); });
        tryStep([&] { mnuFilterAutoSet.setEnabled(false); });
    }
    tryStep([&] {
        mnuExclude.setCaption(QStringLiteral("Exclude selected ") + name() +
                              QStringLiteral(" from 'Auto-Queue' criteria"));
    });
    tryStep([&] {
        mnuAdd.setCaption(QStringLiteral("Add selected ") + name() +
                          QStringLiteral(" to 'Auto-Queue' criteria"));
    });
    tryStep([&] { mnuSearch.setCaption(QStringLiteral("Search for ") + name()); });
    MenuColumn = std::int16_t(index);
    tryStep([&] {
        if (MenuItem* chosen = C.dialogs.popupMenu(mnuCriteria)) chosen->Click();
    });
}

// The value is read through the grid, which gives "" where there is no record, so a filter
// that leaves nothing still names its field on the label.
void Form1::mnuFilter_Click() {
    auto name = [&] { return C.data.recordset().Fields(MenuColumn).Name(); };
    if (mnuFilter.Caption() == RemoveFilter) {
        tryStep([&] { imgButon[MenuColumn].setPicture(Indent.picture()); });
        tryStep([&] {
            if (OrderColumn == MenuColumn) imgButon[OrderColumn].setPicture(Button.picture());
        });
        FilterOff();
        return;
    }
    tryStep([&] {
        SqlSelect = QStringLiteral("Select * From SongData Where [") + name() + QStringLiteral("] Like \"") +
                    DBGrid1.ColumnText(MenuColumn) + u'"';
    });
    tryStep([&] { C.data.setRecordSource(SqlSelect + u' ' + SqlOrder); });
    tryStep([&] { C.data.Refresh(); });
    tryStep([&] { UpdateRecordCount(); });
    FilterOn = true;
    tryStep([&] { Timer2.setEnabled(true); });
    tryStep([&] { lblFilter.setCaption(name() + QStringLiteral(" - ") + DBGrid1.ColumnText(MenuColumn)); });
    // From 1, not 0 as the order click does: imgButon(0) keeps its picture.
    for (int i = 1; i <= 14; ++i) tryStep([&] { imgButon[i].setPicture(Indent.picture()); });
    tryStep([&] { imgButon[OrderColumn].setPicture(Button.picture()); });
    tryStep([&] { imgButon[MenuColumn].setPicture(ButtonBlue.picture()); });
}

// A find in the present view, not a filter: on a match the current record moves there.
void Form1::mnuSearch_Click() {
    auto name = [&] { return C.data.recordset().Fields(MenuColumn).Name(); };
    QString text;
    tryStep([&] {
        text = u'*' +
               C.dialogs.inputBox(QStringLiteral("Enter ") + name() + QStringLiteral(" to search for."),
                                  QStringLiteral("Search"), QString()) +
               u'*';
    });
    tryStep([&] { C.data.recordset().FindFirst(u'[' + name() + QStringLiteral("] LIKE '") + text + u'\''); });
    tryStep([&] {
        if (C.data.recordset().NoMatch())
            C.dialogs.msgBox(QStringLiteral("No ") + name() + QStringLiteral(" found"), MsgButtons::OK,
                             MsgIcon::None, QStringLiteral("Search"));
    });
}

}  // namespace sonarium
