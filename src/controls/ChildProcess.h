#pragma once
// Starting an outside program by command line and watching it: the only way the program
// talks to the external encoder. The command line is split on blanks and started directly,
// never through a shell.
#include <QString>
#include <cstdint>

namespace sonarium {

class ChildProcesses {
public:
    virtual ~ChildProcesses() = default;
    // Starts the command in the directory; returns a process number, or 0 when it did not start.
    virtual std::int64_t Start(const QString& commandLine, const QString& workingDir, bool hidden) = 0;
    // 0 when the process has ended, anything else when it runs. Never waits.
    virtual int WaitForSingleObject(std::int64_t process, int timeoutMs) = 0;
    virtual void TerminateProcess(std::int64_t process, int exitCode) = 0;
    virtual void CloseHandle(std::int64_t process) = 0;
};

}  // namespace sonarium
