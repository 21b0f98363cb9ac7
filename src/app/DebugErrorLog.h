#pragma once
// The program's reporter of skipped failures. They are part of its normal flow (a photo that
// isn't there, a picture index a skin doesn't have), so they are silent unless SONARIUM_DEBUG
// is set, and then each goes to stderr as it happens.
#include <QtGlobal>
#include <cstdio>

#include "controls/Errors.h"

namespace sonarium {

class DebugErrorLog : public ErrorReporter {
public:
    void skipped(const QString& what) override {
        if (debug_) std::fprintf(stderr, "sonarium: skipped: %s\n", what.toLocal8Bit().constData());
    }

private:
    const bool debug_ = qEnvironmentVariableIsSet("SONARIUM_DEBUG");
};

}  // namespace sonarium
