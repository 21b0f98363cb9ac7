// The song's information pages and karaoke timings, as loading and the transport call them.
#include "shell/Form1.h"

namespace sonarium {

// Reading a page into the viewer lands with the info work.
void Form1::LoadRTF(const QString&) {}
void Form1::ClearRTF() {}
void Form1::GetRTF() {}

// Loading and writing .KAK timings land with the karaoke work.
void Form1::LoadKaraoke(const QString&) {}

void Form1::WriteKaraoke() {}
void Form1::KaraokeFrame(std::int32_t) {}

}  // namespace sonarium
