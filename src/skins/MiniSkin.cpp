// The mini player's skin: a background picture, a sheet of small pictures and two text files
// that place, size and cut every control of the window. Unlike the main skin it moves
// controls, so a short or broken file leaves controls where the last value read puts them;
// every statement is skipped on failure and the load goes on.
#include "controls/FileNames.h"
#include "shell/Form1.h"
#include "shell/FrmGeneral.h"
#include "shell/FrmMiniPlayer.h"
#include "shell/TextFields.h"
#include "skins/SkinColour.h"

namespace sonarium {

namespace {

constexpr int Px = TwipsPerPixel;

// One block of CoOrds.txt: a cut of the sheet, whether the control shows, and its place.
struct Block {
    std::int32_t x = 0, y = 0, w = 0, h = 0, show = 0, left = 0, top = 0;
};

// Reads field by field; a field past the end of the file, or one too large for its number,
// leaves the value it would have replaced.
class SkinFields {
public:
    SkinFields(TextFieldReader& in, ErrorReporter& errors) : in_(in), errors_(errors) {}
    void label() {
        tryStep(errors_, [&] {
            if (!in_.atEnd()) in_.readString();
        });
    }
    void number(std::int32_t& v) {
        tryStep(errors_, [&] {
            if (!in_.atEnd()) v = in_.readInt32();
        });
    }
    void block(Block& b) {
        label();
        for (std::int32_t* v : {&b.x, &b.y, &b.w, &b.h, &b.show, &b.left, &b.top}) number(*v);
    }
    Color colour(std::array<std::int32_t, 3>& rgb) {
        for (auto& c : rgb) number(c);
        return Color{colourComponent(rgb[0]), colourComponent(rgb[1]), colourComponent(rgb[2])};
    }

private:
    TextFieldReader& in_;
    ErrorReporter& errors_;
};

}  // namespace

void Form1::ApplyMiniSkinFiles(const QString& dir) {
    FrmMiniPlayer& f = frmMiniPlayer;
    // Nothing of the old face is seen while the new one is built.
    for (Image* lamp : {&f.Stereo, &f.Mono}) {
        tryStep([&] { lamp->setPicture(Picture()); });
        tryStep([&] { lamp->setTop(1), lamp->setLeft(1); });
    }
    tryStep([&] { f.Move(f.Left(), f.Top(), 1, 1); });
    tryStep([&] { f.lstSongSets.setVisible(false); });
    tryStep([&] { Clip1 = C.pictures.load(dir + QStringLiteral("/Buttons.bmp")); });
    tryStep([&] { f.setPicture(C.pictures.load(dir + QStringLiteral("/Panel.bmp"))); });

    Block b;
    const auto cut = [&](Image& c) { tryStep([&] { c.setPicture(Clip1.cut(b.x, b.y, b.w, b.h)); }); };
    const auto place = [&](Control& c) { tryStep([&] { c.setLeft(b.left * Px), c.setTop(b.top * Px); }); };
    const auto standard = [&](Image& c) {
        cut(c);
        place(c);
        tryStep([&] { c.setVisible(b.show == 1); });
    };
    const auto size = [&](Control& c) { tryStep([&] { c.setHeight(b.h * Px), c.setWidth(b.w * Px); }); };
    // A file that can't be opened reads as an empty one: every value stays 0, so every cut
    // fails and every control goes to the top left corner, hidden.
    const auto openSkinFile = [&](const char* name) {
        TextFieldReader in{QByteArray()};
        tryStep([&] { in = TextFieldReader::open(dir + u'/' + QLatin1String(name)); });
        return in;
    };
    {
        TextFieldReader in = openSkinFile("CoOrds.txt");
        SkinFields fields(in, C.errors);
        fields.label();  // the file's heading
        int i = 0;
        const std::pair<Image*, Image*> transport[] = {{&f.ButtonBack, &f.ButtonBackPress},
                                                       {&f.ButtonPlay, &f.ButtonPlayPress},
                                                       {&f.ButtonPause, &f.ButtonPausePress},
                                                       {&f.ButtonForward, &f.ButtonForwardPress}};
        for (const auto& [button, pressed] : transport) {
            fields.block(b);
            standard(*button);
            tryStep([&] { f.ImageButton[i].setPicture(button->picture()); });
            ++i;
            fields.block(b);
            cut(*pressed);
            place(*pressed);
        }
        for (Image* c : {&f.cmdUp, &f.cmdDown}) fields.block(b), standard(*c);
        fields.block(b), standard(f.SLiderVolume);
        tryStep([&] { M.MiniSliderTop = toInt32(double(b.top) * Px); });
        fields.block(b), standard(f.SliderTreble);
        M.MiniTrebleTop = b.top;
        fields.block(b), standard(f.SliderBass);
        M.MiniBassTop = b.top;
        for (Image* c : {&f.cmdShowList, &f.cmdHideList, &f.cmdListType, &f.lblSongQueue})
            fields.block(b), standard(*c);
        fields.block(b), cut(f.lblSongSets), place(f.lblSongSets);
        fields.block(b);
        ApplyMiniDigits(b.x, b.y, b.w, b.h, b.left, b.top);
        for (Image* c : {&f.imgVUPurple, &f.imgVURed, &f.imgVUAmber, &f.imgVUGreen}) fields.block(b), cut(*c);
        for (Image* c :
             {&f.cmdFullScreen, &f.cmdQuit, &f.imgButtonSong, &f.imgSLiderSong, &f.cmdLoadSkin, &f.cmdLoop})
            fields.block(b), standard(*c);
        fields.block(b), cut(f.cmdLoopOn), place(f.cmdLoopOn);
        fields.block(b), place(f.Picture1);
        tryStep([&] { f.Picture1.setWidth(b.w * Px), f.Picture1.setVisible(b.show == 1); });
        for (Image* c : {&f.cmdSaveDefaults, &f.cmsSaveTB}) fields.block(b), standard(*c);
        fields.block(b), place(f.Photo), size(f.Photo);
        tryStep([&] { f.Photo.setVisible(b.show == 1); });
        fields.block(b), size(f.lstSongSets), place(f.lstSongSets);
        fields.block(b);
        tryStep([&] {
            f.Move(f.Left(), f.Top(), toInt32(double(b.w) * Px), toInt32(double(b.h) * Px));
            M.MiniWidth = f.Width(), M.MiniHeight = f.Height();
        });
        for (Image* c : {&f.Mono, &f.Stereo}) fields.block(b), place(*c), size(*c), cut(*c);
        if (b.show == 0) tryStep([&] { f.Stereo.setPicture(Picture()); });
    }
    {
        TextFieldReader in = openSkinFile("vu.txt");
        SkinFields fields(in, C.errors);
        fields.label();
        std::int32_t left = 0, top = 0;
        for (auto& lamp : f.imgVU) {
            fields.number(left), fields.number(top);
            tryStep([&] { lamp->setLeft(left * Px), lamp->setTop(top * Px); });
        }
        std::array<std::int32_t, 3> rgb{};
        std::int32_t n = 0;
        fields.label(), tryStep([&] { f.Picture1.setBackColor(fields.colour(rgb)); });
        fields.label(), tryStep([&] { f.Picture1.setForeColor(fields.colour(rgb)); });
        fields.label(), fields.number(n), tryStep([&] { f.Picture1.setFontSize(n); });
        fields.label(), fields.number(n), tryStep([&] { f.Picture1.setFontBold(n == 1); });
        fields.label(), tryStep([&] { f.lstSongSets.setBackColor(fields.colour(rgb)); });
        fields.label(), tryStep([&] { f.lstSongSets.setForeColor(fields.colour(rgb)); });
        fields.label(), fields.number(M.MiniSliderTravel);
        fields.label(), fields.number(n), tryStep([&] { M.MiniCollapsedSize = toInt32(double(n) * Px); });
        fields.label(), fields.number(n), tryStep([&] { M.MiniCollapseHeight = toInt16(n); });
        fields.label(), fields.number(M.MiniListRows);
    }
    // A list of no rows is five; one longer than the queue can be is cut to the queue's size.
    if (M.MiniListRows <= 0) M.MiniListRows = 5;
    M.MiniListRows = std::min<std::int32_t>(M.MiniListRows, SongPathSize);
    tryStep([&] {
        M.MiniSliderBottom =
            toInt32(double(f.SLiderVolume.Top()) + double(M.MiniSliderTravel) * Px - f.SLiderVolume.Height());
        M.MiniSliderStep = (double(M.MiniSliderBottom) - M.MiniSliderTop) / 100;
    });
    for (auto& lamp : f.imgVU) tryStep([&] { lamp->setPicture(f.imgVUPurple.picture()); });
}

// The digit strip: cells of w pixels with a blank column between them, 0 to 9, then the colon
// and the point; the eight digits in a row with their separators after digits 1, 3 and 5.
void Form1::ApplyMiniDigits(std::int32_t x, std::int32_t y, std::int32_t w, std::int32_t h, std::int32_t left,
                            std::int32_t top) {
    FrmMiniPlayer& f = frmMiniPlayer;
    const auto cell = [&](int n) { return Clip1.cut(x + n * (w + 1), y, w, h); };
    for (int n = 0; n < 10; ++n) tryStep([&] { f.Number[n].setPicture(cell(n)); });
    tryStep([&] { f.imgColon[0].setPicture(cell(10)), f.imgColon[1].setPicture(cell(10)); });
    tryStep([&] { f.imgColon[2].setPicture(cell(11)); });
    std::int64_t pen = left;
    const auto put = [&](Image& c) {
        tryStep([&] { c.setLeft(toInt32(double(pen) * Px)), c.setTop(toInt32(double(top) * Px)); });
        pen += std::int64_t(w) + 1;
    };
    const int separatorAfter[] = {-1, 0, -1, 2, -1, 1, -1, -1};
    for (int i = 0; i < 8; ++i) {
        tryStep([&] { f.Time[i].setPicture(f.Number[0].picture()); });
        put(f.Time[i]);
        if (separatorAfter[i] >= 0) put(f.imgColon[separatorAfter[i]]);
    }
}

// A directory without the background picture is no skin: the program's own directory is
// tried instead, and without one there either nothing changes. The position kept from the last
// run is dropped, so the window system places the new face.
void Form1::LoadSkinMini() {
    if (!fileExists(M.MiniSkinPath + QStringLiteral("/Panel.bmp"))) M.MiniSkinPath = M.AppDir;
    if (!fileExists(M.MiniSkinPath + QStringLiteral("/Panel.bmp"))) return;
    setMousePointer(Hourglass);
    M.MiniTop = 0;
    ApplyMiniSkinFiles(M.MiniSkinPath);
    setMousePointer(DefaultPointer);
}

// The directory pick of the main skin's command, for the mini player's skin.
void Form1::mnuSelectSkinPlayer_Click() {
    AskSkinDirectory();
    M.MiniSkinPath = M.SelectedDir;
    tryStep([&] { LoadSkinMini(); });
}

void Form1::cmdLoadSkin_Click() { mnuSelectSkinPlayer_Click(); }

}  // namespace sonarium
