// The RTF reader on arbitrary bytes: whatever it reads is a normalised document whose plain text
// is its runs and paragraph breaks, and which the writer writes so that it reads back equal.
#include "Fuzz.h"
#include "info/rtf/RtfReader.h"
#include "info/rtf/RtfWriter.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace sonarium;
    const RichDocument doc = readRtf(QByteArray(reinterpret_cast<const char*>(data), qsizetype(size)));
    qsizetype length = doc.paragraphs.size() - 1;
    for (const Paragraph& p : doc.paragraphs) {
        for (const TextRun& r : p.runs) length += r.text.size();
    }
    FUZZ_CHECK(doc.plainText().size() == length);
    RichDocument normalised = doc;
    normalised.normalise();
    FUZZ_CHECK(normalised == doc);
    FUZZ_CHECK(readRtf(writeRtf(doc)) == doc);
    return 0;
}
