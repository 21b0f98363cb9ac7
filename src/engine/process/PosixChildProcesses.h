#pragma once
// Outside programs on POSIX. A command line is split on runs of blanks and the program started
// with posix_spawn (no fork in a threaded program, no shell), in the working directory given,
// which the child enters by itself so that the program's own current directory never moves.
// A bare program name is looked for in that directory first, where the encoder is copied to
// run under its bare name, then on PATH. The child reads /dev/null and writes to /dev/null,
// and leads a process group of its own: ending it ends whatever it started too.
//
// A process number is the child's pid. It stays known until the child has been reaped: every
// call first reaps the children that have ended, so none stays a zombie for long, and after
// that an unknown number reads as ended. Only children not yet reaped are ever signalled, so a
// pid the system has handed to another process is never touched.
//
// Threading: every call is for one thread, the event loop's.
#include <sys/types.h>

#include <set>

#include "controls/ChildProcess.h"

namespace sonarium {

class PosixChildProcesses : public ChildProcesses {
public:
    PosixChildProcesses() = default;
    ~PosixChildProcesses() override;  // ends the children still running and reaps them
    PosixChildProcesses(const PosixChildProcesses&) = delete;
    PosixChildProcesses& operator=(const PosixChildProcesses&) = delete;

    // 0 for an empty line, a missing working directory, or a program that is missing or cannot
    // be run. `hidden` has no meaning here: the child has no window of its own.
    std::int64_t Start(const QString& commandLine, const QString& workingDir, bool hidden) override;
    // Never waits, whatever the time-out.
    int WaitForSingleObject(std::int64_t process, int timeoutMs) override;
    // SIGKILL to the child's group at once, then a short wait to reap it; a child that takes
    // longer is reaped by a later call.
    void TerminateProcess(std::int64_t process, int exitCode) override;
    void CloseHandle(std::int64_t process) override { reapEnded(); }

private:
    void reapEnded();
    static void kill(pid_t pid);

    std::set<pid_t> unreaped_;
};

}  // namespace sonarium
