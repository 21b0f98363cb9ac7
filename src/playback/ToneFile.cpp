// The song's own treble and bass: a .TB file beside the song, and the two save commands.
#include "controls/Errors.h"
#include "controls/FileNames.h"
#include "playback/SliderTravel.h"
#include "shell/Form1.h"
#include "shell/FrmMiniPlayer.h"

namespace sonarium {

// After a song loads, the sliders and the mixer show its tone while Treble and Bass hold the
// defaults again (step 7). So saving straight after loading writes the defaults over the song's
// file, and only a dragged value differs from them.
void Form1::LoadTB() {
    const QString name = lstSongs.List(M.CurrentSong);
    if (name.isEmpty()) return;
    QString file;
    tryStep([&] { file = SongPathOf(M.CurrentSong) + name + QStringLiteral(".TB"); });
    M.Treble = M.DefaultTreble;
    M.Bass = M.DefaultBass;
    if (!file.isEmpty() && fileExists(file)) {
        tryStep([&] {
            TextFieldReader in = TextFieldReader::open(resolveFileName(file));
            if (!in.atEnd()) tryStep([&] { M.Treble = in.readInt32(); });
            if (!in.atEnd()) tryStep([&] { M.Bass = in.readInt32(); });
        });
    }
    if (frmMiniPlayer.Visible()) {
        tryStep([&] { frmMiniPlayer.SliderTreble.setTop(slider::miniTopFor(M, M.Treble)); });
        tryStep([&] { frmMiniPlayer.SliderBass.setTop(slider::miniTopFor(M, M.Bass)); });
    } else {
        tryStep([&] { SliderBass.setTop(slider::topFor(slider::BassTop, M.Bass)); });
        tryStep([&] { SliderTreble.setTop(slider::topFor(slider::TrebleTop, M.Treble)); });
    }
    SendToneToMixer();
    M.Treble = M.DefaultTreble;
    M.Bass = M.DefaultBass;
}

// A file that can't be written (a song on a read-only medium) is silently not saved.
void Form1::SaveTB() {
    const QString name = lstSongs.List(M.CurrentSong);
    if (name.isEmpty()) return;
    tryStep([&] {
        TextFieldWriter out;
        out.writeNumber(M.Treble);
        out.writeNumber(M.Bass);
        out.save(resolveFileName(SongPathOf(M.CurrentSong) + name + QStringLiteral(".TB")));
    });
}

void Form1::cmdSaveTB_Click() { SaveTB(); }
void Form1::cmdSaveTBDefaults_Click() { SaveMixer(); }

}  // namespace sonarium
