// The database's making and choosing: the default library of a first start, the overwrite
// question, a file that is no library, and one that cannot be made. (A new library's columns
// are the data control's own, checked with it.)
#include "LibraryFixture.h"

using namespace sonarium;

namespace {

using Database = LibraryFixture;

TEST_F(Database, CreatingAndChoosingLibraries) {
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

}  // namespace
