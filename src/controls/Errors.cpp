#include "controls/Errors.h"

namespace sonarium {

bool tryStep(ErrorReporter& errors, const std::function<void()>& statement) {
    try {
        statement();
        return true;
    } catch (const RuntimeError& e) {
        errors.skipped(QStringLiteral("error %1: %2").arg(e.number()).arg(e.text()));
    } catch (const std::exception& e) {
        errors.skipped(QString::fromLocal8Bit(e.what()));
    }
    return false;
}

}  // namespace sonarium
