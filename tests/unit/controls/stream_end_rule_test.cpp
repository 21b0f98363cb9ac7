// When StreamEnd reaches the program, in the situations the transport meets.
#include <gtest/gtest.h>

#include "controls/StreamEndRule.h"

using namespace sonarium;

TEST(StreamEndRule, EachRunEndsOnceAndALoadedSongStandingSilentIsEndedByStop) {
    StreamEndRule r;
    EXPECT_EQ(r.stopWithoutRun(), 0u) << "nothing open";
    r.opened();
    auto run = r.runStarted();
    EXPECT_EQ(r.stopWithoutRun(), 0u) << "the run itself raises its end";
    EXPECT_TRUE(r.deliver(run));
    EXPECT_FALSE(r.deliver(run)) << "never twice";
    EXPECT_EQ(r.stopWithoutRun(), 0u) << "Stop after the end raises nothing";

    r.opened();
    auto silent = r.stopWithoutRun();
    ASSERT_NE(silent, 0u);
    EXPECT_EQ(r.stopWithoutRun(), 0u);
    EXPECT_TRUE(r.deliver(silent));
}

TEST(StreamEndRule, AnEndOnItsWayPassesACloseButNotAnOpen) {
    // A click loads the song; Play stops the player, then reloads the song and starts it. The
    // end raised by that Stop must not end the new run.
    StreamEndRule r;
    r.opened();
    auto stale = r.stopWithoutRun();
    r.closed();
    r.opened();
    auto run = r.runStarted();
    EXPECT_FALSE(r.deliver(stale));
    EXPECT_TRUE(r.deliver(run));

    r.opened();
    run = r.runStarted();
    r.closed();  // the run had ended; Close lets its end through
    EXPECT_TRUE(r.deliver(run));
    r.opened();
    run = r.runStarted();
    r.opened();
    EXPECT_FALSE(r.deliver(run));
}

TEST(StreamEndRule, ASilencedRunRaisesNothingYetStopStillGetsItsEnd) {
    // A paused song replaced by a click: GetSong closes the player under it.
    StreamEndRule r;
    r.opened();
    auto paused = r.runStarted();
    r.runSilenced(paused);
    r.opened();
    EXPECT_FALSE(r.deliver(paused));
    auto resumed = r.runStarted();  // Pause pressed again: the new song plays
    EXPECT_EQ(r.stopWithoutRun(), 0u) << "starting a run settles what was owed";
    EXPECT_TRUE(r.deliver(resumed));

    // A scan closes the player during play, reads its files and leaves the player closed.
    r.opened();
    auto song = r.runStarted();
    r.runSilenced(song);
    r.opened();
    r.closed();
    auto paid = r.stopWithoutRun();
    ASSERT_NE(paid, 0u) << "the transport's Stop waits for an end: it must come";
    EXPECT_TRUE(r.deliver(paid));
    EXPECT_EQ(r.stopWithoutRun(), 0u) << "paid once";
}
