// The main skin's load on the program with fakes: every cut of the layout table lands on its
// control (sheets whose pixels tell where they were taken from), the image list and the
// buttons' resting pictures, Colors.txt with its labels, lenient numbers and short files, the
// files that make a directory a skin, broken skins that stop the load where they fail, and the
// directory dialog of the Select Skin command.
#include "ProgramFixture.h"
#include "skins/MainSkinLayout.h"

using namespace sonarium;
using namespace sonarium::mainskin;

namespace {

// A pixel that names its own place on the sheet.
std::uint32_t at(int x, int y) { return 0xFF000000u | std::uint32_t(x) << 12 | std::uint32_t(y); }

Picture sheet(int w, int h) {
    std::vector<std::uint32_t> pixels(std::size_t(w) * std::size_t(h));
    for (int y = 0; y < h; ++y)
        for (int x = 0; x < w; ++x) pixels[std::size_t(y) * std::size_t(w) + std::size_t(x)] = at(x, y);
    return Picture(w, h, std::move(pixels));
}

bool isCut(const Picture& p, const Rect& r) {
    return p.width() == r.w && p.height() == r.h && p.pixel(0, 0) == at(r.x, r.y) &&
           p.pixel(r.w - 1, r.h - 1) == at(r.right() - 1, r.bottom() - 1);
}

QString nameOf(std::string_view s) { return QString::fromLatin1(s.data(), qsizetype(s.size())); }

const Picture* pictureOf(Control* c) {
    if (auto* i = dynamic_cast<Image*>(c)) return &i->picture();
    if (auto* k = dynamic_cast<CheckBox*>(c)) return &k->picture();
    if (auto* p = dynamic_cast<Panel*>(c)) return &p->picture();
    return nullptr;
}

class MainSkin : public ProgramFixture {
protected:
    void SetUp() override {
        ProgramFixture::SetUp();
        program().Main();
        tc.dialogs.clear();
    }
    // A skin directory: the library background as a file on disk (its presence is what the
    // load looks for), the sheets through the picture loader, and the colour file if given.
    QString skin(const QString& name, const QByteArray* colours = nullptr, int panelsWidth = PanelsMinWidth) {
        const QString d = path(name);
        QDir().mkpath(d);
        write(name + "/PanelDatabase.bmp", "BM");
        tc.pictures.add(d + "/PanelDatabase.bmp", 634, 263);
        tc.pictures.add(d + "/Buttons.bmp", sheet(ButtonsMinWidth, ButtonsMinHeight));
        tc.pictures.add(d + "/Panels.bmp", sheet(panelsWidth, PanelsMinHeight));
        if (colours) write(name + "/Colors.txt", *colours);
        return d;
    }
    void load(const QString& dir) {
        M().SkinPath = dir;
        form1().LoadSkin();
    }
    std::vector<Control*> named(std::string_view name) {
        std::vector<Control*> out;
        for (Control* c : form1().allControls())
            if (c->Name() == nameOf(name)) out.push_back(c);
        return out;
    }
    // The colours of the eight groups, as "r,g,b" each.
    QStringList colours() {
        Form1& f = form1();
        auto text = [](std::optional<Color> c) {
            return c ? QStringLiteral("%1,%2,%3").arg(c->r).arg(c->g).arg(c->b) : QStringLiteral("-");
        };
        return {text(f.Dir1.BackColor()),     text(f.Dir1.ForeColor()),     text(f.lstSongs.BackColor()),
                text(f.lstSongs.ForeColor()), text(f.DBGrid1.BackColor()), text(f.DBGrid1.ForeColor()),
                text(f.Title[11].ForeColor()), text(f.lblTime.ForeColor())};
    }
};

TEST_F(MainSkin, EveryCutLandsOnItsControlWhichHasItsSize) {
    // Controls placed on the window have the size of their piece; the source pictures that are
    // never shown, and controls not laid out yet, take the size of what they are given.
    for (const auto& table : {std::vector<Cut>(PanelCuts.begin(), PanelCuts.end()),
                              std::vector<Cut>(ButtonCuts.begin(), ButtonCuts.end())})
        for (const Cut& cut : table)
            for (Control* c : named(cut.control))
                if (c->Width() != 0)
                    EXPECT_TRUE(c->Width() == cut.rect.w * TwipsPerPixel && c->Height() == cut.rect.h * TwipsPerPixel)
                        << c->Name().toStdString() << " " << c->Width() / TwipsPerPixel << "x"
                        << c->Height() / TwipsPerPixel;

    load(skin("Skin"));
    Form1& f = form1();
    EXPECT_EQ(f.PicDatabase.picture().source(), path("Skin") + "/PanelDatabase.bmp");
    for (const Cut& cut : PanelCuts) {
        ASSERT_FALSE(named(cut.control).empty()) << nameOf(cut.control).toStdString();
        for (Control* c : named(cut.control)) EXPECT_TRUE(isCut(*pictureOf(c), cut.rect)) << c->Name().toStdString();
    }
    EXPECT_TRUE(isCut(f.imgMpeg3.picture(), PhotoCut.rect));
    for (const Cut& cut : ButtonCuts) {
        if (cut.control == "imgSize") continue;
        ASSERT_FALSE(named(cut.control).empty()) << nameOf(cut.control).toStdString();
        for (Control* c : named(cut.control)) EXPECT_TRUE(isCut(*pictureOf(c), cut.rect)) << c->Name().toStdString();
    }
    EXPECT_EQ(named("imgButon").size(), 15u);
    EXPECT_TRUE(isCut(f.imgSize.picture(), {295, 78, 11, 11})) << "image 15, the full window";
    for (int i = 1; i <= 24; ++i) EXPECT_TRUE(isCut(f.ImageListB.ListImage(i), ImageListCuts[std::size_t(i - 1)])) << i;
    EXPECT_TRUE(isCut(f.ImageListB.ListImage(24), {87, 92, 42, 20}));
    EXPECT_TRUE(f.BtnPlay.picture().sameAs(f.ImageListB.ListImage(1)));
    EXPECT_TRUE(f.BtnStop.picture().sameAs(f.ImageListB.ListImage(3)));
    EXPECT_TRUE(f.BtnFade.picture().sameAs(f.ImageListB.ListImage(5)));
    EXPECT_TRUE(f.BtnPause.picture().sameAs(f.ImageListB.ListImage(7)));
    EXPECT_EQ(f.MousePointer(), DefaultPointer);
    EXPECT_EQ(tc.pictures.calls(),
              QStringList({"load(" + path("Skin") + "/PanelDatabase.bmp)", "load(" + path("Skin") + "/Buttons.bmp)",
                           "load(" + path("Skin") + "/Panels.bmp)", "load(" + path("Skin") + "/Panels.bmp)"}));
}

TEST_F(MainSkin, ColoursWithLabelsLenientNumbersAndShortFiles) {
    const QByteArray full =
        "Sonarium colours\r\nDirectory\r\n10,20,30\r\nDirectory text\r\n40\r\n50\r\n60\r\n"
        "Queue,heading\r\n abc, 300 ,7.5\r\nQueue text\r\n1,2,3\r\nGrid\r\nback\r\n4,5,6\r\ntext\r\n7,8,9\r\n"
        "Titles\r\ntext\r\n11,12,13\r\nDisplays\r\ntext\r\n14,15,16\r\n";
    load(skin("Full", &full));
    EXPECT_EQ(colours(), QStringList({"10,20,30", "40,50,60", "0,255,8", "1,2,3", "4,5,6", "7,8,9", "11,12,13",
                                      "14,15,16"}));
    EXPECT_EQ(form1().Drive1.ForeColor(), form1().Dir1.ForeColor());
    EXPECT_EQ(form1().Title[0].ForeColor(), form1().Title[11].ForeColor());
    EXPECT_EQ(form1().lblSpeed.ForeColor(), form1().lblTime.ForeColor());

    // A file that ends early leaves the later groups in the last colour read.
    const QByteArray shortFile = "a\r\nb\r\n1,2,3\r\nc\r\n4,5";
    load(skin("Short", &shortFile));
    EXPECT_EQ(colours(), QStringList({"1,2,3", "4,5,3", "4,5,3", "4,5,3", "4,5,3", "4,5,3", "4,5,3", "4,5,3"}));

    // A skin without a colour file keeps what the last one left; an empty one paints all black.
    load(skin("NoColours"));
    EXPECT_EQ(colours().first(), "1,2,3");
    const QByteArray empty;
    load(skin("Empty", &empty));
    EXPECT_EQ(colours(), QStringList(8, "0,0,0"));

    // A negative component stops the load there: the groups before it are painted, no cut made.
    const QByteArray negative = "a\r\nb\r\n9,9,9\r\nc\r\n-1,0,0\r\n";
    const Picture before = form1().PicTopPanel.picture();
    EXPECT_THROW(load(skin("Negative", &negative)), RuntimeError);
    EXPECT_EQ(colours().first(), "9,9,9");
    EXPECT_EQ(colours()[1], "0,0,0");
    EXPECT_TRUE(form1().PicTopPanel.picture().sameAs(before));
    EXPECT_EQ(form1().MousePointer(), Hourglass) << "left as the failure left it";
}

TEST_F(MainSkin, BrokenSkinsStopWhereTheyFail) {
    Form1& f = form1();
    // Without the library background the directory is no skin, whatever else it holds.
    const QString d = skin("Good");
    ASSERT_TRUE(QFile::remove(d + "/PanelDatabase.bmp"));
    load(d);
    EXPECT_TRUE(tc.pictures.calls().isEmpty());
    load(QString());  // the test then looks at the root: no skin there either
    EXPECT_TRUE(tc.pictures.calls().isEmpty());

    // A Colors file of another name passes the test and fails on opening Colors.txt.
    const QString other = skin("Other");
    write("Other/Colors.ini", "1,2,3");
    EXPECT_THROW(load(other), RuntimeError);
    EXPECT_EQ(f.PicDatabase.picture().source(), other + "/PanelDatabase.bmp");
    EXPECT_TRUE(f.PicTopPanel.picture().isNull());

    // A sheet too small for its rectangles: the cuts before the failing one are made.
    EXPECT_THROW(load(skin("Narrow", nullptr, 633)), RuntimeError);
    EXPECT_TRUE(isCut(f.PicTopPanel.picture(), PanelCuts[0].rect));
    EXPECT_TRUE(f.PicView.picture().isNull()) << "634 wide, past the sheet's edge";

    // From the menu a failure is shown, and the program goes on.
    const QString broken = skin("Broken");
    tc.pictures.addInvalid(broken + "/Buttons.bmp");
    M().SelectedDir = broken;
    tc.dialogs.answer(MsgResult::OK);
    tc.loop.post([&] { general().cmdCancel.Click(); });
    f.mnuSelectSkin.Click();
    ASSERT_EQ(tc.dialogs.shown().size(), 1u);
    EXPECT_EQ(tc.dialogs.shown()[0].text, "Invalid picture: " + broken + "/Buttons.bmp");
    EXPECT_EQ(M().SkinPath, broken);
}

TEST_F(MainSkin, SelectSkinAsksForADirectoryAndCancelAppliesTheLastOneAgain) {
    Form1& f = form1();
    FrmGeneral& g = general();
    const QString first = skin("First");
    bool seen = false;
    tc.loop.post([&] {
        seen = g.lblStartFrom.Visible() && g.cmdOK.Visible() && g.cmdCancel.Visible() && g.Dir1.Visible() &&
               !g.chkSubs.Visible() && !g.lblSubs.Visible() && !g.File1.Visible() && !g.cmdAdd.Visible() &&
               g.lblStartFrom.Caption() == "Select Directory containing the required skin (Double Click)";
        g.Dir1.setPath(first);
        g.cmdOK.Click();
    });
    f.mnuSelectSkin.Click();
    EXPECT_TRUE(seen);
    EXPECT_EQ(M().SkinPath, first);
    EXPECT_EQ(f.PicDatabase.picture().source(), first + "/PanelDatabase.bmp");
    EXPECT_TRUE(g.chkSubs.Visible() && g.File1.Visible() && g.cmdAdd.Visible());
    EXPECT_FALSE(g.cmdOK.Visible() || g.cmdCancel.Visible() || g.lblStartFrom.Visible());
    EXPECT_EQ(g.lblStartFrom.Caption(), "Select a drive and directory to start searching from.");

    tc.pictures.clearCalls();
    tc.loop.post([&] { g.cmdCancel.Click(); });
    f.mnuSelectSkin.Click();
    EXPECT_EQ(M().SkinPath, first) << "Cancel applies the last accepted directory again";
    EXPECT_EQ(tc.pictures.calls().size(), 4);

    M().SelectedDir.clear();  // as before any directory was ever accepted
    tc.loop.post([&] { g.cmdCancel.Click(); });
    f.mnuSelectSkin.Click();
    EXPECT_EQ(M().SkinPath, "");
}

}  // namespace
