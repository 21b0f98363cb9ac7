#include "shell/Form2.h"

#include <algorithm>

namespace sonarium {

Form2::Form2(Module1& m, Components& c) : Form(QStringLiteral("Form2")), M(m), C(c) {
    setCaption(QStringLiteral("Sonarium"));
    design();
    wireHandlers();
}

std::vector<Control*> Form2::allControls() {
    return {&lblSelectDrive,
            &List1,
            &cmdSelectOK,
            &PanelPunchInOut,
            &lblSongTitile,
            &lblTotalCaption,
            &lblTotalFrames,
            &lblPosnCaption,
            &lblPosn,
            &Slider,
            &cmdPunchInOutPlay,
            &cmdPunchInOutSet,
            &cmdPunchInOutTest,
            &lblStartCaption,
            &lblStartFrame,
            &lblAdjustStart,
            &cmdStartFrameLess,
            &cmdStartFrameMore,
            &lblEndCaption,
            &lblEndFrame,
            &lblAdjustEnd,
            &cmdEndFrameLess,
            &cmdEndFrameMore,
            &chkPunchInOutActivate,
            &cmdClearAll,
            &cmdPunchInOutOK,
            &cmdPunchInOutCancel};
}

// Sizes in twips, 15 to a pixel: a dialog of 400 by 250 pixels. The punch panel covers the
// whole dialog, so the drive list under it is out of sight while the editor is up.
void Form2::design() {
    Move(0, 0, 6000, 3750);
    lblSelectDrive.setCaption(QStringLiteral("Select a drive"));
    lblSelectDrive.Move(120, 90, 5760, 300);
    List1.Move(120, 450, 5760, 2550);
    List1.setDescription(QStringLiteral("CD drives"));
    cmdSelectOK.setCaption(QStringLiteral("OK"));
    cmdSelectOK.Move(4740, 3180, 1140, 390);

    PanelPunchInOut.Move(0, 0, 6000, 3750);
    PanelPunchInOut.setVisible(false);
    // Every control listed after the panel stands in it.
    const std::vector<Control*> all = allControls();
    for (auto it = std::find(all.begin(), all.end(), &PanelPunchInOut) + 1; it != all.end(); ++it)
        (*it)->setContainer(&PanelPunchInOut);
    lblSongTitile.setAlignment(Alignment::Center);
    lblSongTitile.Move(120, 90, 5760, 300);
    auto label = [](Label& l, const char* caption, int left, int top, int width) {
        l.setCaption(QString::fromLatin1(caption));
        l.Move(left, top, width, 270);
    };
    label(lblTotalCaption, "Frames:", 120, 480, 1080);
    lblTotalFrames.Move(1200, 480, 1500, 270);
    label(lblPosnCaption, "Position:", 3000, 480, 1080);
    lblPosn.Move(4080, 480, 1500, 270);
    lblPosn.setDescription(QStringLiteral("Position"));
    Slider.Move(120, 840, 5760, 420);
    Slider.setDescription(QStringLiteral("Position in the song"));
    auto button = [](CommandButton& b, const char* caption, int left, int top, int width) {
        b.setCaption(QString::fromLatin1(caption));
        b.Move(left, top, width, 390);
    };
    button(cmdPunchInOutPlay, "Play", 120, 1380, 1200);
    button(cmdPunchInOutSet, "Punch In", 1440, 1380, 1200);
    button(cmdPunchInOutTest, "Test", 2760, 1380, 1200);
    cmdPunchInOutSet.setVisible(false);

    label(lblStartCaption, "Start frame:", 120, 1950, 1080);
    lblStartFrame.Move(1200, 1950, 1500, 270);
    label(lblAdjustStart, "Adjust", 3000, 1950, 720);
    button(cmdStartFrameLess, "<", 3720, 1890, 450);
    button(cmdStartFrameMore, ">", 4230, 1890, 450);
    label(lblEndCaption, "End frame:", 120, 2430, 1080);
    lblEndFrame.Move(1200, 2430, 1500, 270);
    label(lblAdjustEnd, "Adjust", 3000, 2430, 720);
    button(cmdEndFrameLess, "<", 3720, 2370, 450);
    button(cmdEndFrameMore, ">", 4230, 2370, 450);
    cmdStartFrameLess.setDescription(QStringLiteral("Start one frame earlier"));
    cmdStartFrameMore.setDescription(QStringLiteral("Start one frame later"));
    cmdEndFrameLess.setDescription(QStringLiteral("End one frame earlier"));
    cmdEndFrameMore.setDescription(QStringLiteral("End one frame later"));

    chkPunchInOutActivate.setCaption(QStringLiteral("Use when decoding"));
    chkPunchInOutActivate.Move(120, 2880, 2400, 300);
    button(cmdClearAll, "Clear All", 3720, 2850, 960);
    button(cmdPunchInOutOK, "OK", 3480, 3270, 1140);
    button(cmdPunchInOutCancel, "Cancel", 4740, 3270, 1140);
}

void Form2::wireHandlers() {
    onUnload = [this] { Form_Unload(); };
    cmdSelectOK.onClick = [this] { Unload(); };
    cmdPunchInOutPlay.onClick = [this] { cmdPunchInOutPlay_Click(); };
    cmdPunchInOutSet.onClick = [this] { cmdPunchInOutSet_Click(); };
    cmdPunchInOutTest.onClick = [this] { cmdPunchInOutTest_Click(); };
    // The adjust buttons act as the mouse goes down, a frame a press.
    cmdStartFrameLess.onMouseDown = [this](int, int, double, double) {
        AdjustFrame(M.PunchInFrame, -1, M.PunchInFrame > 1, lblStartFrame);
    };
    cmdStartFrameMore.onMouseDown = [this](int, int, double, double) {
        AdjustFrame(M.PunchInFrame, 1, M.PunchInFrame < M.PunchOutFrame - 2, lblStartFrame);
    };
    // No floor at the start frame: the end may cross it.
    cmdEndFrameLess.onMouseDown = [this](int, int, double, double) {
        AdjustFrame(M.PunchOutFrame, -1, M.PunchOutFrame > 1, lblEndFrame);
        EndFrameAdjusted();
    };
    // The bound is the main player's count, whatever song that one holds.
    cmdEndFrameMore.onMouseDown = [this](int, int, double, double) {
        std::int32_t bound = 0;
        tryStep([&] { bound = C.mp3.FrameCount(); });
        AdjustFrame(M.PunchOutFrame, 1, M.PunchOutFrame < bound - 2, lblEndFrame);
        EndFrameAdjusted();
    };
    cmdClearAll.onClick = [this] { cmdClearAll_Click(); };
    cmdPunchInOutOK.onClick = [this] { cmdPunchInOutOK_Click(); };
    cmdPunchInOutCancel.onClick = [this] { cmdPunchInOutCancel_Click(); };
    Slider.onScroll = [this] { Slider_Scroll(); };
    C.mp32.onFrameNotify = [this](std::int32_t frame) { MP32_FrameNotify(frame); };
    C.mp32.onStreamEnd = [this] { MP32_StreamEnd(); };
}

void Form2::ShowDrives(const QStringList& drives) {
    tryStep([&] { PanelPunchInOut.setVisible(false); });
    tryStep([&] { List1.Clear(); });
    for (const QString& drive : drives) tryStep([&] { List1.AddItem(drive); });
    tryStep([&] { Show(C.loop, true); });
}

// However the dialog closes: the preview stops, and the drive chosen (none gives 0) is taken.
void Form2::Form_Unload() {
    tryStep([&] { C.mp32.Stop(); });
    tryStep([&] { C.mp32.Close(); });
    M.SelectedCDDrive = std::int16_t(List1.ListIndex() + 1);
}

}  // namespace sonarium
