// The VU meter: the lamps at each tick from the peak reading, their colours where the runs
// overlap, the window they are written on, and lamps off at the end of a stream.
#include "PlaybackFixture.h"
#include "shell/FrmMiniPlayer.h"

using namespace sonarium;

namespace {

class VuMeter : public PlaybackFixture {
protected:
    void SetUp() override {
        tc.peak.setMaximum(1800);  // LampStep 100
        PlaybackFixture::SetUp();
        queue({"A"});
        // One-pixel pictures whose colour is the lamp's letter in lamps() below.
        std::uint32_t colour = 1;
        FrmMiniPlayer& mini = program().frmMiniPlayer;
        for (Image* i : {&form1().imgVUGreen, &form1().imgVUAmber, &form1().imgVURed, &form1().imgVUPurple,
                         &mini.imgVUGreen, &mini.imgVUAmber, &mini.imgVURed, &mini.imgVUPurple})
            i->setPicture(Picture::filled(1, 1, colour++));
    }
    // The lamps as letters: g(reen), a(mber), r(ed), o(ff); the mini player's in capitals.
    static QString lamps(auto& window) {
        QString s;
        for (auto& lamp : window.imgVU) s += QStringLiteral("?garoGARO").at(lamp->picture().pixel(0, 0));
        return s;
    }
    // The next tick shows `reading`.
    void tick(std::int32_t reading) {
        tc.peak.setReadings({reading});
        tc.loop.advance(10);
    }
};

TEST_F(VuMeter, LampsFollowEachReadingInEighteenEqualStepsOnTheWindowThatShows) {
    play();
    for (auto [reading, shown] : {std::pair{1000, "ggggggggggaoooooooo"},  // exactly LampStep * 10
                                  {-1500, "ggggggggggaaaaarooo"},          // counts as 1500
                                  {0, "goooooooooooooooooo"},              // lamp 0 is lit all through play
                                  // No positive twin: lights nothing.
                                  {std::numeric_limits<std::int32_t>::min(), "ooooooooooooooooooo"}}) {
        tick(reading);
        EXPECT_EQ(lamps(form1()), shown) << reading;
    }
    // With the main window hidden the mini player's lamps are written, and the main window's stay.
    form1().setVisible(false);
    tick(1100);
    EXPECT_EQ(lamps(form1()), "ooooooooooooooooooo");
    EXPECT_EQ(lamps(program().frmMiniPlayer), "GGGGGGGGGGAAOOOOOOO");
    form1().setVisible(true);

    // The end of the stream puts every lamp out.
    stop();
    EXPECT_EQ(lamps(form1()), "ooooooooooooooooooo");

    // A scale of 0 makes every step 0.
    form1().PeakMaximum = 0;
    play();
    tick(0);
    EXPECT_EQ(lamps(form1()), "ggggggggggaaaaarrrr");
}

}  // namespace
