// The main skin's load on the program with fakes: Colors.txt with its labels, lenient numbers
// and short files, the file that makes a directory a skin, broken skins that stop the load
// where they fail, and the Select Skin command. (The cuts come from the layout table itself;
// the real skins' screenshots show them.)
#include "ProgramFixture.h"
#include "skins/MainSkinLayout.h"

using namespace sonarium;
using namespace sonarium::mainskin;

namespace {

class MainSkin : public StartedProgramFixture {
protected:
    // A skin directory: the library background as a file on disk (its presence is what the
    // load looks for), the sheets through the picture loader, and the colour file if given.
    QString skin(const QString& name, const QByteArray* colours = nullptr, int panelsWidth = PanelsMinWidth) {
        const QString d = path(name);
        QDir().mkpath(d);
        write(name + "/PanelDatabase.bmp", "BM");
        tc.pictures.add(d + "/PanelDatabase.bmp", 634, 263);
        tc.pictures.add(d + "/Buttons.bmp", Picture::filled(ButtonsMinWidth, ButtonsMinHeight, 0xff000000));
        tc.pictures.add(d + "/Panels.bmp", Picture::filled(panelsWidth, PanelsMinHeight, 0xff000000));
        if (colours) write(name + "/Colors.txt", *colours);
        return d;
    }
    void load(const QString& dir) {
        M().SkinPath = dir;
        form1().LoadSkin();
    }
    // The colours of the eight groups, as "r,g,b" each.
    QStringList colours() {
        Form1& f = form1();
        QStringList out;
        for (auto c :
             {f.Dir1.BackColor(), f.Dir1.ForeColor(), f.lstSongs.BackColor(), f.lstSongs.ForeColor(),
              f.DBGrid1.BackColor(), f.DBGrid1.ForeColor(), f.Title[11].ForeColor(), f.lblTime.ForeColor()})
            out << (c ? QStringLiteral("%1,%2,%3").arg(c->r).arg(c->g).arg(c->b) : QStringLiteral("-"));
        return out;
    }
};

TEST_F(MainSkin, ColoursWithLabelsLenientNumbersAndShortFiles) {
    const QByteArray full =
        "Sonarium colours\r\nDirectory\r\n10,20,30\r\nDirectory text\r\n40\r\n50\r\n60\r\n"
        "Queue,heading\r\n abc, 300 ,7.5\r\nQueue text\r\n1,2,3\r\nGrid\r\nback\r\n4,5,6\r\ntext\r\n7,8,9\r\n"
        "Titles\r\ntext\r\n11,12,13\r\nDisplays\r\ntext\r\n14,15,16\r\n";
    load(skin("Full", &full));
    EXPECT_EQ(colours(), QStringList({"10,20,30", "40,50,60", "0,255,8", "1,2,3", "4,5,6", "7,8,9",
                                      "11,12,13", "14,15,16"}));

    // A file that ends early leaves the later groups in the last colour read.
    const QByteArray shortFile = "a\r\nb\r\n1,2,3\r\nc\r\n4,5";
    load(skin("Short", &shortFile));
    EXPECT_EQ(colours(),
              QStringList({"1,2,3", "4,5,3", "4,5,3", "4,5,3", "4,5,3", "4,5,3", "4,5,3", "4,5,3"}));

    // A skin without a colour file keeps what the last one left.
    load(skin("NoColours"));
    EXPECT_EQ(colours().first(), "1,2,3");

    // A negative component stops the load there: the groups before it are painted, no cut made.
    const QByteArray negative = "a\r\nb\r\n9,9,9\r\nc\r\n-1,0,0\r\n";
    const Picture before = form1().PicTopPanel.picture();
    EXPECT_THROW(load(skin("Negative", &negative)), RuntimeError);
    EXPECT_EQ(colours().first(), "9,9,9");
    EXPECT_TRUE(form1().PicTopPanel.picture().sameAs(before));
}

TEST_F(MainSkin, BrokenSkinsStopWhereTheyFail) {
    Form1& f = form1();
    // Without the library background the directory is no skin, whatever else it holds.
    const QString d = skin("Good");
    ASSERT_TRUE(QFile::remove(d + "/PanelDatabase.bmp"));
    load(d);
    load(QString());  // the test then looks at the root: no skin there either
    EXPECT_TRUE(tc.pictures.calls().isEmpty());

    // A Colors file of another name passes the test and fails on opening Colors.txt.
    const QString other = skin("Other");
    write("Other/Colors.ini", "1,2,3");
    EXPECT_THROW(load(other), RuntimeError);
    EXPECT_TRUE(f.PicTopPanel.picture().isNull());

    // A sheet too small for its rectangles: the cuts before the failing one are made.
    EXPECT_THROW(load(skin("Narrow", nullptr, 633)), RuntimeError);
    EXPECT_FALSE(f.PicTopPanel.picture().isNull());
    EXPECT_TRUE(f.PicView.picture().isNull()) << "634 wide, past the sheet's edge";
}

// OK applies the directory picked; Cancel applies the last accepted one again, and a failure
// is shown while the program goes on.
TEST_F(MainSkin, SelectSkinAppliesThePickedOrTheLastDirectory) {
    Form1& f = form1();
    FrmGeneral& g = general();
    const QString first = skin("First");
    tc.loop.post([&] {
        g.Dir1.setPath(first);
        g.cmdOK.Click();
    });
    f.mnuSelectSkin.Click();

    tc.pictures.clearCalls();
    tc.loop.post([&] { g.cmdCancel.Click(); });
    f.mnuSelectSkin.Click();
    EXPECT_EQ(M().SkinPath, first);
    EXPECT_EQ(tc.pictures.calls().size(), 4);

    const QString broken = skin("Broken");
    tc.pictures.addInvalid(broken + "/Buttons.bmp");
    M().SelectedDir = broken;
    tc.dialogs.answer(MsgResult::OK);
    tc.loop.post([&] { g.cmdCancel.Click(); });
    f.mnuSelectSkin.Click();
    EXPECT_EQ(tc.dialogs.texts(), QStringList({"Invalid picture: " + broken + "/Buttons.bmp"}));
    EXPECT_EQ(M().SkinPath, broken);
}

}  // namespace
