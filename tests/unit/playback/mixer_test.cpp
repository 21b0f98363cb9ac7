// Mixer.dat and .TB files byte for byte, the queue they bring back with the comma shift, LoadTB's
// return to the defaults, and a tone slider's drag.
#include "PlaybackFixture.h"

using namespace sonarium;

namespace {

using Mixer = PlaybackFixture;

TEST_F(Mixer, FirstStartCreatesAnEmptyFileAndSavingWritesDefaultsAndQueue) {
    EXPECT_EQ(read("Mixer.dat"), QByteArray());
    EXPECT_TRUE(QFile::exists(path("Mixer.dat")));
    queue({"One", "Two, Three"}, "/music/a/");
    M().Treble = 70;
    M().MiniTop = -15;
    form1().cmdSaveTBDefaults.Click();
    EXPECT_EQ(read("Mixer.dat"), QByteArray(" 35 \r\n 70 \r\n 50 \r\n-15 \r\n 0 \r\n/music/a/\r\nOne\r\n"
                                            "/music/a/\r\nTwo, Three\r\n"));

    // Reading back splits the name at its comma: "Three" is taken for a directory, and the
    // pair it opens, lacking a name, repeats the name before it.
    prog.reset();  // the next run, in the same directory
    program().Main();
    EXPECT_EQ(M().MiniTop, -15) << "only the tone is kept from going negative";
    EXPECT_EQ(rows(), QStringList({"One", "Two", "Two"}));
    EXPECT_EQ(M().SongPath[2], "Three");

    // Negatives become 0, with no upper limit; past row 500 no directory is read, so each value
    // becomes a row of its own, and rows past 500 are written without one.
    QByteArray big;
    for (int i = 0; i < 503; ++i) big += "/q/\r\nS" + QByteArray::number(i) + "\r\n";
    write("Mixer.dat", " 40 \r\n-20 \r\n 250 \r\n 0 \r\n 7 \r\n" + big);
    prog.reset();
    program().Main();
    EXPECT_EQ(M().Treble, 0);
    EXPECT_EQ(M().Bass, 250);
    EXPECT_EQ(rows().mid(500), QStringList({"S500", "/q/", "S501", "/q/", "S502"}));
    form1().SaveMixer();
    EXPECT_TRUE(read("Mixer.dat").endsWith("/q/\r\nS500\r\n/q/\r\nS501\r\n/q/\r\nS502\r\n"));
}

TEST_F(Mixer, SongToneFilesTheReturnToDefaultsAndASlidersDrag) {
    Form1& f = form1();
    queue({"Loud", "Half", "Plain"}, dir.path() + u'/');
    write("Loud.TB", " 80 \r\n 20 \r\n");
    write("Half.TB", " 90 \r\n");
    tc.mixer.clearCalls();
    f.lstSongs.setListIndex(0);
    EXPECT_EQ(tc.mixer.calls(), QStringList({"SetControlValue(2,102,0,20)", "SetControlValue(1,101,0,80)"}));

    // The variables hold the defaults again: saving at once writes them over the song's own tone.
    f.cmdSaveTB.Click();
    EXPECT_EQ(read("Loud.TB"), QByteArray(" 50 \r\n 50 \r\n"));
    tc.mixer.clearCalls();
    f.lstSongs.setListIndex(1);
    EXPECT_EQ(tc.mixer.calls(), QStringList({"SetControlValue(2,102,0,50)", "SetControlValue(1,101,0,90)"}));
    f.lstSongs.setListIndex(2);
    EXPECT_FALSE(QFile::exists(path("Plain.TB")));

    // An empty row changes nothing in either direction.
    f.lstSongs.AddItem(QString());
    M().CurrentSong = 3;
    tc.mixer.clearCalls();
    f.LoadTB();
    f.SaveTB();
    EXPECT_TRUE(tc.mixer.calls().isEmpty());
    EXPECT_FALSE(QFile::exists(path(".TB")));

    // A dragged slider follows within its travel, 81 twips a unit, and sends its value at once.
    Image& bass = f.SliderBass;
    const double half = bass.Height() / 2.0;
    bass.MouseDown(LeftButton, 0, 0, half);
    for (auto [dy, value] : {std::pair{-10000.0, 100}, {10000.0, 0}, {-81.0 * 3, 30}}) {
        bass.MouseMove(LeftButton, 0, 0, half + dy);
        EXPECT_EQ(M().Bass, value);
        EXPECT_EQ(tc.mixer.calls().last(), QStringLiteral("SetControlValue(2,102,0,%1)").arg(value));
    }
}

}  // namespace
