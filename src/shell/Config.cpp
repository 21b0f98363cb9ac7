// Config.dat: the twelve settings that survive between runs, one a line, in a fixed order.
#include "controls/Errors.h"
#include "controls/FileNames.h"
#include "shell/AppFiles.h"
#include "shell/Form1.h"
#include "shell/TextFields.h"

namespace sonarium {

// No failure rule of its own: a read that fails ends it, steps 3 to 9 included, and the
// caller goes on.
void Form1::LoadConfig() {
    M.AlarmTime = QStringLiteral("00:00");
    std::int16_t stopAfterSong = 0, timerOn = 0, alarmOn = 0;
    std::int32_t infoInterval = 0;
    QString alarmText;

    const QString file = joinPath(M.AppDir, QStringLiteral("Config.dat"));
    if (fileExists(file)) {
        TextFieldReader in = TextFieldReader::open(file);
        if (!in.atEnd()) M.MiniMode = in.readInt16();
        if (!in.atEnd()) M.VUMeterOn = in.readInt16();
        if (!in.atEnd()) M.DatabasePath = in.readString();
        if (!in.atEnd()) PhotoWidth = in.readInt16();
        if (!in.atEnd()) M.EncoderChoice = in.readInt16();
        if (!in.atEnd()) M.SkinPath = in.readString();
        if (!in.atEnd()) stopAfterSong = in.readInt16();
        if (!in.atEnd()) infoInterval = in.readInt32();
        if (!in.atEnd()) timerOn = in.readInt16();
        if (!in.atEnd()) M.MiniSkinPath = in.readString();
        if (!in.atEnd()) alarmText = in.readString();
        if (!in.atEnd()) alarmOn = in.readInt16();
    }

    if (!alarmText.isEmpty()) M.AlarmTime = alarmText;
    if (alarmOn == 1) {
        mnuAlarmOnOff.setChecked(true);
        tmrAlarm.setEnabled(true);
        setCaption(CaptionWithAlarm(QStringLiteral("Sonarium")));
    }
    if (infoInterval == 0) infoInterval = 10000;
    tmrInfo.setInterval(infoInterval);
    if (timerOn == 1) {
        mnuTimerOn.setChecked(true);
        tmrInfo.setEnabled(true);
    } else {
        mnuTimerOn.setChecked(false);
        tmrInfo.setEnabled(false);
    }
    mnuStopAfterSong.setChecked(stopAfterSong == 1);
    if (M.DatabasePath.isEmpty()) M.DatabasePath = joinPath(M.AppDir, QStringLiteral("SonariumData.mdb"));
    if (M.EncoderChoice == 1) {
        mnuBlade.setChecked(true);
        mnuInternal.setChecked(false);
        cboSampleRate.setVisible(false);
    } else {
        mnuBlade.setChecked(false);
        mnuInternal.setChecked(true);
        cboSampleRate.setVisible(true);
    }
}

void Form1::SaveConfig() {
    const std::int32_t infoInterval = tmrInfo.Interval();
    TextFieldWriter out;
    out.writeNumber(M.MiniMode);
    out.writeNumber(M.VUMeterOn);
    out.writeString(M.DatabasePath);
    out.writeNumber(PhotoWidth);
    out.writeNumber(M.EncoderChoice);
    out.writeString(M.SkinPath);
    out.writeNumber(mnuStopAfterSong.Checked() ? 1 : 0);
    out.writeNumber(infoInterval);
    out.writeNumber(mnuTimerOn.Checked() ? 1 : 0);
    out.writeString(M.MiniSkinPath);
    out.writeString(M.AlarmTime);
    out.writeNumber(mnuAlarmOnOff.Checked() ? 1 : 0);
    out.save(joinPath(M.AppDir, QStringLiteral("Config.dat")));
}

}  // namespace sonarium
