// The transport's states under its buttons, the desktop's media commands and a click on a row;
// what follows the end of a song, with the loop popup's modes; a queue emptied during play; the
// close that waits for a paused song; and what the media controls read and set.
#include <QUrl>
#include <cmath>

#include "PlaybackFixture.h"
#include "integration/fixtures/Id3v1Block.h"
#include "playback/MediaControls.h"

using namespace sonarium;

namespace {

using Transport = PlaybackFixture;

// What one action leaves, from each of three starts: nothing loaded, B playing, B paused.
struct Transition {
    const char* action;
    const char* fromIdle;
    const char* fromPlaying;
    const char* fromPaused;
};

class Transitions : public PlaybackFixture, public testing::WithParamInterface<std::tuple<Transition, int>> {
protected:
    void act(const QString& action) {
        MediaControls mc(form1());
        const std::map<QString, std::function<void()>> actions = {
            {"Play", [&] { play(); }},
            {"Pause", [&] { pause(); }},
            {"Stop", [&] { stop(); }},
            {"Fade", [&] { fade(); }},
            {"media pause", [&] { mc.pause(); }},
            {"media playPause", [&] { mc.playPause(); }},
            {"media next", [&] { mc.next(); }},
            {"click C", [&] { form1().lstSongs.setListIndex(2); }},
        };
        for (const QString& step : action.split(QStringLiteral(", "))) actions.at(step)();
    }
};

TEST_P(Transitions, EachActionActsOnlyWhereItsButtonWould) {
    const auto& [t, start] = GetParam();
    queue({"A", "B", "C"});
    if (start > 0) {
        form1().lstSongs.setListIndex(1);
        play();
        tc.loop.advance(500);
    }
    if (start > 1) pause();
    act(t.action);
    const char* after[] = {t.fromIdle, t.fromPlaying, t.fromPaused};
    EXPECT_EQ(transport(), after[start]);
    EXPECT_TRUE(tc.dialogs.shown().empty());
}

INSTANTIATE_TEST_SUITE_P(
    Table, Transitions,
    testing::Combine(testing::Values(
                         // The Play button starts the first row when none is selected.
                         Transition{"Play", "playing A", "playing B", "paused B"},
                         Transition{"Pause", "idle", "paused B", "playing B"},
                         // A stopped song is closed; a paused one cannot be stopped or faded.
                         Transition{"Stop", "idle", "idle", "paused B"},
                         Transition{"Fade", "idle", "playing B fading", "paused B"},
                         Transition{"media pause", "idle", "paused B", "paused B"},
                         Transition{"media playPause", "playing A", "paused B", "playing B"},
                         // Next is a click on the next row: loaded, and started only while a song
                         // plays.
                         Transition{"media next", "idle A", "playing C", "paused C"},
                         // A click loads the row, and it plays on if a song played; resumed, the
                         // song that replaced the paused one plays.
                         Transition{"click C, Pause", "idle C", "paused C", "playing C"}),
                     testing::Values(0, 1, 2)));

struct FollowCase {
    int row;
    int loopMode;
    bool stopAfter;
    int nextSong;
    const char* after;
};

class WhatFollows : public PlaybackFixture, public testing::WithParamInterface<FollowCase> {};

TEST_P(WhatFollows, TheRowTheLoopModeAndStopAfterSongDecide) {
    const FollowCase& c = GetParam();
    queue({"A", "B", "C"});
    const char* loopEntries[] = {"mnuLoopOff", "mnuLoopSongSet", "mnuLoopSong"};
    tc.dialogs.answerPopup(loopEntries[c.loopMode]);
    form1().chkLoop.Click();
    form1().mnuStopAfterSong.setChecked(c.stopAfter);
    form1().lstSongs.setListIndex(c.row);
    play();
    tc.loop.advance(SongMs + 10);
    EXPECT_EQ(M().CurrentSong, c.nextSong);
    EXPECT_EQ(transport(), c.after);
    EXPECT_FALSE(form1().StopRequested);
    EXPECT_EQ(tc.dialogs.shown().size(), 1u) << "the loop popup, and no message";
}

INSTANTIATE_TEST_SUITE_P(
    Rows, WhatFollows,
    testing::Values(FollowCase{0, 0, false, 1, "playing B"},
                    FollowCase{0, 0, true, 1, "idle B"},  // loaded and selected, not started
                    FollowCase{0, 2, false, 0, "playing A"},
                    FollowCase{0, 2, true, 0, "idle"},   // the same row: no click, nothing loaded
                    FollowCase{2, 0, false, 2, "idle"},  // the last row ends the queue
                    // The last row wraps or repeats; Stop After Song is not looked at there.
                    FollowCase{2, 1, true, 0, "playing A"}, FollowCase{2, 2, true, 2, "playing C"}));

TEST_F(Transport, AQueueEmptiedDuringPlayEndsQuietlyOrAsksForSongsWhenLooping) {
    queue({"A", "B"});
    play();
    form1().lstSongs.Clear();
    tc.loop.advance(SongMs + 10);
    EXPECT_EQ(transport(), "idle");
    EXPECT_TRUE(tc.dialogs.shown().empty());

    queue({"A"});
    play();
    M().LoopMode = 1;
    form1().lstSongs.Clear();
    tc.dialogs.setAutoAnswerOk(true);
    form1().PanelDatabase.setVisible(false);
    tc.loop.advance(SongMs + 10);
    form1().PanelDatabase.setVisible(true);
    play();
    EXPECT_EQ(
        tc.dialogs.texts(),
        QStringList({"Nothing in song queue - Click on a song title to add it to the song queue",
                     "Nothing in song queue - Select a title in the database, and click the 'Add to queue' "
                     "button"}));
    EXPECT_EQ(transport(), "idle");
}

TEST_F(Transport, ClosingWhilePausedWaitsForTheResumedSongAndCommandsMeanwhileStartNothing) {
    queue({"A", "B", "C"});
    MediaControls mc(form1());
    mc.play();
    tc.loop.post([&] { mc.next(); });  // runs inside Stop's wait for the end of the stream
    mc.stop();
    EXPECT_EQ(transport(), "idle");
    EXPECT_EQ(form1().lstSongs.ListIndex(), 0);

    mc.play();
    mc.pause();
    bool savedWhilePaused = true;
    int rowInClose = -2;
    tc.loop.startTimer(
        5000,
        [&] {
            savedWhilePaused = QFile::exists(path("Config.dat"));
            mc.next();
            rowInClose = form1().lstSongs.ListIndex();
            pause();  // the user resumes
        },
        true);
    form1().QueryUnload();
    EXPECT_FALSE(savedWhilePaused);
    EXPECT_EQ(rowInClose, 0);
    EXPECT_TRUE(QFile::exists(path("Config.dat")));
    EXPECT_GE(tc.loop.now(), 5000 + SongMs);
}

TEST_F(Transport, TheMediaControlsReadTheLoadedRowsSongAndSetTheVolumeAsTheSliderDoes) {
    MediaControls mc(form1());
    // A file on disk in another case than the row names, its tag padded with blanks and NULs.
    write("Blue Monday.mp3",
          QByteArray(400, 'x') + fixtures::id3v1Block("Caf\xE9", "The Artist   ", "", "1999", "", 1));
    queue({"Blue Monday"}, dir.path() + "/");
    queue({"Untagged"});
    form1().lstSongs.setListIndex(0);
    const SongInfo song = mc.song();
    EXPECT_EQ(QStringList({song.title, song.artist, song.album}),
              QStringList({QString::fromUtf8("Café"), "The Artist", ""}));
    EXPECT_EQ(song.url, "file://" + QString::fromLatin1(QUrl::toPercentEncoding(dir.path(), "/")) +
                            "/Blue%20Monday.mp3");
    play();
    form1().lstSongs.setListIndex(1);
    EXPECT_EQ(mc.song().title, "Untagged") << "the row's text stands in for a missing title";
    EXPECT_EQ(mc.song().url, "file:///m/Untagged.MP3");

    // The volume acts as the slider, and a fade keeps the level from before it.
    for (auto [set, volume] : {std::pair{0.504, 50}, {std::nan(""), 50}, {7.0, 100}, {-0.5, 0}}) {
        mc.setVolume(set);
        EXPECT_EQ(M().Volume, volume) << set;
        EXPECT_EQ(tc.mp3.calls().last(), QStringLiteral("SetVolume(%1,%1)").arg(volume));
        EXPECT_EQ(form1().SavedVolume, volume);
    }
    mc.setVolume(0.8);
    fade();
    mc.setVolume(0.2);
    tc.loop.advance(SongMs + 10);
    EXPECT_EQ(M().Volume, 80) << "the fade's end brings back the level from before it";
    form1().lstSongs.Clear();  // the loaded file belongs to no row now
    EXPECT_EQ(mc.song().row, -1);
}

}  // namespace
