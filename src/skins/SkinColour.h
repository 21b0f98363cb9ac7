#pragma once
// A colour component of a skin's text file: over 255 counts as 255, and a negative one is
// refused as the colour function refuses it (RuntimeError).
#include "controls/Errors.h"

namespace sonarium {

inline int colourComponent(double v) {
    if (v < 0)
        throw RuntimeError(RuntimeError::InvalidCall, QStringLiteral("Invalid procedure call or argument"));
    return v > 255 ? 255 : int(v);
}

}  // namespace sonarium
