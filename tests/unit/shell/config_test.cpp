// LoadConfig and SaveConfig: short and hand-edited files, the comma shift, the round trip. (The
// defaults a missing file gives are the first start's, checked byte for byte as it closes.)
#include "ProgramFixture.h"

using namespace sonarium;

class Config : public ProgramFixture {
protected:
    // The load's own state before LoadConfig, as Form1's load leaves it.
    void load(const QByteArray& file) {
        write("Config.dat", file);
        M().AppDir = dir.path();
        M().EncoderChoice = 1;
        form1().tryStep([&] { form1().LoadConfig(); });
    }
};

TEST_F(Config, AFileOfThreeLinesKeepsTheRestAsTheyWere) {
    load(" 0 \r\n 1 \r\n/data/Songs.mdb\r\n");
    EXPECT_EQ(M().VUMeterOn, 1);
    EXPECT_EQ(M().DatabasePath, "/data/Songs.mdb");
    EXPECT_EQ(form1().PhotoWidth, 0) << "the load turns 0 into 3465 later";
    EXPECT_EQ(M().EncoderChoice, 1);
    EXPECT_EQ(form1().tmrInfo.Interval(), 10000);
    EXPECT_FALSE(form1().mnuStopAfterSong.Checked());
}

TEST_F(Config, AnAlarmThatWasOnIsOnAgainWithItsCaption) {
    load(" 0 \r\n 0 \r\n/db.mdb\r\n 3465 \r\n 0 \r\n/skin\r\n 1 \r\n 15000 \r\n 1 \r\n\r\n06:45\r\n 1 \r\n");
    EXPECT_TRUE(form1().mnuAlarmOnOff.Checked());
    EXPECT_TRUE(form1().tmrAlarm.Enabled());
    EXPECT_EQ(form1().Caption(), "Sonarium           Alarm Time : 06:45");
    EXPECT_TRUE(form1().mnuStopAfterSong.Checked());
    EXPECT_TRUE(form1().mnuTimerOn.Checked());
    EXPECT_TRUE(form1().tmrInfo.Enabled());
    EXPECT_EQ(form1().tmrInfo.Interval(), 15000);
    EXPECT_TRUE(form1().mnuInternal.Checked());
    EXPECT_TRUE(form1().cboSampleRate.Visible());
    EXPECT_EQ(M().MiniSkinPath, "");
}

TEST_F(Config, OnlyExactlyOneCountsAsOn) {
    load(" 0 \r\n 0 \r\n/db.mdb\r\n 3465 \r\n 2 \r\n/skin\r\n-1 \r\n 0 \r\n 2 \r\n/deck\r\n07:00\r\n-1 \r\n");
    EXPECT_FALSE(form1().mnuStopAfterSong.Checked());
    EXPECT_FALSE(form1().mnuTimerOn.Checked());
    EXPECT_FALSE(form1().mnuAlarmOnOff.Checked());
    EXPECT_EQ(form1().Caption(), "");
    EXPECT_EQ(M().AlarmTime, "07:00");
    EXPECT_TRUE(form1().mnuInternal.Checked()) << "EncoderChoice 2 is the internal encoder";
}

TEST_F(Config, ACommaInAStoredPathShiftsEveryLaterField) {
    M().AppDir = dir.path();
    M().DatabasePath = "/home/me/Rock, Pop/Songs.mdb";
    M().SkinPath = "/skins/Dark";
    form1().PhotoWidth = 1920;
    form1().tmrInfo.setInterval(20000);
    form1().SaveConfig();
    Module1 fresh;
    M() = fresh;
    form1().PhotoWidth = 0;
    M().AppDir = dir.path();
    form1().tryStep([&] { form1().LoadConfig(); });
    EXPECT_EQ(M().DatabasePath, "/home/me/Rock");
    // " Pop/Songs.mdb" went to PhotoWidth (no leading number: 0), 1920 to EncoderChoice...
    EXPECT_EQ(form1().PhotoWidth, 0);
    EXPECT_EQ(M().EncoderChoice, 1920);
    EXPECT_EQ(M().SkinPath, "0 ") << "each later line one field off";
    EXPECT_EQ(M().MiniSkinPath, "0 ");
    EXPECT_EQ(form1().tmrInfo.Interval(), 10000) << "the old stop-after-song 0 became the interval";
    EXPECT_FALSE(form1().mnuTimerOn.Checked()) << "20000 is not 1";
    EXPECT_EQ(M().AlarmTime, "00:00") << "the empty mini skin line is the alarm text";
    EXPECT_TRUE(form1().mnuInternal.Checked()) << "EncoderChoice 1920 is not 1";
}

TEST_F(Config, AFieldThatFailsEndsTheLoadAndSkipsItsLaterSteps) {
    form1().tmrInfo.setInterval(30000);
    load(" 0 \r\n 0 \r\n\r\n 99999 \r\n 0 \r\n");
    EXPECT_EQ(M().DatabasePath, "") << "step 8 never ran";
    EXPECT_EQ(form1().tmrInfo.Interval(), 30000) << "the design interval stays";
    EXPECT_FALSE(form1().mnuInternal.Checked());
}

TEST_F(Config, AnIntervalTheTimerCannotTakeEndsTheLoadThere) {
    load(" 0 \r\n 0 \r\n/db.mdb\r\n 3465 \r\n 0 \r\n/s\r\n 1 \r\n 100000 \r\n 1 \r\n");
    EXPECT_FALSE(form1().mnuTimerOn.Checked());
    EXPECT_FALSE(form1().mnuStopAfterSong.Checked());
}

TEST_F(Config, JunkNumbersReadAsTheirLeadingNumber) {
    load("abc\r\n1x\r\n\"/quoted, path\"\r\n 3645.4 \r\n");
    EXPECT_EQ(M().MiniMode, 0);
    EXPECT_EQ(M().VUMeterOn, 1);
    EXPECT_EQ(M().DatabasePath, "/quoted, path");
    EXPECT_EQ(form1().PhotoWidth, 3645);
}

TEST_F(Config, SaveThenLoadRoundTrips) {
    M().AppDir = dir.path();
    M().MiniMode = 1;
    M().VUMeterOn = 1;
    M().DatabasePath = "/data/Ünïcode Songs.mdb";
    form1().PhotoWidth = 1920;
    M().EncoderChoice = 0;
    M().SkinPath = "/skins/Dark";
    form1().mnuStopAfterSong.setChecked(true);
    form1().tmrInfo.setInterval(25000);
    form1().mnuTimerOn.setChecked(true);
    M().MiniSkinPath = "/skins/Deck";
    M().AlarmTime = "23:59";
    form1().mnuAlarmOnOff.setChecked(true);
    form1().SaveConfig();
    const QByteArray saved = read("Config.dat");

    TestComponents other;
    other.startDir = dir.path();
    Components comps = other.components();
    Program p(comps);
    p.M.AppDir = dir.path();
    p.form1.LoadConfig();
    EXPECT_EQ(p.M.MiniMode, 1);
    EXPECT_EQ(p.M.DatabasePath, "/data/Ünïcode Songs.mdb");
    EXPECT_EQ(p.form1.PhotoWidth, 1920);
    EXPECT_EQ(p.M.EncoderChoice, 0);
    EXPECT_TRUE(p.form1.mnuStopAfterSong.Checked());
    EXPECT_EQ(p.form1.tmrInfo.Interval(), 25000);
    EXPECT_TRUE(p.form1.mnuTimerOn.Checked());
    EXPECT_EQ(p.M.MiniSkinPath, "/skins/Deck");
    EXPECT_EQ(p.M.AlarmTime, "23:59");
    EXPECT_TRUE(p.form1.mnuAlarmOnOff.Checked());
    p.form1.SaveConfig();
    EXPECT_EQ(read("Config.dat"), saved);
}
