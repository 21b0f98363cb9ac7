// Arbitrary bytes as the WAV of an encoding job: the encoder either refuses the job, leaving no
// file behind, or encodes what the file holds to an MP3 and finishes once.
#include <QFile>

#include "Fuzz.h"
#include "engine/encoder/LameEncoder.h"
#include "fixtures/ThreadedTestLoop.h"

using namespace sonarium;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static fixtures::ThreadedTestLoop loop{std::chrono::seconds(30)};
    static LameEncoder encoder{loop};
    const QString wav = fuzz::scratchFile(data, size), mp3 = wav + QStringLiteral(".mp3");
    QFile::remove(mp3);
    if (encoder.OpenFiles(wav, mp3) != 0) {
        FUZZ_CHECK(!QFile::exists(mp3));
        return 0;
    }
    FUZZ_CHECK(encoder.EncodeTotal() > 0);
    int finished = 0;
    std::int32_t last = 0;
    encoder.onEncodeProgress = [&](std::int32_t done) {
        FUZZ_CHECK(done > last && done <= encoder.EncodeTotal());
        last = done;
    };
    encoder.onEncodeFinished = [&] { ++finished; };
    encoder.StartEncoding();
    loop.waitUntil([&] { return finished == 1; });
    FUZZ_CHECK(QFile::exists(mp3));
    QFile::remove(mp3);
    return 0;
}
