// The library's grid: its events, the column buttons that order it, and the buttons' places.
#include "controls/Errors.h"
#include "shell/Form1.h"

namespace sonarium {

namespace {
// imgButon(0) to (13): the order click resets them and the alignment places them. The last
// one, imgButon(14), is left alone by both and keeps the place the form gave it.
constexpr int SharedButtons = 14;
constexpr int DropButtonOffset = 320;  // imgDown sits this far right of its column button
const QString SelectAll = QStringLiteral("Select * From SongData");
}  // namespace

void Form1::wireGrid() {
    for (int i = 0; i < imgButon.size(); ++i) {
        imgButon[i].onClick = [this, i] { imgButon_Click(i); };
        imgDown[i].onClick = [this, i] { imgDown_Click(i); };
    }
    mnuFilter.onClick = [this] { mnuFilter_Click(); };
    mnuSearch.onClick = [this] { mnuSearch_Click(); };
    cmdDeleteLine.onClick = [this] { cmdDeleteLine_Click(); };
    CmdDeleteFile.onClick = [this] { CmdDeleteFile_Click(); };
    cmdClearAll.onClick = [this] { cmdClearAll_Click(); };

    DBGrid1.onKeyPress = [this](int& key) { DBGrid1_KeyPress(key); };
    DBGrid1.onAfterColUpdate = [this](int c) { DBGrid1_AfterColUpdate(c); };
    DBGrid1.onButtonClick = [this](int c) { DBGrid1_ButtonClick(c); };
    DBGrid1.onRowColChange = [this] { DBGrid1_RowColChange(); };
    // Bursts of resizes and scrolls cost one alignment, once they are over.
    DBGrid1.onColResize = [this](int) { Timer2.setEnabled(true); };
    DBGrid1.onLayoutChange = [this] { Timer2.setEnabled(true); };
    DBGrid1.onScroll = [this] {
        ListGen.setVisible(false);
        Timer2.setEnabled(true);
    };
    // A write the record refuses (a value too wide for its column): the engine's words.
    DBGrid1.onError = [this](const QString& text) {
        C.dialogs.msgBox(text, MsgButtons::OK, MsgIcon::Exclamation, QStringLiteral("Edit"));
    };
    ListGen.onClick = [this] { ListGen_Click(); };
    ListGen.onLostFocus = [this] { ListGen.setVisible(false); };
    Timer2.onTimer = [this] { Timer2_Timer(); };
}

void Form1::Timer2_Timer() {
    tryStep([&] { AlignButtons(); });
    Timer2.setEnabled(false);
}

// Each column heading has its two small buttons above it; a pair whose column lies left of the
// grid's edge stays hidden.
void Form1::AlignButtons() {
    for (int i = 0; i < SharedButtons; ++i) {
        tryStep([&] { imgButon[i].setVisible(false); });
        tryStep([&] { imgDown[i].setVisible(false); });
        tryStep([&] { imgButon[i].setLeft(DBGrid1.Left() + DBGrid1.ColumnLeft(i)); });
        tryStep([&] { imgDown[i].setLeft(imgButon[i].Left() + DropButtonOffset); });
        tryStep([&] {
            if (imgButon[i].Left() > DBGrid1.Left()) {
                imgButon[i].setVisible(true);
                imgDown[i].setVisible(true);
            }
        });
    }
}

// A blue button takes the filter away; any other orders the grid by its column. Only a freed
// column can then be ordered by, with a second click.
void Form1::imgButon_Click(int index) {
    bool filtered = false;
    tryStep([&] { filtered = imgButon[index].picture().sameAs(ButtonBlue.picture()); });
    if (filtered) {
        tryStep([&] { imgButon[index].setPicture(Indent.picture()); });
        tryStep([&] {
            if (MenuColumn == OrderColumn) imgButon[MenuColumn].setPicture(Button.picture());
        });
        FilterOff();
    } else {
        for (int i = 0; i < SharedButtons; ++i) tryStep([&] { imgButon[i].setPicture(Indent.picture()); });
        tryStep([&] {
            if (FilterOn) imgButon[MenuColumn].setPicture(ButtonBlue.picture());
        });
        tryStep([&] { imgButon[index].setPicture(Button.picture()); });
        tryStep([&] {
            const QString name = C.data.recordset().Fields(index).Name();
            SqlOrder = QStringLiteral("Order By [") + name + u']';
            lblOrder.setCaption(name);
        });
        OrderColumn = std::int16_t(index);
        tryStep([&] {
            C.data.setRecordSource(FilterOn ? SqlSelect + u' ' + SqlOrder : SelectAll + u' ' + SqlOrder);
        });
        tryStep([&] { C.data.Refresh(); });
        tryStep([&] { UpdateRecordCount(); });
        tryStep([&] { Timer2.setEnabled(true); });
    }
    tryStep([&] { C.data.Refresh(); });
}

void Form1::FilterOff() {
    FilterOn = false;
    SqlSelect = SelectAll;
    tryStep([&] { C.data.setRecordSource(SqlSelect + u' ' + SqlOrder); });
    tryStep([&] { C.data.Refresh(); });
    tryStep([&] { UpdateRecordCount(); });
    tryStep([&] { lblFilter.setCaption(QStringLiteral("Off")); });
    tryStep([&] { Timer2.setEnabled(true); });
}

}  // namespace sonarium
