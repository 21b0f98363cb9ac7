// The CD reader on arbitrary image descriptions: the input is written as a .cue and as a .toc
// next to a .bin of a few sectors, both opened as drives. Whatever the text, opening them gives
// a sane list of tracks, each with a length and a size that agree, and never a crash or a hang.
#include <QFile>
#include <QTemporaryDir>

#include "../fakes/VirtualEventLoop.h"
#include "Fuzz.h"
#include "engine/cd/CdioCdReader.h"

// libcdio's image parsers leak a few bytes on some malformed descriptions, inside the library.
extern "C" const char* __lsan_default_suppressions() { return "leak:libcdio.so"; }

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static QTemporaryDir dir;
    const QByteArray text(reinterpret_cast<const char*>(data), qsizetype(size));
    for (const auto& [name, bytes] :
         {std::pair{"disc.bin", QByteArray(20 * 2352, 'U')}, {"disc.cue", text}, {"disc.toc", text}}) {
        QFile f(dir.filePath(name));
        if (!f.open(QIODevice::WriteOnly) || f.write(bytes) != bytes.size()) std::abort();
    }
    sonarium::VirtualEventLoop loop;
    sonarium::CdioCdReader cd(loop, dir.filePath("disc.cue") + ":" + dir.filePath("disc.toc"));
    for (std::int16_t drive = cd.DriveCount() - 1; drive <= cd.DriveCount(); ++drive) {
        cd.SelectDrive(drive);
        const int tracks = cd.TrackCount();
        FUZZ_CHECK(tracks >= 0 && tracks <= 99 && cd.TrackSize(std::int16_t(tracks + 1)) == 0);
        for (std::int16_t t = 1; t <= tracks; ++t) {
            const std::int64_t sectors = (cd.TrackSize(t) - 44) / 2352;
            FUZZ_CHECK(sectors >= 1 && cd.TrackLength(t) == sectors * 1000 / 75);
        }
    }
    return 0;
}
