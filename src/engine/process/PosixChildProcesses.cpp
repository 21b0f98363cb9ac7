#include "engine/process/PosixChildProcesses.h"

#include <fcntl.h>
#include <signal.h>
#include <spawn.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <cerrno>
#include <chrono>
#include <climits>
#include <thread>
#include <vector>

extern char** environ;

namespace sonarium {
namespace {

using Clock = std::chrono::steady_clock;

bool isRunnable(const QString& path) {
    const QByteArray name = QFile::encodeName(path);
    struct stat st {};
    return stat(name.constData(), &st) == 0 && S_ISREG(st.st_mode) && access(name.constData(), X_OK) == 0;
}

// The file that runs `program` for a child in `dir` (absolute): a name with a '/' is taken
// from there as it stands; a bare name is looked for in `dir` first, then along PATH, whose
// relative entries the child would also read from `dir`. Empty when there is none.
QString programPath(const QString& program, const QDir& dir) {
    const QString inDir = dir.filePath(program);
    if (isRunnable(inDir)) return inDir;
    if (program.contains('/')) return {};
    QString path = qEnvironmentVariable("PATH");
    if (path.isNull()) path = QStringLiteral("/usr/local/bin:/usr/bin:/bin");
    for (const QString& entry : path.split(':')) {
        const QString candidate = dir.filePath(entry.isEmpty() ? program : entry + '/' + program);
        if (isRunnable(candidate)) return candidate;
    }
    return {};
}

// True once `pid` is reaped, or is no child of ours any more.
bool reaped(pid_t pid) {
    int status = 0;
    pid_t r;
    do r = waitpid(pid, &status, WNOHANG);
    while (r < 0 && errno == EINTR);
    return r == pid || (r < 0 && errno == ECHILD);
}

bool reapedBy(pid_t pid, Clock::time_point deadline) {
    while (!reaped(pid)) {
        if (Clock::now() >= deadline) return false;
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
    }
    return true;
}

}  // namespace

PosixChildProcesses::~PosixChildProcesses() {
    for (const pid_t pid : unreaped_) kill(pid);
    // SIGKILL takes effect at once; the bound only guards against a child stuck in the kernel,
    // which init reaps once the program has gone.
    const auto deadline = Clock::now() + std::chrono::seconds(2);
    for (const pid_t pid : unreaped_) reapedBy(pid, deadline);
}

std::int64_t PosixChildProcesses::Start(const QString& commandLine, const QString& workingDir, bool) {
    reapEnded();
    const QStringList words = commandLine.split(QRegularExpression("[ \t]+"), Qt::SkipEmptyParts);
    if (words.isEmpty() || workingDir.isEmpty() || !QFileInfo(workingDir).isDir()) return 0;
    const QDir dir(QFileInfo(workingDir).absoluteFilePath());
    const QString program = programPath(words.front(), dir);
    if (program.isEmpty()) return 0;

    std::vector<QByteArray> args;
    for (const QString& word : words) args.push_back(QFile::encodeName(word));
    std::vector<char*> argv;
    for (QByteArray& arg : args) argv.push_back(arg.data());
    argv.push_back(nullptr);
    const QByteArray path = QFile::encodeName(program), cwd = QFile::encodeName(dir.path());

    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_addchdir_np(&actions, cwd.constData());
    posix_spawn_file_actions_addopen(&actions, 0, "/dev/null", O_RDONLY, 0);
    posix_spawn_file_actions_addopen(&actions, 1, "/dev/null", O_WRONLY, 0);
    posix_spawn_file_actions_adddup2(&actions, 1, 2);
    // The child must not keep the program's database, sound device or sockets open.
    posix_spawn_file_actions_addclosefrom_np(&actions, 3);
    posix_spawnattr_t attributes;
    posix_spawnattr_init(&attributes);
    // Signals the program blocks or ignores stay its own; the child starts with the defaults.
    sigset_t none, all;
    sigemptyset(&none);
    sigfillset(&all);
    posix_spawnattr_setsigmask(&attributes, &none);
    posix_spawnattr_setsigdefault(&attributes, &all);
    posix_spawnattr_setpgroup(&attributes, 0);
    posix_spawnattr_setflags(&attributes,
                             POSIX_SPAWN_SETPGROUP | POSIX_SPAWN_SETSIGMASK | POSIX_SPAWN_SETSIGDEF);
    pid_t pid = 0;
    const int error = posix_spawn(&pid, path.constData(), &actions, &attributes, argv.data(), environ);
    posix_spawnattr_destroy(&attributes);
    posix_spawn_file_actions_destroy(&actions);
    if (error != 0) return 0;
    unreaped_.insert(pid);
    return pid;
}

int PosixChildProcesses::WaitForSingleObject(std::int64_t process, int) {
    reapEnded();
    return process > 0 && process <= INT_MAX && unreaped_.count(pid_t(process)) ? 1 : 0;
}

void PosixChildProcesses::TerminateProcess(std::int64_t process, int) {
    // Signalled before anything is reaped: while the child is unreaped its pid, and so its
    // group, can belong to no other process.
    const auto it = process > 0 && process <= INT_MAX ? unreaped_.find(pid_t(process)) : unreaped_.end();
    if (it != unreaped_.end()) {
        kill(*it);
        if (reapedBy(*it, Clock::now() + std::chrono::milliseconds(100))) unreaped_.erase(it);
    }
    reapEnded();
}

void PosixChildProcesses::reapEnded() {
    for (auto it = unreaped_.begin(); it != unreaped_.end();)
        it = reaped(*it) ? unreaped_.erase(it) : std::next(it);
}

void PosixChildProcesses::kill(pid_t pid) {
    ::kill(-pid, SIGKILL);
    ::kill(pid, SIGKILL);  // also when it has left its group
}

}  // namespace sonarium
