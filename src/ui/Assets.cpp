#include "ui/Assets.h"

#include <QtGlobal>

// Outside any namespace, as the resource's own initialiser is.
static void registerAssets() { Q_INIT_RESOURCE(assets); }

namespace sonarium {

void initAssets() { registerAssets(); }

}  // namespace sonarium
