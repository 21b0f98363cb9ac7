// The info viewer: the folder's pages, one at a time by hand or on the page timer, each with
// the background colour its marker line keeps; the song's and the folder's pages as songs load;
// the photo frame's two sizes.
#include <QFile>

#include "controls/FileNames.h"
#include "info/PageMarker.h"
#include "shell/Form1.h"
#include "shell/TextFields.h"

namespace sonarium {

namespace {
constexpr int NormalHeight = 7200, TallHeight = 8200, TallPanel = 4915, TallBox = 4525;
constexpr int ShortPanel = 3900, ShortBox = 3500;
}  // namespace

void Form1::wireInfo() {
    wireEditor();
    RT.onClick = [this] { RT_Click(); };
    mnuInfo.onClick = [this] { mnuInfo_Click(); };
    imgViewInfo.onClick = [this] { mnuInfo.Click(); };
    cmdCloseInfoViewer.onClick = [this] { cmdCloseInfoViewer_Click(); };
    cmdInfoLeft.onClick = [this] { cmdInfoLeft_Click(); };
    cmdInfoRight.onClick = [this] { cmdInfoRight_Click(); };
    btnGigGuide.onClick = [this] { ShowNamedPage(QStringLiteral("GigGuide.RTF")); };
    btnContact.onClick = [this] { ShowNamedPage(QStringLiteral("Contact.RTF")); };
    cmdCurrentSongInfo.onClick = [this] { cmdCurrentSongInfo_Click(); };
    tmrInfo.onTimer = [this] { tmrInfo_Timer(); };
    mnuTimerOn.onClick = [this] { mnuTimerOn_Click(); };
    mnuSetTimer.onClick = [this] { mnuSetTimer_Click(); };
    mnuPhotoSquare.onClick = [this] { PlacePhoto(1920); };
    mnuPhotoRectangle.onClick = [this] { PlacePhoto(3645); };
    Photo.onClick = [this] {
        if (MenuItem* chosen = C.dialogs.popupMenu(mnuPhotosize)) chosen->Click();
    };
}

void Form1::LoadRTF(const QString& file) {
    RT.LoadFile(file);
    QFile f(resolveFileName(file));
    if (!f.open(QIODevice::ReadOnly)) return;
    // The marker stands on the file's last line, behind the document.
    const qint64 tail = std::min<qint64>(f.size(), 4096);
    f.seek(f.size() - tail);
    const std::optional<Color> colour = pageMarkerColour(lastLineOf(f.read(tail)));
    if (!colour) return;
    M.RedPart = std::int16_t(colour->r), M.GreenPart = std::int16_t(colour->g),
    M.BluePart = std::int16_t(colour->b);
    RT.setBackColor(*colour);
}

void Form1::ClearRTF() {
    tryStep([&] { RT.setTextRTF(QByteArray()); });
    RT.setBackColor(DefaultPageColour);
}

void Form1::ShowPageNumber() {
    tryStep([&] { lblInfoPageNumber.setCaption(QStringLiteral("%1/%2").arg(InfoPage).arg(InfoPageCount)); });
}

// The pages of the folder, in the order its listing gives them; the two named ones get their
// buttons and stay ordinary pages too.
void Form1::GetRTF() {
    btnGigGuide.setVisible(false);
    btnContact.setVisible(false);
    M.InfoFiles.assign(2, QString());
    int found = 0;
    for (const QString& name : matchFiles(CurrentDir, QStringLiteral("*.rtf"))) {
        const QString upper = name.toUpper();
        if (upper == QLatin1String("GIGGUIDE.RTF")) btnGigGuide.setVisible(true);
        if (upper == QLatin1String("CONTACT.RTF")) btnContact.setVisible(true);
        M.InfoFiles[std::size_t(++found)] = CurrentDir + name;
        M.InfoFiles.emplace_back();
    }
    if (found > 0) {
        InfoPage = 1;
        InfoPageCount = std::int16_t(std::min(found, 32767));
        tryStep([&] { RT.setFileName(QString()); });
        if (!M.InfoFiles[1].isEmpty()) tryStep([&] { LoadRTF(M.InfoFiles[1]); });
    }
    ShowPageNumber();
}

void Form1::ShowInfoPage() {
    const QString file = M.InfoFiles.at(std::size_t(InfoPage));
    if (file.isEmpty()) return;
    tryStep([&] { LoadRTF(file); });
    ShowPageNumber();
}

void Form1::cmdInfoLeft_Click() {
    if (InfoPageCount == 0) return;
    InfoPage = std::int16_t(std::max(InfoPage - 1, 1));
    tryStep([&] { ShowInfoPage(); });
}

void Form1::cmdInfoRight_Click() {
    if (InfoPageCount == 0) return;
    InfoPage = std::int16_t(std::min(InfoPage + 1, int(InfoPageCount)));
    tryStep([&] { ShowInfoPage(); });
}

// The page cycles for ever, seen or not, unless the editor has the box.
void Form1::tmrInfo_Timer() {
    if (mnuEdit.Checked() || InfoPageCount == 0) return;
    InfoPage = std::int16_t(InfoPage + 1 > InfoPageCount ? 1 : InfoPage + 1);
    tryStep([&] { ShowInfoPage(); });
}

// Loaded by file name: the page's marker is not applied.
void Form1::ShowNamedPage(const QString& name) {
    const QString file = CurrentDir + name;
    if (fileExists(file)) tryStep([&] { RT.setFileName(file); });
}

void Form1::cmdCurrentSongInfo_Click() {
    const int row = lstSongs.ListIndex();
    if (row < 0) return;
    tryStep([&] {
        const QString file = SongPathOf(row) + lstSongs.List(row) + QStringLiteral(".RTF");
        if (fileExists(file)) LoadRTF(file);
    });
}

void Form1::mnuTimerOn_Click() {
    mnuTimerOn.setChecked(!mnuTimerOn.Checked());
    tmrInfo.setEnabled(mnuTimerOn.Checked());
}

void Form1::mnuSetTimer_Click() {
    QString answer = C.dialogs.inputBox(QStringLiteral("Enter time in seconds (max 60 seconds )"),
                                        QStringLiteral("Timer"), QString::number(tmrInfo.Interval() / 1000));
    if (answer.isEmpty()) return;
    if (leadingNumber(answer) > 60) answer = QStringLiteral("60");
    tryStep([&] { tmrInfo.setInterval(toInt32(leadingNumber(answer) * 1000)); });
    if (tmrInfo.Interval() == 0) tmrInfo.setInterval(30000);
}

// On a screen with the room the window grows for the panel and is centred; on a small one the
// viewer takes a shorter panel and the editor keeps what it has.
void Form1::SizeForInfo(bool viewer) {
    const int screen = C.desktop.screenSizeTwips().height();
    if (screen > NormalHeight) {
        tryStep([&] { Move(Left(), (screen - TallHeight) / 2, Width(), TallHeight); });
        InfoPanel.setHeight(TallPanel);
        RT.setHeight(TallBox);
    } else if (viewer) {
        InfoPanel.setHeight(ShortPanel);
        RT.setHeight(ShortBox);
    }
}

void Form1::SizeWithoutInfo() {
    const int screen = C.desktop.screenSizeTwips().height();
    tryStep([&] { Move(Left(), std::max(0, (screen - NormalHeight) / 2), Width(), NormalHeight); });
}

// The viewer, the editor and the library's panel exclude one another.
void Form1::mnuInfo_Click() { ToggleInfoPanel(false); }

// The panel of the pages, as the viewer (the box locked, the page buttons) or as the editor
// (unlocked, the toolbar); opening one closes the other and the library first.
void Form1::ToggleInfoPanel(bool editor) {
    MenuItem& own = editor ? mnuEdit : mnuInfo;
    MenuItem& other = editor ? mnuInfo : mnuEdit;
    if (other.Checked()) tryStep([&] { other.Click(); });
    if (mnuDatabase.Checked()) tryStep([&] { mnuDatabase.Click(); });
    if (!own.Checked()) {
        SizeForInfo(!editor);
        RT.setLocked(!editor);
        if (editor) RT.setTabStop(true);
        RT.setVisible(true);
        PanelControls.setVisible(editor);
        PanelViewButtons.setVisible(!editor);
        InfoPanel.setVisible(true);
        own.setChecked(true);
        PanelTitles().setVisible(false);
    } else {
        SizeWithoutInfo();
        InfoPanel.setVisible(false);
        own.setChecked(false);
        other.setEnabled(true);
        PanelTitles().setVisible(true);
        if (!editor) PanelViewButtons.setVisible(false);
    }
}

void Form1::cmdCloseInfoViewer_Click() {
    if (mnuInfo.Checked()) mnuInfo.Click();
}

}  // namespace sonarium
