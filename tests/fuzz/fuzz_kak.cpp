// The karaoke timings reader on arbitrary bytes: it gives the numbers in pairs, one element
// more than points in each array, within its bound, and what it read writes out and reads back
// the same.
#include "Fuzz.h"
#include "info/KaraokeFile.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace sonarium;
    const KaraokePoints read =
        readKaraokeFile(QByteArray(reinterpret_cast<const char*>(data), qsizetype(size)));
    FUZZ_CHECK(read.count >= 1 && read.count <= MaxKaraokePoints);
    FUZZ_CHECK(read.frames.size() == std::size_t(read.count) + 1 &&
               read.offsets.size() == read.frames.size());
    KaraokePoints written = read;
    written.count = read.count - 1;  // the points read, without the empty element reading adds
    const KaraokePoints again = readKaraokeFile(karaokeFileBytes(written));
    FUZZ_CHECK(again.frames == read.frames && again.offsets == read.offsets);
    return 0;
}
