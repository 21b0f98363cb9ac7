// The pane beside the queue shows one of three faces: the photo, the song's details (its tag
// boxes and Update Tag) or the song sets. The View menu picks the face; the song sets' own
// entry is with them.
#include "controls/Errors.h"
#include "shell/Form1.h"

namespace sonarium {

namespace {

// The label under the song sets says how to load one: it goes with their list.
void hideSongSets(Form1& f) {
    f.tryStep([&] { f.lstSongSets.setVisible(false); });
    f.tryStep([&] { f.lblDoubleClick.setVisible(false); });
}

}  // namespace

void Form1::mnuSongInfo_Click() {
    tryStep([&] { PanelPhoto.setVisible(false); });
    tryStep([&] { PanelSongInfo.setVisible(true); });
    hideSongSets(*this);
}

void Form1::mnuPhoto_Click() {
    tryStep([&] { PanelPhoto.setVisible(true); });
    tryStep([&] { PanelSongInfo.setVisible(false); });
    hideSongSets(*this);
}

}  // namespace sonarium
