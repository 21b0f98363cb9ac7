// The punch dialog on the fake players: marking by ear from the preview's frames, the adjust
// buttons' bounds, what OK, Cancel and Clear All keep, and the decode of the section 80 frames
// short.
#include "../playback/PlaybackFixture.h"

namespace sonarium {
namespace {

class PunchInOut : public PlaybackFixture {
protected:
    void SetUp() override {
        PlaybackFixture::SetUp();
        tc.dialogs.setAutoAnswerOk(true);
        form1().mnuMP3ToWav.setChecked(true);
        queue({"A", "B"});
        // The preview player counts 1000 frames in A; the main player, 100.
        tc.mp32.addFile("/m/A.MP3", 1000, 26.0f);
    }
    Form2& f2() { return program().form2; }
    QString marks() {
        return f2().lblTotalFrames.Caption() + ' ' + f2().lblStartFrame.Caption() + ' ' +
               f2().lblEndFrame.Caption();
    }
    void heard(std::int32_t frame) {
        tc.loop.waitUntil([&] { return M().PunchPosition == frame; });
    }
    // Opens the dialog on `row`, runs `script` inside it, and returns when it has closed.
    void inDialog(int row, const std::function<void()>& script) {
        form1().lstSongs.setListIndex(row);
        tc.loop.post(script);
        form1().cmdSetPunchInOut.Click();
    }
    void press(CommandButton& b) { b.MouseDown(LeftButton, 0, 0, 0); }
};

TEST_F(PunchInOut, MarksByEarAdjustWithinTheirBoundsAndTheSongDecodesEightyFramesShort) {
    inDialog(0, [&] {
        EXPECT_EQ(marks(), "1000 1 999") << "no marks yet: the whole song but its last frame";
        EXPECT_FALSE(f2().cmdPunchInOutSet.Visible());
        f2().cmdPunchInOutPlay.Click();
        heard(50);
        f2().cmdPunchInOutSet.Click();  // 76 frames before 50 is before the start
        EXPECT_EQ(marks(), "1000 1 1000");
        heard(400);
        f2().cmdPunchInOutSet.Click();  // Punch Out stops the preview
        EXPECT_EQ(marks(), "1000 1 400");
        EXPECT_EQ(f2().cmdPunchInOutPlay.Caption(), "Play");
        EXPECT_FALSE(f2().cmdPunchInOutSet.Visible());

        // From a place picked on the slider, a second try at the start.
        f2().Slider.Scroll(300);
        f2().cmdPunchInOutPlay.Click();
        EXPECT_TRUE(tc.mp32.calls().contains("PlayRange(300,999)"));
        heard(380);
        f2().cmdPunchInOutSet.Click();
        EXPECT_EQ(marks(), "1000 304 1000");
        f2().cmdPunchInOutPlay.Click();

        // Each adjust button against its bound; the end's is the main player's 100 frames.
        struct Case {
            CommandButton& button;
            std::int32_t in, out, want;
        };
        const Case cases[] = {{f2().cmdStartFrameLess, 1, 50, 1},   {f2().cmdStartFrameLess, 2, 50, 1},
                              {f2().cmdStartFrameMore, 47, 50, 48}, {f2().cmdStartFrameMore, 48, 50, 48},
                              {f2().cmdEndFrameLess, 60, 1, 1},     {f2().cmdEndFrameLess, 60, 2, 1},
                              {f2().cmdEndFrameMore, 10, 97, 98},   {f2().cmdEndFrameMore, 10, 98, 98}};
        for (const Case& c : cases) {
            M().PunchInFrame = c.in, M().PunchOutFrame = c.out;
            press(c.button);
            const bool start = &c.button == &f2().cmdStartFrameLess || &c.button == &f2().cmdStartFrameMore;
            EXPECT_EQ(start ? M().PunchInFrame : M().PunchOutFrame, c.want)
                << c.button.Name().toStdString() << c.in << c.out;
        }
        M().PunchInFrame = 304, M().PunchOutFrame = 700;
        f2().chkPunchInOutActivate.setValue(1);
        f2().cmdPunchInOutOK.Click();
    });
    EXPECT_EQ(M().PunchStart, (std::vector<std::int32_t>{304, 0, 0}));
    EXPECT_EQ(M().PunchEnd, (std::vector<std::int32_t>{700, 0, 0}));
    EXPECT_EQ(tc.mp32.state(), FakePlayer::State::Closed);
    EXPECT_EQ(form1().chkUseInOut.Value(), 1) << "the song was loaded again with its section";

    tc.mp3.clearCalls();
    play();
    EXPECT_TRUE(tc.mp3.calls().contains("PlayRange(304,620)"));
}

TEST_F(PunchInOut, EmptyQueueOpenFailureCancelAndClearAll) {
    form1().cmdDeleteAll.Click();
    form1().cmdSetPunchInOut.Click();
    EXPECT_EQ(tc.dialogs.texts(),
              QStringList({"Nothing in song queue - Click on a song title to add it to the song queue"}));
    queue({"A", "B", "C"});

    // B isn't known to the preview player: the dialog closes as by Cancel, storing nothing.
    tc.dialogs.clear();
    inDialog(1, [] {});
    EXPECT_EQ(tc.dialogs.texts(), QStringList({"Song Open Error"}));
    EXPECT_FALSE(f2().Visible());
    EXPECT_EQ(M().PunchActive, (std::vector<std::int16_t>{0, 0, 0, 0}));

    M().PunchActive = {1, 1, 1, 1};
    M().PunchStart = {5, 6, 7, 8};
    inDialog(0, [&] {
        EXPECT_EQ(f2().chkPunchInOutActivate.Value(), 1);
        EXPECT_EQ(marks(), "1000 5 999");
        f2().cmdClearAll.Click();  // every row's flag, not only this one's; the frames stay
        f2().cmdPunchInOutCancel.Click();
    });
    EXPECT_EQ(M().PunchActive, (std::vector<std::int16_t>{0, 0, 0, 0}));
    EXPECT_EQ(M().PunchStart, (std::vector<std::int32_t>{5, 6, 7, 8}));
    EXPECT_EQ(form1().chkUseInOut.Value(), 0);
}

}  // namespace
}  // namespace sonarium
