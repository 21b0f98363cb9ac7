#include "FakeDesktop.h"

namespace sonarium {

bool FakeDesktop::openDocument(const QString& file) {
    record(QStringLiteral("openDocument(%1)").arg(file));
    if (openOk_) opened_ << file;
    return openOk_;
}

bool FakeDesktop::openHelp() {
    record(QStringLiteral("openHelp"));
    if (openOk_) ++helpOpened_;
    return openOk_;
}

void FakeDesktop::quit(int exitCode) {
    record(QStringLiteral("quit(%1)").arg(exitCode));
    quitCode_ = exitCode;
}

}  // namespace sonarium
