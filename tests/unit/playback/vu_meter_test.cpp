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
        std::uint32_t colour = 1;
        FrmMiniPlayer& mini = program().frmMiniPlayer;
        for (Image* i : {&form1().imgVUGreen, &form1().imgVUAmber, &form1().imgVURed, &form1().imgVUPurple,
                         &mini.imgVUGreen, &mini.imgVUAmber, &mini.imgVURed, &mini.imgVUPurple})
            i->setPicture(Picture::filled(1, 1, 0xFF000000u + colour++));
    }
    // The lamps as letters: g(reen), a(mber), r(ed), o(ff).
    template <typename Window>
    static QString lamps(Window& w) {
        QString s;
        for (auto& lamp : w.imgVU)
            for (auto [image, letter] : {std::pair{&w.imgVUGreen, u'g'},
                                         {&w.imgVUAmber, u'a'},
                                         {&w.imgVURed, u'r'},
                                         {&w.imgVUPurple, u'o'}})
                if (lamp->picture().sameAs(image->picture())) s += letter;
        return s;
    }
    // The next tick shows `reading`.
    void tick(std::int32_t reading) {
        tc.peak.setReadings({reading});
        tc.loop.advance(10);
    }
};

TEST_F(VuMeter, LampsFollowEachReadingInEighteenEqualSteps) {
    play();
    for (auto [reading, shown] : {std::pair{1000, "ggggggggggaoooooooo"},  // exactly LampStep * 10
                                  {999, "ggggggggggooooooooo"},
                                  {-1500, "ggggggggggaaaaarooo"},  // counts as 1500
                                  {1800, "ggggggggggaaaaarrrr"},
                                  {0, "goooooooooooooooooo"},  // lamp 0 is lit all through play
                                  // No positive twin: lights nothing.
                                  {std::numeric_limits<std::int32_t>::min(), "ooooooooooooooooooo"}}) {
        tick(reading);
        EXPECT_EQ(lamps(form1()), shown) << reading;
    }
    // A pause keeps the meter reading (silence); the end of the stream puts every lamp out.
    pause();
    tick(500);
    EXPECT_EQ(lamps(form1()), "ggggggooooooooooooo");
    pause();
    stop();
    EXPECT_EQ(lamps(form1()), "ooooooooooooooooooo");

    // A scale of 0 makes every step 0.
    form1().PeakMaximum = 0;
    play();
    tick(0);
    EXPECT_EQ(lamps(form1()), "ggggggggggaaaaarrrr");
}

TEST_F(VuMeter, WithTheMainWindowHiddenTheMiniPlayersLampsAreWritten) {
    Form1& f = form1();
    FrmMiniPlayer& mini = program().frmMiniPlayer;
    play();
    tick(1800);
    f.setVisible(false);
    tick(1100);
    EXPECT_EQ(lamps(f), "ggggggggggaaaaarrrr") << "the main window's lamps stay as they were";
    EXPECT_EQ(lamps(mini), "ggggggggggaaooooooo");
}

}  // namespace
