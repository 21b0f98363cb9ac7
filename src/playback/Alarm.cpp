// The alarm: at the chosen minute, if nothing plays, the program presses its own Play button.
#include "controls/Errors.h"
#include "shell/Form1.h"

namespace sonarium {

namespace {
// The clock's text as the alarm compares it: 24-hour hours, a colon, minutes.
QString clockText(EventLoop& loop) { return loop.wallClock().toString(QStringLiteral("HH:mm")); }
}  // namespace

// Fires at most once in the matching minute: AlarmDone holds it until the clock reads another
// minute. A song that plays through the whole minute lets the alarm pass unseen.
void Form1::tmrAlarm_Timer() {
    if (clockText(C.loop) == M.AlarmTime && !M.SongPlaying && !AlarmDone) {
        tryStep([&] { BtnPlay_MouseUp(LeftButton, 0, 1.0, 1.0); });
        AlarmDone = true;
    }
    if (AlarmDone && clockText(C.loop) != M.AlarmTime) AlarmDone = false;
}

void Form1::mnuSetAlarmTime_Click() {
    lblAlarmTime.setCaption(M.AlarmTime);
    if (lblAlarmTime.Caption() == QLatin1String(":")) lblAlarmTime.setCaption(QStringLiteral("00:00"));
    PanelAlarm.setVisible(true);
}

// With one list unset the time reads like "07:", which is kept and never matches.
void Form1::cmdSetTimeOK_Click() {
    M.AlarmTime = lstHour.Text() + u':' + lstMinute.Text();
    if (M.AlarmTime == QLatin1String(":")) M.AlarmTime = QStringLiteral("00:00");
    PanelAlarm.setVisible(false);
    setCaption(CaptionWithAlarm(lstSongs.Text()));
}

void Form1::cmdSetTimeCancel_Click() { PanelAlarm.setVisible(false); }

void Form1::mnuAlarmOnOff_Click() {
    const bool on = !mnuAlarmOnOff.Checked();
    mnuAlarmOnOff.setChecked(on);
    tmrAlarm.setEnabled(on);
    setCaption(CaptionWithAlarm(lstSongs.Text()));
}

}  // namespace sonarium
