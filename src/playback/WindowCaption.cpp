// The window's caption: a text, followed by the alarm time while the alarm is on.
#include "shell/Form1.h"

namespace sonarium {

QString Form1::CaptionWithAlarm(const QString& text) const {
    if (!mnuAlarmOnOff.Checked()) return text;
    return text + QStringLiteral("           Alarm Time : ") + M.AlarmTime;
}

}  // namespace sonarium
