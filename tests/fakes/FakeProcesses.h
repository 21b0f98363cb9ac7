#pragma once
// Child processes that exist only in the test: a started process runs for a set time on the
// event loop's clock (or until the test ends it), and is polled like a real one.
#include <map>

#include "CallLog.h"
#include "controls/ChildProcess.h"
#include "controls/EventLoop.h"

namespace sonarium {

class FakeProcesses : public ChildProcesses, public CallLog {
public:
    struct Process {
        QString commandLine, workingDir;
        bool hidden = false;
        std::int64_t endsAt = -1;  // loop time of its end; -1 runs until ended by the test
        bool terminated = false, closed = false;
    };

    explicit FakeProcesses(EventLoop& loop) : loop_(loop) {}

    // --- Set-up (tests) ---
    // Start fails (returns 0) while this is false.
    void setStartSucceeds(bool ok) { startOk_ = ok; }
    // Processes started from now on end `ms` after their start; -1: only when the test says.
    void setRunTime(std::int64_t ms) { runTimeMs_ = ms; }
    void endProcess(std::int64_t id);

    // --- Looking in (tests) ---
    // The process of that number, or null.
    const Process* process(std::int64_t id) const;
    std::int64_t lastStarted() const { return last_; }
    // Polls are counted, not logged: the program polls every 100 ms.
    int pollCount() const { return polls_; }

    // --- ChildProcesses ---
    std::int64_t Start(const QString& commandLine, const QString& workingDir, bool hidden) override;
    int WaitForSingleObject(std::int64_t process, int timeoutMs) override;
    void TerminateProcess(std::int64_t process, int exitCode) override;
    void CloseHandle(std::int64_t process) override;

private:
    EventLoop& loop_;
    std::map<std::int64_t, Process> processes_;
    bool startOk_ = true;
    std::int64_t runTimeMs_ = -1;
    std::int64_t last_ = 0;
    int polls_ = 0;
};

}  // namespace sonarium
