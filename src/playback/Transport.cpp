// The transport buttons and the end of a stream.
#include "shell/Form1.h"

namespace sonarium {

// Until the transport lands, Play and Stop do nothing: no song is ever playing.
void Form1::BtnPlay_MouseUp(int, int, double, double) {}

void Form1::BtnStop_MouseUp(int, int, double, double) {}

}  // namespace sonarium
