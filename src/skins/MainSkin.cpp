// The main skin: three bitmaps and a colour file that replace every picture of the main window
// and eight groups of its colours. Each picture is cut from its sheet at the rectangle of the
// layout table and put on a control that stays where it is. The load has no error handling of
// its own: a failing step abandons the rest, and what was done before it stays.
#include <QHash>

#include "controls/Errors.h"
#include "controls/FileNames.h"
#include "shell/Form1.h"
#include "shell/FrmGeneral.h"
#include "shell/TextFields.h"
#include "skins/MainSkinLayout.h"
#include "skins/SkinColour.h"

namespace sonarium {

namespace {

using namespace mainskin;

QString inDir(const QString& dir, std::string_view file) {
    return dir + u'/' + QLatin1String(file.data(), qsizetype(file.size()));
}

// Every control that can show a picture, by name; an array's elements share their name.
QMultiHash<QString, Control*> pictureControls(Form1& f) {
    QMultiHash<QString, Control*> byName;
    for (Control* c : f.allControls()) byName.insert(c->Name(), c);
    return byName;
}

void putPicture(Control& c, const Picture& p) {
    if (auto* image = dynamic_cast<Image*>(&c))
        image->setPicture(p);
    else if (auto* box = dynamic_cast<CheckBox*>(&c))
        box->setPicture(p);
    else if (auto* panel = dynamic_cast<Panel*>(&c))
        panel->setPicture(p);
    else
        throw RuntimeError(RuntimeError::InvalidPropertyValue,
                           c.Name() + QStringLiteral(" shows no picture"));
}

void cutOnto(const QMultiHash<QString, Control*>& controls, const Picture& sheet, const Cut& cut) {
    const Picture piece = sheet.cut(cut.rect.x, cut.rect.y, cut.rect.w, cut.rect.h);
    const QString name = QLatin1String(cut.control.data(), qsizetype(cut.control.size()));
    const auto targets = controls.values(name);
    if (targets.isEmpty())
        throw RuntimeError(RuntimeError::InvalidPropertyValue, name + QStringLiteral(" not found"));
    for (Control* c : targets) putPicture(*c, piece);
}

// A component by the lenient number rule, rounded.
int component(const QString& field) { return colourComponent(roundHalfEven(leadingNumber(field))); }

// The 37 fields of Colors.txt: labels thrown away, and eight colours of three components. The
// components are three strings that start empty and keep their last value, so a short file
// paints the remaining groups in the last colour read, and an empty one paints them black. A
// colour is applied once its third component's turn has come, read or not.
void applyColours(Form1& f, TextFieldReader& in) {
    QString label, r, g, b;
    auto labels = [&](int n) {
        for (int i = 0; i < n; ++i)
            if (!in.atEnd()) label = in.readString();
    };
    auto colour = [&] {
        for (QString* c : {&r, &g, &b})
            if (!in.atEnd()) *c = in.readString();
        return Color{component(r), component(g), component(b)};
    };
    labels(2);
    const Color dirBack = colour();
    f.Dir1.setBackColor(dirBack), f.Drive1.setBackColor(dirBack);
    labels(1);
    const Color dirText = colour();
    f.Dir1.setForeColor(dirText), f.Drive1.setForeColor(dirText);
    labels(2);
    f.lstSongs.setBackColor(colour());
    labels(1);
    f.lstSongs.setForeColor(colour());
    labels(2);
    f.DBGrid1.setBackColor(colour());
    labels(1);
    f.DBGrid1.setForeColor(colour());
    labels(2);
    const Color titles = colour();
    for (auto& t : f.Title) t->setForeColor(titles);
    labels(2);
    const Color displays = colour();
    f.lblSpeed.setForeColor(displays), f.lblTime.setForeColor(displays);
}

}  // namespace

// Steps 3 to 8 of a skin's load, in their order: the library's background, the sheets, the
// colours, the panels (the photo placeholder last of all) and the buttons with the image list.
void Form1::ApplySkinFiles(const QString& dir) {
    PicDatabase.setPicture(C.pictures.load(inDir(dir, DatabaseFile)));
    Picture buttons = C.pictures.load(inDir(dir, ButtonsFile));
    Clip1 = buttons;
    Picture panels = C.pictures.load(inDir(dir, PanelsFile));
    if (!matchFiles(dir, QStringLiteral("Colors.*")).isEmpty()) {
        TextFieldReader in = TextFieldReader::open(inDir(dir, ColorsFile));
        applyColours(*this, in);
    }
    panels = C.pictures.load(inDir(dir, PanelsFile));
    const auto controls = pictureControls(*this);
    for (const Cut& cut : PanelCuts) cutOnto(controls, panels, cut);
    for (const Cut& cut : ButtonCuts) cutOnto(controls, buttons, cut);
    ImageListB.Clear();
    for (int i = 0; i < int(ImageListCuts.size()); ++i) {
        const Rect& r = ImageListCuts[std::size_t(i)];
        ImageListB.Add(i + 1, buttons.cut(r.x, r.y, r.w, r.h));
    }
    for (const RestPicture& rest : RestPictures)
        for (Control* c : controls.values(QLatin1String(rest.control.data(), qsizetype(rest.control.size()))))
            putPicture(*c, ImageListB.ListImage(rest.index));
    cutOnto(controls, panels, PhotoCut);
}

// A directory without the library's background is no skin, and nothing changes. The pointer
// shows the hourglass for the load, and keeps it when the load fails.
void Form1::LoadSkin() {
    if (!fileExists(inDir(M.SkinPath, DatabaseFile))) return;
    setMousePointer(Hourglass);
    ApplySkinFiles(M.SkinPath);
    setMousePointer(DefaultPointer);
}

// The dialog's directory pick. Cancel applies the last directory accepted again, or, before
// any was, an empty skin path that finds nothing and is saved as it is. A skin that fails to
// load is reported, and the window stays as the failure left it.
void Form1::mnuSelectSkin_Click() {
    AskSkinDirectory();
    M.SkinPath = M.SelectedDir;
    try {
        LoadSkin();
    } catch (const RuntimeError& e) {
        C.dialogs.msgBox(e.text(), MsgButtons::OK, MsgIcon::Critical, QStringLiteral("Select Skin"));
    }
}

// The dialog's directory face; M.SelectedDir holds the directory accepted last.
void Form1::AskSkinDirectory() {
    FrmGeneral& g = frmGeneral;
    const QString heading = g.lblStartFrom.Caption();
    FrmGeneral::showControls({&g.cmdAdd, &g.CmdClose, &g.File1, &g.Label1, &g.chkSubs, &g.lblSubs}, false);
    g.lblStartFrom.setCaption(QStringLiteral("Select Directory containing the required skin (Double Click)"));
    FrmGeneral::showControls({&g.lblStartFrom, &g.cmdOK, &g.cmdCancel}, true);
    M.DialogAccepted = false;
    tryStep([&] { g.Show(C.loop, true); });
    tryStep([&] { g.Unload(); });
    g.lblStartFrom.setCaption(heading);
    FrmGeneral::showControls({&g.lblStartFrom, &g.cmdOK, &g.cmdCancel}, false);
    FrmGeneral::showControls({&g.cmdAdd, &g.CmdClose, &g.File1, &g.Label1, &g.chkSubs, &g.lblSubs}, true);
}

}  // namespace sonarium
