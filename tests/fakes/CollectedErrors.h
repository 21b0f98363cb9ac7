#pragma once
// The skipped failures of a test's program, kept for the test to read.
#include <QStringList>

#include "controls/Errors.h"

namespace sonarium {

class CollectedErrors : public ErrorReporter {
public:
    void skipped(const QString& what) override { list << what; }
    QStringList list;
};

}  // namespace sonarium
