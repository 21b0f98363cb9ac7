// The mini player's skin read field by field: line ends and commas alike, quoted labels, a
// file that ends early, the digit strip, the meter file's defaults and broken skins that leave
// a usable window. (The shipped skins' cuts against their sheets are the window test's.)
#include "ProgramFixture.h"
#include "shell/FrmMiniPlayer.h"

using namespace sonarium;

namespace {

// A sheet whose every pixel tells where it is, so a control's picture tells its cut.
Picture codedSheet(int w, int h) {
    std::vector<std::uint32_t> px(std::size_t(w) * h);
    for (int y = 0; y < h; ++y)
        for (int x = 0; x < w; ++x) px[std::size_t(y) * w + x] = 0xff000000u | std::uint32_t(y << 8 | x);
    return Picture(w, h, std::move(px));
}

QString cutOf(const Image& c) {
    const Picture& p = c.picture();
    if (p.isNull()) return QStringLiteral("-");
    return QStringLiteral("%1,%2,%3x%4")
        .arg(p.pixel(0, 0) & 0xff)
        .arg(p.pixel(0, 0) >> 8 & 0xff)
        .arg(p.width())
        .arg(p.height());
}

// The 38 blocks of a skin: block i's cut is at (i, 2i), 5 x 4, shown when i is odd, at (3i, i).
QByteArray coords(const char* separator = ",", const char* label = "Block") {
    QByteArray out = "Heading\r\n";
    for (int i = 1; i <= 38; ++i) {
        QList<QByteArray> fields{label};
        for (int v : {i, 2 * i, 5, 4, i % 2, 3 * i, i}) fields << QByteArray::number(v);
        out += fields.join(separator) + "\r\n";
    }
    return out;
}

const QByteArray Vu = "Lamps\r\n" + QByteArray("10,20,").repeated(18) + "10,20" +
                      "\r\nBack\r\n1,2,3\r\nText\r\n4,5,6\r\nSize\r\n9\r\nBold\r\n1\r\nList\r\n7,8,9\r\nList "
                      "text\r\n300,0,0\r\n"
                      "Travel\r\n30\r\nCollapsed\r\n218\r\nHeight\r\n1\r\nRows\r\n0\r\n";

class MiniSkin : public StartedProgramFixture {
protected:
    void load(const QByteArray& coordsText, const QByteArray* vu = &Vu, const QString& name = "Skin") {
        const QString d = path(name);
        QDir().mkpath(d);
        write(name + "/Panel.bmp", "BM");
        tc.pictures.add(d + "/Panel.bmp", 390, 88);
        tc.pictures.add(d + "/Buttons.bmp", codedSheet(256, 100));
        write(name + "/CoOrds.txt", coordsText);
        if (vu) write(name + "/vu.txt", *vu);
        M().MiniSkinPath = d;
        form1().LoadSkinMini();
    }
    FrmMiniPlayer& mini() { return program().frmMiniPlayer; }
    // Each control's cut, place and visibility, in the file's order of controls.
    QStringList faces() {
        QStringList out;
        for (Control* c : mini().allControls()) {
            const auto* image = dynamic_cast<Image*>(c);
            out << QStringLiteral("%1 %2 %3,%4 %5")
                       .arg(c->Name(), image ? cutOf(*image) : QString())
                       .arg(c->Left())
                       .arg(c->Top())
                       .arg(c->Visible());
        }
        return out;
    }
};

TEST_F(MiniSkin, BlocksReadFieldByFieldWithTheirOwnRules) {
    load(coords());
    const QStringList byCommas = faces();
    FrmMiniPlayer& f = mini();
    // Standard blocks: cut, place, shown only for Show 1; block 1's picture is also at rest.
    EXPECT_EQ(cutOf(f.ButtonBack), "1,2,5x4");
    EXPECT_TRUE(f.ImageButton[0].picture().sameAs(f.ButtonBack.picture()));
    EXPECT_EQ(f.ButtonPlay.Left(), 3 * 3 * 15);
    EXPECT_TRUE(f.ButtonPlay.Visible());
    EXPECT_FALSE(f.cmdDown.Visible());
    EXPECT_EQ(cutOf(f.cmdDown), "10,20,5x4") << "a hidden control still gets its picture and place";
    EXPECT_EQ(M().MiniSliderTop, 11 * 15);
    // The window (36): its size at once, kept for Show List; the list (35) sized, shown later.
    EXPECT_EQ(f.Width(), 5 * 15);
    EXPECT_EQ(M().MiniWidth, 5 * 15);
    EXPECT_EQ(f.lstSongSets.Left(), 3 * 35 * 15);
    EXPECT_FALSE(f.lstSongSets.Visible());
    // Stereo (38) with Show 0 loses its picture again; Mono keeps one.
    EXPECT_EQ(cutOf(f.Stereo), "-");
    EXPECT_EQ(cutOf(f.Mono), "37,74,5x4");
    // The digit strip (19): cells of 5 with a blank column, the row with its separators.
    EXPECT_EQ(cutOf(f.Number[3]), QString("%1,38,5x4").arg(19 + 3 * 6));
    EXPECT_EQ(cutOf(f.imgColon[2]), QString("%1,38,5x4").arg(19 + 11 * 6));
    QList<int> row;
    for (Image* c : {&f.Time[0], &f.Time[1], &f.imgColon[0], &f.Time[2], &f.Time[3], &f.imgColon[2],
                     &f.Time[4], &f.Time[5], &f.imgColon[1], &f.Time[6], &f.Time[7]})
        row << c->Left() / 15;
    EXPECT_EQ(row, QList<int>({57, 63, 69, 75, 81, 87, 93, 99, 105, 111, 117}));
    EXPECT_TRUE(f.Time[6].picture().sameAs(f.Number[0].picture()));

    // Line ends stand for commas, and a quoted label may hold one.
    load(coords("\r\n"), &Vu, "Lines");
    EXPECT_EQ(faces(), byCommas);
    load(coords(",", "\"Back, pressed\""), &Vu, "Quoted");
    EXPECT_EQ(faces(), byCommas);

    // A file that ends after block 3: the later blocks take block 3's values.
    load(coords().left(coords().indexOf("Block,4")), &Vu, "Short");
    EXPECT_EQ(cutOf(f.cmdQuit), "3,6,5x4");
    EXPECT_EQ(f.cmdQuit.Left(), 9 * 15);
    EXPECT_EQ(f.Width(), 5 * 15);
}

TEST_F(MiniSkin, TheMeterFileAndBrokenSkinsLeaveAUsableWindow) {
    // A slider cut 8 high at Top 46 with a travel of 30 runs from 690 to 1020 twips.
    QByteArray text = coords();
    text.replace("Block,11,22,5,4,1,33,11", "Volume,11,22,5,8,1,33,46");
    load(text);
    FrmMiniPlayer& f = mini();
    EXPECT_EQ(M().MiniSliderTop, 690);
    EXPECT_EQ(M().MiniSliderBottom, 1020);
    EXPECT_DOUBLE_EQ(M().MiniSliderStep, 3.3);
    EXPECT_EQ(M().MiniListRows, 5) << "no rows means five";
    EXPECT_EQ(f.imgVU[18].Left(), 150);
    EXPECT_TRUE(f.imgVU[18].picture().sameAs(f.imgVUPurple.picture()));
    EXPECT_EQ(f.Picture1.BackColor(), (Color{1, 2, 3}));
    EXPECT_EQ(f.lstSongSets.ForeColor(), (Color{255, 0, 0}));
    EXPECT_TRUE(f.Picture1.FontBold());
    EXPECT_EQ(M().MiniCollapsedSize, 218 * 15);
    // Collapsing by height leaves the width; showing the list puts both back.
    f.cmdHideList.Click();
    EXPECT_EQ(std::pair(f.Width(), f.Height()), std::pair(M().MiniWidth, 218 * 15));
    f.cmdShowList.Click();
    EXPECT_EQ(std::pair(f.Width(), f.Height()), std::pair(M().MiniWidth, M().MiniHeight));

    // Huge and negative sizes, text for numbers, cuts past the sheet: values the model keeps,
    // pictures that stay, and a list no longer than the queue can be.
    const QByteArray wild = "H\r\nBack,abc,-5,100000,4,1,-7,2\r\n" +
                            QByteArray("x,1,1,300,300,1,0,0\r\n").repeated(34) +
                            "Window,0,0,100000,99999999999,1,0,0\r\n";
    const QByteArray rows = QByteArray(Vu).replace("Rows\r\n0", "Rows\r\n10000");
    load(wild, &rows, "Wild");
    EXPECT_EQ(cutOf(f.ButtonBack), "1,2,5x4") << "a cut off the sheet leaves the old picture";
    EXPECT_EQ(f.ButtonBack.Left(), -7 * 15);
    EXPECT_EQ(f.Width(), 100000 * 15);
    EXPECT_EQ(M().MiniListRows, 501);

    // No layout files at all: every control to the corner and hidden, no crash.
    load("", nullptr, "Empty");
    EXPECT_FALSE(f.ButtonPlay.Visible());
    EXPECT_EQ(f.ButtonPlay.Left(), 0);
    EXPECT_EQ(f.Width(), 0);

    // A directory that is no skin, with none in the program's folder either: nothing changes,
    // and the place kept from the last run survives.
    M().MiniTop = 1500;
    M().MiniSkinPath = path("Nothing");
    form1().LoadSkinMini();
    EXPECT_EQ(M().MiniTop, 1500);
    EXPECT_EQ(M().MiniSkinPath, M().AppDir);
}

}  // namespace
