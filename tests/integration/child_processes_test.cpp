// Outside programs through the real ChildProcesses, in a temporary folder: the encoder adapter
// refuses bad jobs (its encoding, run by the program, is the conversion integration test's); a
// program and what it started end at once on
// TerminateProcess and leave no zombie, nor does one still running at the end; programs that
// cannot run give 0; a child works in its folder, on /dev/null, and the test's folder stays.
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QTemporaryDir>
#include <optional>

#include "engine/process/PosixChildProcesses.h"
#include "fixtures/Files.h"
#include "fixtures/ToolRunner.h"

using namespace sonarium;
using namespace sonarium::fixtures;

TEST(ChildProcessesTest, TheAdapterRefusesBadJobsAndChildrenEndWhereTheyRanWithoutZombies) {
    QTemporaryDir dir;
    const QString home = QDir::currentPath(), adapter = SONARIUM_BLADEENC;
    std::optional<PosixChildProcesses> children{std::in_place};
    auto until = [](auto done) {
        for (int i = 0; i < 3000 && !done(); ++i) usleep(10000);
        return done();
    };
    auto ended = [&](auto p) { return until([&] { return !children->WaitForSingleObject(p, 0); }); };
    auto reaped = [](auto p) { return waitpid(pid_t(p), nullptr, WNOHANG) < 0 && errno == ECHILD; };

    // The adapter encoding through this component is the conversion integration test's; here,
    // its refusals.
    EXPECT_TRUE(runTool({adapter, "-12x", "Temp.WAV"}) == 2 && runTool({adapter, "Missing.WAV"}) == 1);

    // Found in the working directory before PATH; the grandchild is in the child's group.
    const QString script = dir.filePath("spawner");
    ASSERT_TRUE(writeFile(script,
                          "#!/bin/sh\nfds=$(readlink /proc/$$/fd/[012])\necho \"$fds\" >here\n"
                          "sleep 30 &\necho $! >grandchild\nwait\n") &&
                QFile::setPermissions(script, QFile::ReadOwner | QFile::ExeOwner));
    const std::int64_t spawner = children->Start("spawner", dir.path(), false),
                       sleeper = children->Start("sleep  30", dir.path(), false);
    ASSERT_TRUE(spawner && sleeper &&
                until([&] { return fileBytes(dir.filePath("grandchild")).endsWith('\n'); }) &&
                children->WaitForSingleObject(spawner, 0) != 0);
    EXPECT_TRUE(fileBytes(dir.filePath("here")) == "/dev/null\n/dev/null\n/dev/null\n" &&
                QDir::currentPath() == home && !QFile::exists("here"));
    const QString grandchild = "/proc/" + fileBytes(dir.filePath("grandchild")).trimmed() + "/cmdline";
    children->TerminateProcess(spawner, 0);
    // The grandchild is gone, or a zombie of init's: either way its command line reads empty.
    EXPECT_TRUE(ended(spawner) && reaped(spawner) && until([&] { return fileBytes(grandchild).isEmpty(); }));
    EXPECT_NE(children->WaitForSingleObject(sleeper, 0), 0) << "only the group of the one terminated ends";

    ASSERT_TRUE(writeFile(dir.filePath("Temp.WAV"), "RIFF"));  // there, but no program
    for (auto line : {"NoSuchProgram -quit", "", "   ", "Temp.WAV"})
        EXPECT_FALSE(children->Start(line, dir.path(), 0)) << line;
    EXPECT_FALSE(children->Start("sleep 1", dir.filePath("gone"), 0) || children->Start("sleep 1", "", 0));
    EXPECT_EQ(children->WaitForSingleObject(123456789, 0), 0) << "an unknown number reads as ended";
    children.reset();
    EXPECT_TRUE(reaped(sleeper)) << "a child still running is ended and reaped with the program";
}
