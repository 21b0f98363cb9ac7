// The VU meter: the lamps at each tick from the peak reading, their colours where the runs
// overlap, the window they are written on, lamps off at the end of a stream, and the menu that
// puts the panel in the song slider's place.
#include "PlaybackFixture.h"
#include "shell/FrmMiniPlayer.h"

using namespace sonarium;

namespace {

class VuMeter : public PlaybackFixture {
protected:
    void SetUp() override {
        tc.peak.setMaximum(1800);  // LampStep 100
        PlaybackFixture::SetUp();
        Form1& f = form1();
        f.imgVUGreen.setPicture(Picture::filled(1, 1, 0xFF00FF00u));
        f.imgVUAmber.setPicture(Picture::filled(1, 1, 0xFFFFBF00u));
        f.imgVURed.setPicture(Picture::filled(1, 1, 0xFFFF0000u));
        f.imgVUPurple.setPicture(Picture::filled(1, 1, 0xFF800080u));
        queue({"A"});
    }
    // The lamps as letters: g(reen), a(mber), r(ed), o(ff), ? for anything else.
    static QString lamps(ControlArray<Image>& vu, Image& g, Image& a, Image& r, Image& o) {
        QString s;
        for (auto& lamp : vu) {
            const Picture& p = lamp->picture();
            s += p.sameAs(g.picture()) ? u'g' : p.sameAs(a.picture()) ? u'a' : p.sameAs(r.picture()) ? u'r'
                 : p.sameAs(o.picture())                            ? u'o'
                                                                    : u'?';
        }
        return s;
    }
    QString lamps() {
        Form1& f = form1();
        return lamps(f.imgVU, f.imgVUGreen, f.imgVUAmber, f.imgVURed, f.imgVUPurple);
    }
    // The next tick shows `reading`.
    void tick(std::int32_t reading) {
        tc.peak.setReadings({reading});
        tc.loop.advance(10);
    }
};

TEST_F(VuMeter, LampsFollowEachReadingInEighteenEqualSteps) {
    play();
    EXPECT_TRUE(form1().TimerMix.Enabled());
    EXPECT_EQ(form1().LampStep, 100);
    tick(1000);  // exactly LampStep * 10
    EXPECT_EQ(lamps(), "ggggggggggaoooooooo");
    tick(999);
    EXPECT_EQ(lamps(), "ggggggggggooooooooo");
    tick(-1500);  // counts as 1500
    EXPECT_EQ(lamps(), "ggggggggggaaaaarooo");
    tick(1800);
    EXPECT_EQ(lamps(), "ggggggggggaaaaarrrr");
    tick(0);  // lamp 0 is lit all through play
    EXPECT_EQ(lamps(), "goooooooooooooooooo");
    tick(std::numeric_limits<std::int32_t>::min());  // no positive twin: lights nothing
    EXPECT_EQ(lamps(), "ooooooooooooooooooo");

    // A pause keeps the meter reading (silence); the end of the stream puts every lamp out.
    pause();
    tick(500);
    EXPECT_EQ(lamps(), "ggggggooooooooooooo");
    pause();  // Stop is refused in a pause
    stop();
    EXPECT_FALSE(form1().TimerMix.Enabled());
    EXPECT_EQ(lamps(), "ooooooooooooooooooo");
}

TEST_F(VuMeter, WithTheMainWindowHiddenTheMiniPlayersLampsAreWritten) {
    Form1& f = form1();
    FrmMiniPlayer& mini = program().frmMiniPlayer;
    for (Image* i : {&mini.imgVUGreen, &mini.imgVUAmber, &mini.imgVURed, &mini.imgVUPurple})
        i->setPicture(Picture::filled(1, 1, 0xFF000000u + quint32(std::uintptr_t(i) & 0xFFFF)));
    play();
    tick(1800);
    f.setVisible(false);
    tick(1100);
    EXPECT_EQ(lamps(), "ggggggggggaaaaarrrr") << "the main window's lamps stay as they were";
    EXPECT_EQ(lamps(mini.imgVU, mini.imgVUGreen, mini.imgVUAmber, mini.imgVURed, mini.imgVUPurple),
              "ggggggggggaaooooooo");
}

TEST_F(VuMeter, TheMenuSwapsThePanelForTheSongSliderAndAZeroScaleLightsAll) {
    Form1& f = form1();
    f.mnuVU.Click();
    EXPECT_TRUE(f.PanelVU.Visible() && f.mnuVU.Checked());
    EXPECT_FALSE(f.imgSLiderSong.Visible() || f.imgButtonSong.Visible());
    EXPECT_EQ(M().VUMeterOn, 1);
    f.mnuVU.Click();
    EXPECT_FALSE(f.PanelVU.Visible() || f.mnuVU.Checked());
    EXPECT_TRUE(f.imgSLiderSong.Visible() && f.imgButtonSong.Visible());
    EXPECT_EQ(M().VUMeterOn, 0);

    // With the panel hidden the lamps are still written; a scale of 0 makes every step 0.
    f.PeakMaximum = 0;
    play();
    tick(0);
    EXPECT_EQ(lamps(), "ggggggggggaaaaarrrr");
}

}  // namespace
