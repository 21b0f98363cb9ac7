// The fade-out's clock.
#include "shell/Form1.h"

namespace sonarium {

// The fade's timer, which lowers the volume and stops the song at 0, lands with the fade work;
// until then a fade only marks the song as ending on purpose.
void Form1::StartFade() {}

}  // namespace sonarium
