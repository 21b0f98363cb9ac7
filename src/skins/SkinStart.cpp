// Applying the skins at start-up; the skin loaders land with the skin work.
#include "shell/Form1.h"

namespace sonarium {

void Form1::LoadSkin() {}

void Form1::LoadSkinMini() {}

}  // namespace sonarium
