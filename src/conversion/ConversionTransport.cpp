// What the transport buttons do in the conversion modes.
#include "shell/Form1.h"

namespace sonarium {

// These land with the conversion work. Until then the CD and WAV modes start nothing and
// "MP3 to WAV" decodes without asking about an existing target.
void Form1::CheckForBlade() {}

void Form1::ConversionPlay() {}

bool Form1::Mp3ToWavTargetOk() { return true; }

}  // namespace sonarium
