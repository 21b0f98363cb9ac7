// Opening and decoding arbitrary bytes as an MP3 file through the player's decoder: it either
// refuses the file or decodes it to the end, with frame numbers and sample counts in bounds,
// seeks landing where asked, and every loop finite.
#include "Fuzz.h"
#include "engine/player/Mp3Decoder.h"

namespace {

using namespace sonarium;

// The most sample frames one MPEG audio frame can hold (Layer II and III at MPEG-1).
constexpr int kMaxFrameSamples = 1152;

// Decodes from the decoder's position on; returns the number of frames decoded.
int decodeRest(Mp3Decoder& d, int limit) {
    const Mp3Info& info = d.info();
    DecodedFrame frame;
    int count = 0;
    std::int32_t last = -1;
    while (count < limit && d.next(frame)) {
        // A count estimated from the headers may fall a frame short; a counted one never does.
        FUZZ_CHECK(frame.index >= 0 && (!info.exactCount || frame.index < info.frames));
        FUZZ_CHECK(frame.index > last);
        FUZZ_CHECK(frame.sampleFrames >= 0 && frame.sampleFrames <= kMaxFrameSamples);
        FUZZ_CHECK(frame.sampleFrames == 0 || frame.samples != nullptr);
        last = frame.index;
        ++count;
    }
    FUZZ_CHECK(!info.exactCount || count <= info.frames);
    return count;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    Mp3Decoder d;
    if (d.open(fuzz::scratchFile(data, size)) != 0) {
        FUZZ_CHECK(!d.isOpen());
        return 0;
    }
    const Mp3Info info = d.info();
    FUZZ_CHECK(info.frames > 0);
    FUZZ_CHECK(info.rate > 0 && (info.channels == 1 || info.channels == 2));
    FUZZ_CHECK(info.channelMode >= 0 && info.channelMode <= 3);
    FUZZ_CHECK(info.samples >= 0 && info.bitRate >= 0);

    decodeRest(d, info.frames + 1);
    DecodedFrame frame;
    FUZZ_CHECK(!d.next(frame));  // the end stays the end

    // Seeks: the middle, then before the start and past the end, which clamp.
    const std::int32_t middle = info.frames / 2;
    d.seekFrame(middle);
    FUZZ_CHECK(d.position() == middle || d.position() == info.frames);
    if (d.position() == middle && d.next(frame)) FUZZ_CHECK(frame.index == middle);
    decodeRest(d, 4);
    d.seekFrame(-5);
    FUZZ_CHECK(d.position() >= 0 && d.position() <= info.frames);
    decodeRest(d, 2);
    d.seekFrame(info.frames + 10);
    FUZZ_CHECK(d.position() == info.frames);
    FUZZ_CHECK(!d.next(frame));
    d.close();
    FUZZ_CHECK(!d.isOpen() && !d.next(frame));
    return 0;
}
