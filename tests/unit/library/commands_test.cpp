// The main window's commands around the library: song sets (the .EST bytes, the extension rules
// and the overwrite question, reading back by fields), creating and choosing libraries
// (the overwrite question, a file that is no library, one that cannot be made), and the file
// browser's retry on a drive that isn't ready and new directory of a right click. (A new
// library's columns are the data control's own, checked with it; the list of sets loads through
// the same reading as a set.)
#include "LibraryFixture.h"

using namespace sonarium;

namespace {

class Commands : public LibraryFixture {
protected:
    // A medium with a Music folder, mounted at usb before start-up.
    void SetUp() override {
        ASSERT_TRUE(QDir(dir.path()).mkpath("usb/Music"));
        tc.volumes.add(usb, "Stick");
        LibraryFixture::SetUp();
    }
    const QString usb = path("usb");
};

TEST_F(Commands, SongSetsAreSavedTwoLinesARowAfterTheQuestionAndReadBackByFields) {
    Form1& f = form1();
    tc.dialogs.answer(MsgResult::OK);
    f.mnuSaveSongSet.Click();
    EXPECT_EQ(tc.dialogs.texts(), QStringList({"Song Queue Empty!"}));

    const QByteArray evening = "/music/Jazz/\r\nTake Five\r\n/music/Pop, Rock/\r\nHey, You\r\n";
    f.AddToQueue("Take Five", "/music/Jazz/");
    f.AddToQueue("Hey, You", "/music/Pop, Rock/");
    write("Evening.EST", "old");
    tc.dialogs.clear();
    tc.dialogs.answerFile(path("Evening"));  // no question: "Evening" itself doesn't exist
    f.mnuSaveSongSet.Click();
    EXPECT_EQ(tc.dialogs.shown().size(), 1u);
    EXPECT_EQ(read("Evening.EST"), evening);

    tc.dialogs.clear();
    tc.dialogs.answerFile(path("Evening.EST")).answer(MsgResult::No);
    f.lstSongs.Clear();
    f.AddToQueue("Other", "/x/");
    f.mnuSaveSongSet.Click();
    EXPECT_EQ(tc.dialogs.shown()[1].text, "File already exists, overwrite?");
    EXPECT_EQ(read("Evening.EST"), evening);

    tc.dialogs.answerFile(path("Best"));  // ends in "est": counts as a set already
    f.mnuSaveSongSet.Click();
    EXPECT_EQ(read("Best"), QByteArray("/x/\r\nOther\r\n"));

    // Read back by fields, so the comma in the second directory shifts the pairs (the reading is
    // Mixer.dat's, checked with it); a file of another extension is refused.
    tc.dialogs.answerFile(path("Evening.EST")).answerFile(path("songs.txt")).answer(MsgResult::OK);
    f.mnuLoadSongSet.Click();
    EXPECT_EQ(f.lstSongs.rows(), QStringList({"Take Five", "Rock/", "You"}));
    f.mnuLoadSongSet.Click();
    EXPECT_EQ(tc.dialogs.texts().last(), "This is not a song set file");
}

TEST_F(Commands, CreatingAndChoosingLibraries) {
    Form1& f = form1();
    addRecord("/m", "Old");
    // A new library over an existing file is asked about; No keeps it (read below).
    write("Other.mdb", "not a database");
    tc.dialogs.answerFile(path("Other.mdb")).answer(MsgResult::No);
    f.mnuCreateDatabase.Click();

    // Choosing a file that is no library: the engine's text, and DatabasePath stays.
    tc.dialogs.clear();
    tc.dialogs.answerFile(path("Other.mdb")).answer(MsgResult::OK);
    f.mnuDefaultDatabase.Click();
    ASSERT_EQ(tc.dialogs.shown().size(), 2u);
    EXPECT_FALSE(tc.dialogs.shown()[1].text.isEmpty());
    EXPECT_EQ(M().DatabasePath, path("SonariumData.mdb"));
    EXPECT_EQ(read("Other.mdb"), QByteArray("not a database")) << "a user's file is never changed";

    // A library that cannot be made says why, and the next start still opens the one in use.
    tc.dialogs.clear();
    tc.dialogs.answerFile(path("Missing/Folder/New.mdb")).answer(MsgResult::OK);
    f.mnuCreateDatabase.Click();
    ASSERT_EQ(tc.dialogs.shown().size(), 2u);
    const QString said = tc.dialogs.shown()[1].text;
    EXPECT_TRUE(said.startsWith("Cannot create database - " + path("Missing/Folder/New.mdb") + "\n"))
        << said.toStdString();
    EXPECT_GT(said.size(), 30 + path("Missing/Folder/New.mdb").size());
    f.SaveConfig();
    EXPECT_TRUE(read("Config.dat").contains(path("SonariumData.mdb").toUtf8()));

    tc.dialogs.answerFile(path("New.mdb"));
    f.mnuCreateDatabase.Click();
    EXPECT_EQ(M().DatabasePath, path("New.mdb"));
    EXPECT_TRUE(read("Config.dat").contains(path("New.mdb").toUtf8()));

    tc.dialogs.answerFile(path("SonariumData.mdb"));
    f.mnuDefaultDatabase.Click();
    data.recordset().MoveLast();
    EXPECT_EQ(data.recordset().RecordCount(), 1);
}

// In the main window and in the scan dialog alike: asked until the user gives up, then the
// drive list goes back to the drive in use and the directory stays.
TEST_F(Commands, ADriveThatIsNotReadyIsAskedAboutUntilTheUserGivesUp) {
    tc.volumes.setReady(usb, false);
    const QString text = "Not ready reading Drive " + usb.toUpper() + " [STICK] Retry?";
    for (auto [drive, folders] :
         {std::pair{&form1().Drive1, &form1().Dir1}, {&general().Drive1, &general().Dir1}}) {
        const QString before = folders->Path();
        tc.dialogs.clear();
        tc.dialogs.answer(MsgResult::Yes).answer(MsgResult::No);
        drive->setDrive(usb);
        ASSERT_EQ(tc.dialogs.texts(), QStringList({text, text}));
        EXPECT_EQ(drive->Drive(), drive->List(0));
        EXPECT_EQ(folders->Path(), before);
    }
    EXPECT_EQ(general().File1.Path(), general().Dir1.Path());
}

TEST_F(Commands, ARightClickMakesANewDirectoryBelowTheOneShown) {
    Form1& f = form1();
    f.Dir1.setPath(usb + "/Music");
    tc.dialogs.answerInput("Blues").answer(MsgResult::OK);
    f.Dir1.MouseDown(RightButton, 0, 0, 0);
    EXPECT_EQ(tc.dialogs.shown()[1].text, "Create directory - " + usb + "/Music/Blues");
    EXPECT_EQ(f.CurrentDir, usb + "/Music/Blues/");

    tc.dialogs.answerInput("a/b").answer(MsgResult::OK).answer(MsgResult::OK);
    f.Dir1.MouseDown(RightButton, 0, 0, 0);
    EXPECT_EQ(tc.dialogs.texts().last(), "Cannot create directory - Path/File access error");
    EXPECT_EQ(f.Dir1.Path(), usb + "/Music/Blues");
}

}  // namespace
