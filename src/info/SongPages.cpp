// The song's information pages and karaoke timings, as loading and the transport call them.
#include "shell/Form1.h"

namespace sonarium {

// Reading a page into the viewer lands with the info work.
void Form1::LoadRTF(const QString&) {}

// Loading and writing .KAK timings land with the karaoke work.
void Form1::LoadKaraoke(const QString&) {}

void Form1::WriteKaraoke() {}

}  // namespace sonarium
