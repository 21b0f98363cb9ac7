// Where the song is (lblTime and the knob on its bar), the knob's drag and seek, and the speed.
// All time on the screen comes from frames and the whole FramesPerSecond, so it drifts from true
// time by that rounding.
#include "controls/Errors.h"
#include "shell/Form1.h"
#include "shell/FrmMiniPlayer.h"
#include "shell/TextFields.h"

namespace sonarium {

namespace {
constexpr int KnobStart = 3705, KnobEnd = 6345, KnobSteps = 176, StepTwips = 15;

QString twoDigits(std::int32_t n) { return QStringLiteral("%1").arg(n, 2, 10, QLatin1Char('0')); }

// A whole-number division as the program's rounding does it; by zero it fails.
std::int32_t roundedRatio(double a, double b) {
    if (b == 0) throw RuntimeError(RuntimeError::DivisionByZero, QStringLiteral("Division by zero"));
    return toInt32(a / b);
}

// Steps 3 to 5 of the knob: a step of 0 resets the last one, a step behind it lets the knob
// follow a jump backward, and the knob moves only when its step grows.
bool knobMoves(std::int16_t& last, std::int32_t step) {
    if (step == 0) last = 0;
    if (last > step) last = std::int16_t(step - 1);
    if (last < step) {
        last = toInt16(step);
        return true;
    }
    return false;
}
}  // namespace

void Form1::FrameNotify(std::int32_t frame) {
    LastFrame = frame;
    tryStep([&] { KaraokeFrame(frame); });
    std::int32_t seconds = 0, minutes = 0, rest = 0;
    const bool timeKnown = tryStep([&] {
        seconds = roundedRatio(frame, FramesPerSecond);
        minutes = seconds / 60;
        rest = seconds - 60 * minutes;
    });
    if (timeKnown) {
        tryStep([&] {
            lblTime.setCaption(SongLengthText + QStringLiteral(" / ") + twoDigits(minutes) + u':' +
                               twoDigits(rest));
        });
        if (frmMiniPlayer.Visible()) tryStep([&] { MiniShowElapsed(minutes, rest); });
    }

    tryStep([&] {
        const std::int32_t step = roundedRatio(frame, roundedRatio(TotalFrames, KnobSteps));
        if (knobMoves(LastSongStep, step)) imgButtonSong.setLeft(step * StepTwips + KnobStart);
    });
    tryStep([&] {
        const Image& bar = frmMiniPlayer.imgSLiderSong;
        const std::int32_t steps = roundedRatio(bar.Width() - frmMiniPlayer.imgButtonSong.Width(), StepTwips);
        const std::int32_t step = roundedRatio(frame, roundedRatio(TotalFrames, steps));
        if (knobMoves(LastMiniStep, step) && frmMiniPlayer.Visible())
            frmMiniPlayer.imgButtonSong.setLeft(step * StepTwips + bar.Left());
    });
}

void Form1::imgButtonSong_MouseDown(int, int, double, double) { SliderDragging = true; }

// The knob follows the cursor, centred under it, within its bar. The cursor is taken in the
// knob's container, which is what the screen position less the window's origin gives.
void Form1::imgButtonSong_MouseMove(int, int, double x, double) {
    if (!SliderDragging) return;
    const int left = toInt32(imgButtonSong.Left() + x - imgButtonSong.Width() / 2.0);
    imgButtonSong.setLeft(std::clamp(left, KnobStart, KnobEnd));
}

// The divisions here are by constants and can't fail, so nothing is skipped.
void Form1::imgButtonSong_MouseUp(int, int, double, double) {
    SliderDragging = false;
    if (!M.SongPlaying) return;
    const std::int32_t step = toInt32((imgButtonSong.Left() - KnobStart) / double(StepTwips));
    const std::int32_t perStep = toInt32(TotalFrames / double(KnobSteps));
    C.mp3.SeekFrame(step * perStep);
}

// Lower is faster; the label shows 200 less the value, so it rises with the speed. No limits:
// the player decides what it makes of the sum.
void Form1::cmdSpeedUp_Click() {
    M.SongSpeed = std::int16_t(M.SongSpeed - 5);
    tryStep([&] { C.mp3.SetSpeed(M.SongSpeed); });
    lblSpeed.setCaption(QString::number(200 - M.SongSpeed));
}

void Form1::cmdSpeedDown_Click() {
    M.SongSpeed = std::int16_t(M.SongSpeed + 5);
    tryStep([&] { C.mp3.SetSpeed(M.SongSpeed); });
    lblSpeed.setCaption(QString::number(200 - M.SongSpeed));
}

}  // namespace sonarium
