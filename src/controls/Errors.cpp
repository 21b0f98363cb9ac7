#include "controls/Errors.h"

#include <QtGlobal>
#include <cstdio>

namespace sonarium {
namespace {
// Skipped statements are part of the program's normal flow (a photo that isn't there, a
// picture index a skin doesn't have), so they are silent unless SONARIUM_DEBUG is set.
void defaultReporter(const QString& what) {
    static const bool debug = qEnvironmentVariableIsSet("SONARIUM_DEBUG");
    if (debug) std::fprintf(stderr, "sonarium: skipped: %s\n", what.toLocal8Bit().constData());
}

std::function<void(const QString&)>& reporter() {
    static std::function<void(const QString&)> r = defaultReporter;
    return r;
}
}  // namespace

void setSkippedErrorReporter(std::function<void(const QString&)> r) { reporter() = std::move(r); }

void resetSkippedErrorReporter() { reporter() = defaultReporter; }

void reportSkippedError(const QString& what) {
    if (reporter()) reporter()(what);
}

bool tryStep(const std::function<void()>& statement) {
    try {
        statement();
        return true;
    } catch (const RuntimeError& e) {
        reportSkippedError(QStringLiteral("error %1: %2").arg(e.number()).arg(e.text()));
    } catch (const std::exception& e) {
        reportSkippedError(QString::fromLocal8Bit(e.what()));
    }
    return false;
}

}  // namespace sonarium
