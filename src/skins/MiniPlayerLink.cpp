// The mini player's share of song loading and the transport: its digits, buttons, timer,
// list and loop buttons. They land with the mini player; until then the main window's
// procedures call these at the places they belong.
#include "shell/Form1.h"

namespace sonarium {

void Form1::MiniShowSongLength() {}
void Form1::MiniShowChannels(std::int16_t) {}
void Form1::MiniShowPlaying() {}
void Form1::MiniHideChannels() {}
void Form1::MiniShowStopped() {}
void Form1::MiniStopMeterTimer() {}
void Form1::MiniClearElapsed() {}
void Form1::MiniResetKnob() {}
void Form1::MiniSongFollows() {}
void Form1::MiniGetSongs() {}
void Form1::MiniSelectRow(int) {}
void Form1::MiniShowLoop(bool) {}
void Form1::MiniShowElapsed(std::int32_t, std::int32_t) {}

}  // namespace sonarium
