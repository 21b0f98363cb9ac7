// Mixer.dat: the listener's volume, treble and bass, the mini player's place, and the queue.
#include <QFile>

#include "controls/Errors.h"
#include "controls/FileNames.h"
#include "shell/AppFiles.h"
#include "shell/Form1.h"
#include "shell/TextFields.h"

namespace sonarium {

namespace {
QString mixerFile(const QString& appDir) { return joinPath(appDir, QStringLiteral("Mixer.dat")); }
}  // namespace

// Saving makes the working tone the defaults. A row past the directory store writes its name
// without a directory line, as reading back will then pair them differently.
void Form1::SaveMixer() {
    M.DefaultTreble = M.Treble;
    M.DefaultBass = M.Bass;
    TextFieldWriter out;
    out.writeNumber(M.Volume);
    out.writeNumber(M.Treble);
    out.writeNumber(M.Bass);
    out.writeNumber(M.MiniTop);
    out.writeNumber(M.MiniLeft);
    if (queueParked_) {
        for (const auto& [dir, name] : parkedQueue_) {
            if (dir) out.writeString(*dir);
            out.writeString(name);
        }
    } else {
        for (int i = 0; i < lstSongs.ListCount(); ++i) {
            tryStep([&] { out.writeString(SongPathOf(i)); });
            out.writeString(lstSongs.List(i));
        }
    }
    tryStep([&] { out.save(mixerFile(M.AppDir)); });
}

// A close, a signal, a change of bit rate or "Set as Defaults" in the middle of a conversion
// would otherwise save the list of tracks or WAV files as the queue, and the listener's queue
// would be gone for good.
void Form1::ParkQueue() {
    if (!queueParked_) {
        parkedQueue_.clear();
        for (int i = 0; i < lstSongs.ListCount(); ++i)
            parkedQueue_.append({i < SongPathSize ? std::optional(M.SongPath[std::size_t(i)]) : std::nullopt,
                                 lstSongs.List(i)});
    }
    tryStep([&] { SaveMixer(); });
    queueParked_ = true;
    tryStep([&] { lstSongs.Clear(); });
}

// Every read is its own statement: a number that can't be read leaves its variable as it was
// and reading goes on. The queue follows as a song set stores it.
void Form1::LoadMixer() {
    const QString file = mixerFile(M.AppDir);
    tryStep([&] {
        if (fileExists(file)) return;
        QFile created(file);
        if (!created.open(QIODevice::WriteOnly | QIODevice::Append))
            throw RuntimeError(RuntimeError::PathFileAccess, QStringLiteral("Path/File access error"));
    });
    tryStep([&] {
        TextFieldReader in = TextFieldReader::open(resolveFileName(file));
        auto read = [&](auto& var, auto how) {
            if (!in.atEnd()) tryStep([&] { var = how(in); });
        };
        auto int16 = [](TextFieldReader& r) { return r.readInt16(); };
        auto int32 = [](TextFieldReader& r) { return r.readInt32(); };
        read(M.Volume, int16);
        read(M.Treble, int32);
        read(M.Bass, int32);
        read(M.MiniTop, int32);
        read(M.MiniLeft, int32);
        ReadQueue(in);
    });
    if (M.Volume < 0) M.Volume = 0;
    if (M.Treble < 0) M.Treble = 0;
    if (M.Bass < 0) M.Bass = 0;
    tryStep([&] { GetTotTime(); });
}

}  // namespace sonarium
