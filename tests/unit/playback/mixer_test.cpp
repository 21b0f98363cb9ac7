// Mixer.dat and .TB files byte for byte, the queue they bring back with the comma shift, LoadTB's
// return to the defaults, and the sliders' drag rules.
#include "PlaybackFixture.h"

using namespace sonarium;

namespace {

class Mixer : public PlaybackFixture {
protected:
    // Starts the program again in the same directory, as the next run of the user's.
    void restart() {
        prog.reset();
        tc.mixer.clearCalls();
        program().Main();
    }
    QStringList rows() const { return prog->form1.lstSongs.rows(); }
};

TEST_F(Mixer, FirstStartCreatesAnEmptyFileAndSavingWritesDefaultsAndQueue) {
    EXPECT_TRUE(QFile::exists(path("Mixer.dat")));
    EXPECT_EQ(read("Mixer.dat"), QByteArray());
    Form1& f = form1();
    EXPECT_EQ(M().Volume, 35);
    EXPECT_EQ(f.SLiderVolume.Top(), 802) << "801.5 twips, rounded to the even twip";
    EXPECT_EQ(f.SliderTreble.Top(), 1910);
    EXPECT_EQ(f.SliderBass.Top(), 3140);

    queue({"One", "Two, Three"}, "/music/a/");
    M().Treble = 70;
    M().MiniTop = -15;
    f.cmdSaveTBDefaults.Click();
    EXPECT_EQ(M().DefaultTreble, 70);
    EXPECT_EQ(read("Mixer.dat"), QByteArray(" 35 \r\n 70 \r\n 50 \r\n-15 \r\n 0 \r\n/music/a/\r\nOne\r\n"
                                            "/music/a/\r\nTwo, Three\r\n"));

    // Reading back splits the name at its comma: "Three" is taken for a directory, and the
    // pair it opens, lacking a name, repeats the name before it.
    restart();
    EXPECT_EQ(M().Treble, 70);
    EXPECT_EQ(M().MiniTop, -15);
    EXPECT_EQ(rows(), QStringList({"One", "Two", "Two"}));
    EXPECT_EQ(M().SongPath[2], "Three");
}

TEST_F(Mixer, HandEditedFilesAreReadFieldByField) {
    // Junk and out-of-range numbers leave their variables; negatives become 0; no upper limit.
    write("Mixer.dat", "junk\r\n-20\r\n250\r\n99999999999\r\n7\r\n/d/\r\nSong\r\n/e/\r\n");
    restart();
    EXPECT_EQ(M().Volume, 0) << "a field without a number reads as 0";
    EXPECT_EQ(M().Treble, 0);
    EXPECT_EQ(M().Bass, 250);
    EXPECT_EQ(M().MiniTop, 0);
    EXPECT_EQ(M().MiniLeft, 7);
    EXPECT_EQ(form1().SliderBass.Top(), 2735 - 1215) << "above its travel until the first drag";
    // A trailing directory without a name appends the name before it once more.
    EXPECT_EQ(rows(), QStringList({"Song", "Song"}));
    EXPECT_EQ(M().SongPath[1], "/e/");

    // A queue longer than the directory store: past row 500 no directory is read, so each
    // value becomes a row of its own.
    QByteArray big;
    for (int i = 0; i < 503; ++i) big += "/q/\r\nS" + QByteArray::number(i) + "\r\n";
    write("Mixer.dat", " 40 \r\n 50 \r\n 50 \r\n 0 \r\n 0 \r\n" + big);
    restart();
    EXPECT_EQ(form1().lstSongs.ListCount(), 505);
    EXPECT_EQ(form1().lstSongs.List(500), "S500");
    EXPECT_EQ(form1().lstSongs.List(501), "/q/");
    EXPECT_EQ(form1().lstSongs.List(504), "S502");
    form1().SaveMixer();
    EXPECT_TRUE(read("Mixer.dat").endsWith("/q/\r\nS500\r\n/q/\r\nS501\r\n/q/\r\nS502\r\n"))
        << "rows past 500 are written without a directory";
}

TEST_F(Mixer, SongToneFilesAndTheReturnToDefaults) {
    Form1& f = form1();
    const QString songs = dir.path() + u'/';
    queue({"Loud", "Plain", "Half", "Empty"}, songs);
    write("Loud.TB", " 80 \r\n 20 \r\n");
    write("Half.TB", " 90 \r\n");
    write("Empty.TB", "");

    tc.mixer.clearCalls();
    f.lstSongs.setListIndex(0);
    EXPECT_EQ(f.SliderTreble.Top(), 1505 + 162);
    EXPECT_EQ(f.SliderBass.Top(), 2735 + 648);
    EXPECT_EQ(tc.mixer.calls(), QStringList({"SetControlValue(2,102,0,20)", "SetControlValue(1,101,0,80)"}));
    EXPECT_EQ(M().Treble, 50) << "the variables hold the defaults again";
    EXPECT_EQ(M().Bass, 50);

    // Saving at once writes the defaults over the song's own tone.
    f.cmdSaveTB.Click();
    EXPECT_EQ(read("Loud.TB"), QByteArray(" 50 \r\n 50 \r\n"));

    f.lstSongs.setListIndex(2);
    EXPECT_EQ(tc.mixer.value("Treble"), 90);
    EXPECT_EQ(tc.mixer.value("Bass"), 50);
    f.lstSongs.setListIndex(3);
    EXPECT_EQ(tc.mixer.value("Treble"), 50);
    f.lstSongs.setListIndex(1);
    EXPECT_FALSE(QFile::exists(path("Plain.TB")));

    // An empty row changes nothing in either direction.
    f.lstSongs.AddItem(QString());
    M().CurrentSong = 4;
    tc.mixer.clearCalls();
    f.LoadTB();
    f.SaveTB();
    EXPECT_TRUE(tc.mixer.calls().isEmpty());
    EXPECT_FALSE(QFile::exists(path(".TB")));
}

TEST_F(Mixer, SlidersFollowTheDragWithinTheirTravel) {
    Form1& f = form1();
    Image& bass = f.SliderBass;
    const double half = bass.Height() / 2.0;
    tc.mixer.clearCalls();
    // Passing over the bass slider without a button sends the working bass.
    bass.MouseMove(0, 0, 0, half);
    EXPECT_EQ(tc.mixer.calls(), QStringList({"SetControlValue(2,102,0,50)"}));

    bass.MouseDown(LeftButton, 0, 0, half);
    bass.MouseMove(LeftButton, 0, 0, half - 10000);
    EXPECT_EQ(bass.Top(), 2735);
    EXPECT_EQ(M().Bass, 100);
    bass.MouseMove(LeftButton, 0, 0, half + 10000);
    EXPECT_EQ(bass.Top(), 3545);
    EXPECT_EQ(M().Bass, 0);
    bass.MouseMove(LeftButton, 0, 0, half - 81 * 3);  // 30 units up
    EXPECT_EQ(M().Bass, 30);
    EXPECT_EQ(tc.mixer.value("Bass"), 30);
    bass.MouseUp(LeftButton, 0, 0, 0);
    EXPECT_FALSE(f.SliderDragging);

    // The volume goes to the player while dragging, and becomes the listener's unless fading.
    Image& volume = f.SLiderVolume;
    volume.MouseDown(LeftButton, 0, 0, 0);
    volume.MouseMove(LeftButton, 0, 0, volume.Height() / 2.0 - 81);  // 10 units up
    EXPECT_EQ(M().Volume, 45);
    EXPECT_EQ(tc.mp3.volumeLeft(), 45);
    EXPECT_EQ(f.SavedVolume, 45);
    f.Fading = true;
    volume.MouseMove(LeftButton, 0, 0, volume.Height() / 2.0 + 81);
    EXPECT_EQ(M().Volume, 35);
    EXPECT_EQ(f.SavedVolume, 45);
}

}  // namespace
