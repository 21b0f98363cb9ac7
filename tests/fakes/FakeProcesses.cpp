#include "FakeProcesses.h"

namespace sonarium {

namespace {
constexpr int kStillRunning = 258;  // what a poll of a running process answers
constexpr int kNoSuchProcess = -1;
}  // namespace

void FakeProcesses::endProcess(std::int64_t id) {
    auto it = processes_.find(id);
    if (it != processes_.end()) it->second.endsAt = loop_.now();
}

const FakeProcesses::Process* FakeProcesses::process(std::int64_t id) const {
    auto it = processes_.find(id);
    return it == processes_.end() ? nullptr : &it->second;
}

std::int64_t FakeProcesses::Start(const QString& commandLine, const QString& workingDir, bool hidden) {
    record(QStringLiteral("Start(%1|%2|%3)").arg(commandLine, workingDir,
                                                  hidden ? QStringLiteral("hidden") : QStringLiteral("minimised")));
    if (!startOk_) return 0;
    Process p{commandLine, workingDir, hidden, runTimeMs_ < 0 ? -1 : loop_.now() + runTimeMs_};
    last_ = last_ ? last_ + 1 : 1001;
    processes_.emplace(last_, p);
    return last_;
}

int FakeProcesses::WaitForSingleObject(std::int64_t process, int) {
    ++polls_;
    auto it = processes_.find(process);
    if (it == processes_.end()) return kNoSuchProcess;
    const Process& p = it->second;
    bool ended = p.terminated || (p.endsAt >= 0 && loop_.now() >= p.endsAt);
    return ended ? 0 : kStillRunning;
}

void FakeProcesses::TerminateProcess(std::int64_t process, int exitCode) {
    record(QStringLiteral("TerminateProcess(%1,%2)").arg(process).arg(exitCode));
    auto it = processes_.find(process);
    if (it != processes_.end()) it->second.terminated = true;
}

void FakeProcesses::CloseHandle(std::int64_t process) {
    record(QStringLiteral("CloseHandle(%1)").arg(process));
    auto it = processes_.find(process);
    if (it != processes_.end()) it->second.closed = true;
}

}  // namespace sonarium
