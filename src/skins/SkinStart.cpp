// The mini player's skin; its loader lands with the mini player.
#include "shell/Form1.h"

namespace sonarium {

void Form1::LoadSkinMini() {}

}  // namespace sonarium
