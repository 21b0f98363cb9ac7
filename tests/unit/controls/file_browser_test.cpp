// The drive, directory and file lists over temporary directory trees, with made-up volumes.
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include "FakeVolumes.h"
#include "controls/DirListBox.h"
#include "controls/DirectoryListing.h"
#include "controls/DriveDirectories.h"
#include "controls/DriveListBox.h"
#include "controls/FileListBox.h"
#include "controls/FileNames.h"
#include "integration/fixtures/ErrorNumber.h"
#include "integration/fixtures/Files.h"

namespace sonarium {
namespace {

class FileBrowser : public ::testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(tmp.isValid());
        root = tmp.path();
        a = mkdir("A");
        b = mkdir("B");
        volumes.add(a, "Alpha");
        volumes.add(b, "Beta");
    }

    QString mkdir(const QString& rel) {
        EXPECT_TRUE(QDir(root).mkpath(rel)) << rel.toStdString();
        return root + u'/' + rel;
    }
    void touch(const QString& rel) {
        EXPECT_TRUE(fixtures::writeFile(root + u'/' + rel, {})) << rel.toStdString();
    }
    void symlink(const QString& to, const QString& rel) { EXPECT_TRUE(QFile::link(to, root + u'/' + rel)); }

    QTemporaryDir tmp;
    QString root, a, b;
    FakeVolumes volumes;
    DriveDirectories drives{volumes, tmp.path()};
};

TEST_F(FileBrowser, DriveListFollowsVolumesAndNamesTheDriveOfAPath) {
    const QString nested = mkdir("A/inner");
    volumes.add(nested);
    DriveListBox list("Drive1", volumes, tmp.path());
    int changes = 0;
    list.onChange = [&] { ++changes; };
    EXPECT_EQ(list.List(1), b + " [Beta]");

    // The longest mount point at a path boundary: A/inner holds its own files, A/innerx not.
    for (auto [path, volume] :
         {std::pair{a + "/inner/x/y", nested}, {a + "/innerx", a}, {QString("relative/A"), QString()}})
        EXPECT_EQ(list.DriveOf(path), volume) << path.toStdString();

    // A path names the drive that holds it; the same drive again is no change.
    list.setDrive(b + "/deep/er");
    list.setDrive(driveText({b, "Beta"}));
    EXPECT_EQ(list.ListIndex(), 1);
    EXPECT_EQ(changes, 1);

    // A drive that isn't ready can be chosen: it is the directory list that fails on it. A text
    // on no volume, or a row past the end, fails and changes nothing.
    volumes.setReady(a, false);
    list.setListIndex(0);
    EXPECT_EQ(errorOf([&] { list.setDrive("/nowhere/at/all"); }), RuntimeError::DeviceUnavailable);
    EXPECT_EQ(errorOf([&] { list.setListIndex(3); }), RuntimeError::InvalidPropertyValue);
    EXPECT_EQ(list.Drive(), driveText({a, "Alpha"}));
    EXPECT_EQ(changes, 2);

    // A medium that arrives later is found when it is named, and Refresh drops one that left.
    const QString usb = mkdir("usb");
    volumes.add(usb);
    list.setDrive(usb + "/Songs");
    volumes.remove(usb);
    list.Refresh();
    EXPECT_EQ(list.ListCount(), 3);
    EXPECT_EQ(list.Drive() + " " + QString::number(list.ListIndex()), driveText({usb, "usb"}) + " -1");
}

TEST_F(FileBrowser, ListingsAndChangesFollowTheDiskAndAFailedPathChangesNothing) {
    const QString music = mkdir("A/Music");
    for (const char* d : {"A/Music/Jazz", "A/Music/Blues", "B/Rock"}) mkdir(d);
    // A listing read long after the directory's last change is kept; a change since is seen on
    // the next read (at the end).
    const timespec hourAgo[2] = {{::time(nullptr) - 3600, 0}, {::time(nullptr) - 3600, 0}};
    ASSERT_EQ(::utimensat(AT_FDCWD, QFile::encodeName(music).constData(), hourAgo, 0), 0);
    DirectoryListing listing;
    const std::uint64_t firstRead = listing.read(music).read;
    EXPECT_EQ(listing.read(music).read, firstRead) << "not read again";

    DirListBox dir("Dir1", volumes, drives, root);
    dir.setPath(music + "/");
    EXPECT_EQ(dir.Path(), music) << "no closing slash";
    EXPECT_EQ(dir.List(-2), a);
    int changes = 0;
    QStringList rowsSeen;
    dir.onChange = [&] { ++changes, rowsSeen = dir.rows(); };
    const QStringList before = dir.rows();

    volumes.setReady(b, false);
    for (auto [path, error] : {std::pair{a + "/Missing", RuntimeError::PathNotFound},
                               {QString(""), RuntimeError::PathNotFound},
                               {b + "/Rock", RuntimeError::DeviceUnavailable}})
        EXPECT_EQ(errorOf([&] { dir.setPath(path); }), error) << path.toStdString();
    EXPECT_EQ(dir.Path(), music);
    EXPECT_EQ(dir.rows(), before);
    volumes.setReady(b, true);

    // The same directory in other words is no change; ListIndex -1 is the directory itself.
    for (const QString& same : {QString("Jazz/.."), dir.List(dir.ListIndex())}) dir.setPath(same);
    EXPECT_EQ(changes, 0);

    // The handler already sees the new directory's rows.
    dir.setPath("Jazz");
    dir.setPath("..");
    EXPECT_EQ(changes, 2);
    EXPECT_EQ(rowsSeen, QStringList({music + "/Blues", music + "/Jazz"}));

    // "/" is a folder like any other, its rows one slash each, with no parent.
    dir.setPath("/");
    EXPECT_EQ(dir.List(-2), "");
    EXPECT_EQ(dir.List(0).count(u'/'), 1);

    QDir(music).rename("Jazz", "Soul");
    EXPECT_EQ(listing.read(music).dirs, QStringList({music + "/Blues", music + "/Soul"}));

    // The drive text moves to the last folder a list showed on that drive (the scan's start
    // shows it); one that was removed since falls back to the drive's root.
    ASSERT_TRUE(QDir(music).removeRecursively());
    dir.setPath(driveText({a, "Alpha"}));
    EXPECT_EQ(dir.Path(), a);
}

// Folders and files sorted without regard to case, hidden names and broken links left out, and
// names looked up without regard to case. (An unreadable directory is the scan's test; a link
// back up the tree, the walk's.)
TEST_F(FileBrowser, ListsAndNamesGoWithoutRegardToCaseAndBrokenOrLoopingLinksDoNoHarm) {
    for (const char* d : {"A/Alpha", "A/beta/deep", "A/Gamma", "A/.hidden", "A/folder.mp3", "A/Music/Rock"})
        mkdir(d);
    for (const char* n : {"song.mp3", "b.Mp3", "Q.MP3", "a.wav", "notes.txt", "x.mp3.bak", ".hidden.mp3",
                          "Music/Rock/Song.mp3"})
        touch(QString("A/") + n);
    symlink(a + "/beta", "A/Link");
    symlink(a, "A/loop");                 // a symlink back to its own parent
    symlink(root + "/A/self", "A/self");  // a symlink to itself
    symlink(root + "/nothing.mp3", "A/dangling.mp3");

    DirListBox dir("Dir1", volumes, drives, root);
    dir.setPath(a);
    EXPECT_EQ(dir.rows(), QStringList({a + "/Alpha", a + "/beta", a + "/folder.mp3", a + "/Gamma",
                                       a + "/Link", a + "/loop", a + "/Music"}));
    FileListBox files("Fillist", root);  // "*.MP3" by design
    files.setPath(a);
    EXPECT_EQ(files.rows(), QStringList({"b.Mp3", "Q.MP3", "song.mp3"}));
    files.setPattern("*.wav;*.TXT");
    EXPECT_EQ(files.rows(), QStringList({"a.wav", "notes.txt"}));

    // A missing directory fails and leaves the list where it was.
    files.setListIndex(0);
    EXPECT_EQ(errorOf([&] { files.setPath(a + "/nope"); }), RuntimeError::PathNotFound);
    EXPECT_EQ(files.FileName(), "a.wav");

    // A new file keeps its spelling, in the directory that exists; looping symlinks are walked
    // by name, never followed for ever.
    for (auto [given, found] : {std::pair{"/MUSIC/rock/song.Mp3", "/Music/Rock/Song.mp3"},
                                {"/music//ROCK/", "/Music/Rock/"},
                                {"/MUSIC/New.WAV", "/Music/New.WAV"},
                                {"/Nowhere/New.WAV", "/Nowhere/New.WAV"},
                                {"/music/../MUSIC/rock", "/Music/../Music/Rock"},
                                {"/LOOP/loop/Music/rock/SONG.mp3", "/loop/loop/Music/Rock/Song.mp3"}})
        EXPECT_EQ(resolveFileName(a + given), a + found) << given;

    EXPECT_TRUE(fileExists(a + "/MUSIC/ROCK/song.MP3") && dirExists(a + "/music/rock"));
    for (const QString& missing : {a + "/music/rock", a + "/music/rock/other.mp3", QString(), a + "/SELF"})
        EXPECT_FALSE(fileExists(missing)) << missing.toStdString();  // a directory is not a file
    EXPECT_TRUE(matchFiles(a + "/self", "*.*").isEmpty());

    // A name within the system's limits still resolves the directories that exist. (Names of
    // any length and depth answer at once: the path fuzzer's rule.)
    QString deep = a + "/MUSIC/rock";
    for (int i = 0; i < 1500; ++i) deep += "/a";
    EXPECT_EQ(resolveFileName(deep), a + "/Music/Rock" + deep.mid(a.size() + 11));
}

}  // namespace
}  // namespace sonarium
