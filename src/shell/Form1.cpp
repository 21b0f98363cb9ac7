#include "shell/Form1.h"

namespace sonarium {

Form1::Form1(Module1& m, Components& c, FrmGeneral& general, Form2& f2, FrmMiniPlayer& mini)
    : Form(QStringLiteral("Form1")),
      Form1Controls(c),
      M(m),
      C(c),
      frmGeneral(general),
      form2(f2),
      frmMiniPlayer(mini) {
    design();
    wireHandlers();
}

// Events of the window, its controls and menus, to the procedures that serve them.
void Form1::wireHandlers() {
    onLoad = [this] { Form_Load(); };
    onActivate = [this] { Form_Activate(); };
    onKeyDown = [this](int& key, int shift) { Form_KeyDown(key, shift); };
    onQueryUnload = [this](bool& cancel) { Form_QueryUnload(cancel); };

    mnuQuit.onClick = [this] { mnuQuit_Click(); };
    SQuit.onClick = [this] { SQuit_Click(); };
    mnuContents.onClick = [this] { mnuContents_Click(); };
    mnuAbout.onClick = [this] { mnuAbout_Click(); };

    BtnPlay.onMouseDown = [this](int b, int s, double x, double y) { BtnPlay_MouseDown(b, s, x, y); };
    BtnPlay.onMouseUp = [this](int b, int s, double x, double y) { BtnPlay_MouseUp(b, s, x, y); };
    BtnPause.onMouseDown = [this](int b, int s, double x, double y) { BtnPause_MouseDown(b, s, x, y); };
    BtnPause.onMouseUp = [this](int b, int s, double x, double y) { BtnPause_MouseUp(b, s, x, y); };
    BtnStop.onMouseDown = [this](int b, int s, double x, double y) { BtnStop_MouseDown(b, s, x, y); };
    BtnStop.onMouseUp = [this](int b, int s, double x, double y) { BtnStop_MouseUp(b, s, x, y); };
    BtnFade.onMouseDown = [this](int b, int s, double x, double y) { BtnFade_MouseDown(b, s, x, y); };
    BtnFade.onMouseUp = [this](int b, int s, double x, double y) { BtnFade_MouseUp(b, s, x, y); };
    C.mp3.onStreamEnd = [this] { MP3_StreamEnd(); };
    lstSongs.onClick = [this] { lstSongs_Click(); };

    chkLoop.onClick = [this] { chkLoop_Click(); };
    mnuLoopOff.onClick = [this] { mnuLoopOff_Click(); };
    mnuLoopSongSet.onClick = [this] { mnuLoopSongSet_Click(); };
    mnuLoopSong.onClick = [this] { mnuLoopSong_Click(); };
    mnuStopAfterSong.onClick = [this] { mnuStopAfterSong_Click(); };
}

}  // namespace sonarium
