// Punch in/out: marking by ear the one section of a queued song that MP3 to WAV decodes. The
// dialog previews the song on the second player, which reports every frame; two presses of one
// button catch the start and the end, and the adjust buttons move either by single frames.
// The marks live in memory with the queue rows and are never saved.
#include <algorithm>
#include <cmath>

#include "controls/SongNames.h"
#include "shell/Form1.h"
#include "shell/Form2.h"

namespace sonarium {

namespace {
// The Punch In press comes a little after the point heard: just under two seconds of frames.
constexpr std::int32_t PunchInLead = 76;
const QString PlayCaption = QStringLiteral("Play");
const QString StopCaption = QStringLiteral("Stop");
const QString TestCaption = QStringLiteral("Test");
const QString PunchInCaption = QStringLiteral("Punch In");
}  // namespace

void Form1::cmdSetPunchInOut_Click() {
    if (lstSongs.ListCount() == 0) {
        const QString text = PanelDatabase.Visible()
                                 ? QStringLiteral(
                                       "Nothing in song queue - Select a title in the database, and "
                                       "click the 'Add to queue' button")
                                 : QStringLiteral(
                                       "Nothing in song queue - Click on a song title to add it to the "
                                       "song queue");
        C.dialogs.msgBox(text, MsgButtons::OK, MsgIcon::Information, QStringLiteral("Punch In/Out"));
        return;
    }
    if (lstSongs.ListIndex() < 0) tryStep([&] { lstSongs.setListIndex(0); });
    Form2::PunchRow row;
    row.index = lstSongs.ListIndex();
    row.rowCount = lstSongs.ListCount();
    row.text = lstSongs.Text();
    tryStep([&] { row.songFile = songBase(SongPathOf(row.index), row.text) + QStringLiteral(".MP3"); });
    form2.ShowPunch(row);
    tryStep([&] { GetSong(M.CurrentSong); });
}

void Form2::ShowPunch(const PunchRow& row) {
    row_ = row;
    setCaption(QStringLiteral("Punch In/Out"));
    lblSongTitile.setCaption(row.text);
    PanelPunchInOut.setVisible(true);
    Load();
    OpenPunch();
    // A song that would not open has closed the dialog already.
    if (PanelPunchInOut.Visible()) tryStep([&] { Show(C.loop, true); });
}

// Each opening sizes the arrays to the queue, keeping what they hold; one element more than rows.
void Form2::ResizePunchArrays(int rows) {
    const auto size = std::size_t(std::max(rows, 0) + 1);
    M.PunchStart.resize(size);
    M.PunchEnd.resize(size);
    M.PunchActive.resize(size);
}

void Form2::OpenPunch() {
    ResizePunchArrays(row_.rowCount);
    const auto row = std::size_t(row_.index);
    // The face the dialog opens with.
    cmdPunchInOutPlay.setCaption(PlayCaption);
    cmdPunchInOutSet.setCaption(PunchInCaption);
    cmdPunchInOutSet.setVisible(false);
    cmdPunchInOutTest.setCaption(TestCaption);
    cmdPunchInOutTest.setVisible(true);
    chkPunchInOutActivate.setEnabled(true);
    chkPunchInOutActivate.setValue(0);
    lblPosn.setCaption(QString());
    tryStep([&] {
        if (M.PunchActive.at(row) == 1) chkPunchInOutActivate.setValue(1);
    });
    tryStep([&] { C.mp32.setNotifyInterval(1); });
    std::int16_t rc = 1;
    tryStep([&] { rc = C.mp32.Open(row_.songFile, QString()); });
    if (rc != 0) {
        C.dialogs.msgBox(QStringLiteral("Song Open Error"), MsgButtons::OK, MsgIcon::None, QString());
        cmdPunchInOutCancel_Click();
        return;
    }
    tryStep([&] { PunchTotalFrames = C.mp32.FrameCount(); });
    tryStep([&] { M.PunchInFrame = M.PunchStart.at(row); });
    tryStep([&] { M.PunchOutFrame = M.PunchEnd.at(row); });
    if (M.PunchInFrame == 0) M.PunchInFrame = 1;
    if (M.PunchOutFrame == 0 || M.PunchOutFrame == PunchTotalFrames) M.PunchOutFrame = PunchTotalFrames - 1;
    Slider.setRange(1, PunchTotalFrames - 1);
    Slider.setTickFrequency(int(std::lround(PunchTotalFrames / 10.0)));
    Slider.setValue(0);
    lblTotalFrames.setCaption(QString::number(PunchTotalFrames));
    lblStartFrame.setCaption(QString::number(M.PunchInFrame));
    lblEndFrame.setCaption(QString::number(M.PunchOutFrame));
}

// Play previews from the slider's place to the end; a second press stops. Either way the next
// mark to catch is the start.
void Form2::cmdPunchInOutPlay_Click() {
    cmdPunchInOutSet.setCaption(PunchInCaption);
    const std::int32_t start = Slider.Value() == 0 ? 1 : Slider.Value();
    if (cmdPunchInOutPlay.Caption() == PlayCaption) {
        cmdPunchInOutSet.setVisible(true);
        tryStep([&] { C.mp32.Close(); });
        tryStep([&] { C.mp32.Open(row_.songFile, QString()); });
        tryStep([&] { C.mp32.setNotifyInterval(1); });
        tryStep([&] { C.mp32.PlayRange(start, C.mp32.FrameCount() - 1); });
        cmdPunchInOutPlay.setCaption(StopCaption);
    } else {
        tryStep([&] { C.mp32.Stop(); });
        tryStep([&] { C.mp32.Close(); });
        cmdPunchInOutSet.setVisible(false);
        if (M.PunchOutFrame > 0) cmdPunchInOutTest.setVisible(true);
        cmdPunchInOutPlay.setCaption(PlayCaption);
    }
}

void Form2::cmdPunchInOutSet_Click() {
    if (cmdPunchInOutSet.Caption() == PunchInCaption) {
        M.PunchInFrame = std::max<std::int32_t>(M.PunchPosition - PunchInLead, 1);
        lblStartFrame.setCaption(QString::number(M.PunchInFrame));
        M.PunchOutFrame = PunchTotalFrames;
        lblEndFrame.setCaption(QString::number(M.PunchOutFrame));
        cmdPunchInOutSet.setCaption(QStringLiteral("Punch Out"));
    } else {
        M.PunchOutFrame = std::min(M.PunchPosition, PunchTotalFrames);
        lblEndFrame.setCaption(QString::number(M.PunchOutFrame));
        cmdPunchInOutSet.setCaption(PunchInCaption);
        cmdPunchInOutPlay_Click();
    }
}

// Test plays the section as marked, to its last frame.
void Form2::cmdPunchInOutTest_Click() {
    if (cmdPunchInOutTest.Caption() == TestCaption) {
        tryStep([&] { C.mp32.Close(); });
        std::int16_t rc = 1;
        tryStep([&] { rc = C.mp32.Open(row_.songFile, QString()); });
        tryStep([&] { C.mp32.PlayRange(M.PunchInFrame, M.PunchOutFrame); });
        if (rc == 0) M.PunchTesting = 1;
        cmdPunchInOutTest.setCaption(StopCaption);
    } else {
        tryStep([&] { C.mp32.Stop(); });
        tryStep([&] { C.mp32.Close(); });
        cmdPunchInOutTest.setCaption(TestCaption);
        M.PunchTesting = 0;
    }
}

void Form2::AdjustFrame(std::int32_t& frame, int step, bool allowed, Label& label) {
    if (allowed) frame += step;
    label.setCaption(QString::number(frame));
}

// An end before the first frame is no section: nothing to test, nothing to use.
void Form2::EndFrameAdjusted() {
    const bool section = M.PunchOutFrame >= 1;
    cmdPunchInOutTest.setVisible(section);
    chkPunchInOutActivate.setEnabled(section);
}

// Clears the flag of every row, not only this one's; the frames stay.
void Form2::cmdClearAll_Click() {
    M.PunchActive.assign(std::size_t(std::max(row_.rowCount, 0) + 1), 0);
    chkPunchInOutActivate.setValue(0);
}

void Form2::cmdPunchInOutOK_Click() {
    const auto row = std::size_t(row_.index);
    tryStep([&] { M.PunchStart.at(row) = M.PunchInFrame; });
    tryStep([&] { M.PunchEnd.at(row) = M.PunchOutFrame; });
    tryStep([&] { M.PunchActive.at(row) = std::int16_t(chkPunchInOutActivate.Value()); });
    Unload();
}

void Form2::cmdPunchInOutCancel_Click() {
    PanelPunchInOut.setVisible(false);
    Unload();
}

void Form2::MP32_FrameNotify(std::int32_t frame) {
    M.PunchPosition = frame;
    lblPosn.setCaption(QString::number(frame));
    Slider.setValue(frame);
}

void Form2::MP32_StreamEnd() {
    cmdPunchInOutPlay.setCaption(PlayCaption);
    cmdPunchInOutTest.setCaption(TestCaption);
    Slider.setValue(0);
}

void Form2::Slider_Scroll() {
    tryStep([&] { C.mp32.SeekFrame(Slider.Value()); });
    lblPosn.setCaption(QString::number(Slider.Value()));
}

}  // namespace sonarium
