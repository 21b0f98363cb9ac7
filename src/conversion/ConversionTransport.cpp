// What the transport buttons do in the conversion modes.
#include "shell/Form1.h"

namespace sonarium {

// The external encoder lands next.
void Form1::CheckForBlade() {}

void Form1::EncodeBlade(const QString&, QString&, const QString&) {}

}  // namespace sonarium
