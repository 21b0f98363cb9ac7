// The main window's shapes: full, full with the page panel, rolled up to its bar, the whole
// screen for the info viewer, and swapped for the mini player. The shape lives in the height
// alone; the roll changes it in visible steps, one write each, with no timer and no wait.
#include "shell/Form1.h"
#include "shell/FrmMiniPlayer.h"
#include "shell/TextFields.h"

namespace sonarium {

namespace {
constexpr int FullHeight = 7200, InfoHeight = 8200, StickHeight = 780, RollStep = 150;
constexpr int FullPicture = 15, StickPicture = 16;
// The bar stays reachable: it is never slid below this far above the screen's bottom.
constexpr int StickMargin = 495;
}  // namespace

void Form1::wireWindowModes() {
    imgSize.onClick = [this] { imgSize_Click(); };
    imgStick.onMouseDown = [this](int b, int s, double x, double y) { imgStick_MouseDown(b, s, x, y); };
    imgStick.onMouseMove = [this](int b, int s, double x, double y) { imgStick_MouseMove(b, s, x, y); };
    imgStick.onMouseUp = [this](int, int, double, double) { StickDragging = false; };
    mnuViewStick.onClick = [this] { StickOnly(); };
    mnuMaximize.onClick = [this] { FullScreen(); };
    mnuMinimize.onClick = [this] { setWindowState(WindowState::Minimized); };
    mnuFullScreen.onClick = [this] { mnuFullScreen_Click(); };
    mnuMiniPlayer.onClick = [this] { mnuMiniPlayer_Click(); };
    mnuSelectSkinPlayer.onClick = [this] { mnuSelectSkinPlayer_Click(); };
}

// A height that only a resize by hand could give unrolls.
void Form1::imgSize_Click() {
    if (Height() != FullHeight && Height() != InfoHeight)
        FullScreen();
    else
        StickOnly();
}

void Form1::StickOnly() {
    if (!mnuVU.Checked()) tryStep([&] { PanelVU.setVisible(false); });
    tryStep([&] { mnuFile.setVisible(false), mnuView.setVisible(false); });
    // The bar shows the alarm's time, never a song's name.
    tryStep([&] { setCaption(CaptionWithAlarm(QString())); });
    for (MenuItem* menu : {&mnuHelp, &mnuConvert, &mnuCD, &mnuSetup})
        tryStep([&] { menu->setVisible(false); });
    tryStep([&] {
        for (int counter = Height(); Height() > StickHeight; counter -= RollStep) {
            setHeight(counter);
            Refresh();
        }
        setHeight(StickHeight);
    });
    ShowButtonImage(imgSize, StickPicture);
}

void Form1::FullScreen() {
    for (MenuItem* menu : {&mnuFile, &mnuView, &mnuSetup, &mnuHelp, &mnuConvert, &mnuCD})
        tryStep([&] { menu->setVisible(true); });
    tryStep([&] { setCaption(CaptionWithAlarm(lstSongs.Text())); });
    tryStep([&] { imgSLiderSong.setVisible(true), imgButtonSong.setVisible(true); });
    tryStep([&] {
        const int target = mnuEdit.Checked() || mnuInfo.Checked() ? InfoHeight : FullHeight;
        for (int counter = Height(); Height() < target; counter += RollStep) {
            setHeight(counter);
            Refresh();
        }
        setHeight(target);
    });
    ShowButtonImage(imgSize, FullPicture);
}

// Rolled up, the bar is dragged by its left button and has its own menu on the right one.
void Form1::imgStick_MouseDown(int button, int, double, double) {
    if (Height() >= FullHeight) return;
    if (button == LeftButton) {
        StickDragging = true;
    } else if (button == RightButton) {
        tryStep([&] {
            if (MenuItem* chosen = C.dialogs.popupMenu(mnuStick)) chosen->Click();
        });
    }
}

// The pointer's distance along the bar is the window's distance from the screen's top: the
// bar slides up and down the screen as the pointer moves sideways along it.
void Form1::imgStick_MouseMove(int, int, double x, double) {
    if (!StickDragging) return;
    tryStep([&] {
        const double limit = double(C.desktop.screenSizeTwips().height()) - StickMargin;
        if (x > 0 && x < limit) setTop(toInt32(x));
    });
}

// The page box and its panel take the whole screen; the viewer's close button gives it back.
void Form1::mnuFullScreen_Click() {
    const QSize screen = C.desktop.screenSizeTwips();
    tryStep([&] { RT.Move(0, 0, screen.width(), screen.height()); });
    tryStep([&] { InfoPanel.setLeft(0), InfoPanel.setTop(0); });
    tryStep([&] { Move(0, 0, screen.width(), screen.height()); });
    tryStep([&] { InfoPanel.setHeight(screen.height()), InfoPanel.setWidth(screen.width()); });
}

// The main window hides for the mini player's spell; the wait ends when that one hides.
// Meanwhile this window's timers and the player's events go on.
void Form1::mnuMiniPlayer_Click() {
    tryStep([&] { SaveMixer(); });
    tryStep([&] { setVisible(false); });
    tryStep([&] { frmMiniPlayer.Show(C.loop, true); });
    SavedVolume = M.Volume;
    PlaceSliders();
    tryStep([&] { setVisible(true), Refresh(); });
}

}  // namespace sonarium
