// LoadConfig on short, hand-edited and failing files. (A comma that shifts the fields is the
// text field reader's rule. The defaults a missing file gives are the first start's, and the
// round trip of a full file is a start and a quit: both are checked byte for byte in the
// shutdown test.)
#include "ProgramFixture.h"

using namespace sonarium;

namespace {

class Config : public ProgramFixture {
protected:
    // The load's own state before LoadConfig, as Form1's load leaves it.
    void load(const QByteArray& file) {
        write("Config.dat", file);
        M().AppDir = dir.path();
        M().EncoderChoice = 1;
        form1().tryStep([&] { form1().LoadConfig(); });
    }
    // What the load set, field by field in the file's order: mini mode, meter, library, photo
    // width, encoder, skin, stop after song, info interval, info timer (menu and timer), mini
    // skin, alarm time, alarm (menu and timer), caption, encoder menu (internal, rate shown).
    QString state() {
        Form1& f = form1();
        const auto n = [](double v) { return QString::number(v); };
        const auto on = [](bool menu, bool other) { return QString::number(menu) + QString::number(other); };
        QStringList fields;
        fields << n(M().MiniMode) << n(M().VUMeterOn) << M().DatabasePath << n(f.PhotoWidth)
               << n(M().EncoderChoice) << M().SkinPath << n(f.mnuStopAfterSong.Checked())
               << n(f.tmrInfo.Interval()) << on(f.mnuTimerOn.Checked(), f.tmrInfo.Enabled())
               << M().MiniSkinPath << M().AlarmTime << on(f.mnuAlarmOnOff.Checked(), f.tmrAlarm.Enabled())
               << f.Caption() << on(f.mnuInternal.Checked(), f.cboSampleRate.Visible());
        return fields.join(u'|');
    }
};

TEST_F(Config, ShortHandEditedAndFailingFiles) {
    const std::pair<QByteArray, QString> cases[] = {
        // Three lines: the rest stay as they were, and 0 stands for the default interval.
        {" 0 \r\n 1 \r\n/data/Songs.mdb\r\n", "0|1|/data/Songs.mdb|0|1||0|10000|00||00:00|00||00"},
        // An alarm that was on is on again with its caption; encoder 0 is the internal one.
        {" 0 \r\n 0 \r\n/db.mdb\r\n 3465 \r\n 0 \r\n/skin\r\n 1 \r\n 15000 \r\n 1 \r\n\r\n06:45\r\n 1 \r\n",
         "0|0|/db.mdb|3465|0|/skin|1|15000|11||06:45|11|Sonarium           Alarm Time : 06:45|11"},
        // Only exactly 1 counts as on; encoder 2 is the internal one too.
        {" 0 \r\n 0 \r\n/db.mdb\r\n 3465 \r\n 2 \r\n/skin\r\n-1 \r\n 0 \r\n 2 \r\n/deck\r\n07:00\r\n-1 \r\n",
         "0|0|/db.mdb|3465|2|/skin|0|10000|00|/deck|07:00|00||11"},
        // A field that fails ends the load and skips its later steps: the library path stays
        // empty, the design interval (30000) stays, the encoder menu is never set.
        {" 0 \r\n 0 \r\n\r\n 99999 \r\n 0 \r\n", "0|0||0|1||0|30000|00||00:00|00||01"},
    };
    for (const auto& [file, expected] : cases) {
        prog.reset();
        load(file);
        EXPECT_EQ(state(), expected) << file.constData();
    }
}

}  // namespace
