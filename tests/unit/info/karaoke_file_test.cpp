// The .KAK file's bytes, and reading them back whatever shape the file has.
#include <gtest/gtest.h>

#include "info/KaraokeFile.h"

namespace sonarium {
namespace {

using Longs = std::vector<std::int32_t>;

TEST(KaraokeFile, WritesTheMarksThenTheClosingAndEmptyPairsAndReadsAnyShapeBack) {
    // Marks at frames 150, 310 and 500 on offsets 0, 6 and 12; a text of 20 characters and a
    // song of 9000 frames close the list, and the empty pair follows.
    KaraokePoints marked;
    marked.frames = {0, 150, 310, 500, 9000, 0};
    marked.offsets = {0, 0, 6, 12, 21, 0};
    marked.count = 5;
    const QByteArray bytes = karaokeFileBytes(marked);
    EXPECT_EQ(bytes, " 150 , 0 , 310 , 6 , 500 , 12 , 9000 , 21 , 0 , 0 ,");

    struct Case {
        QByteArray file;
        Longs frames, offsets;
    };
    const Case cases[] = {
        {bytes, {0, 150, 310, 500, 9000, 0, 0}, {0, 0, 6, 12, 21, 0, 0}},
        {bytes.chopped(1), {0, 150, 310, 500, 9000, 0, 0}, {0, 0, 6, 12, 21, 0, 0}},
        {"", {0, 0}, {0, 0}},
        {" 150 , 0 , 310 ,", {0, 150, 310, 0}, {0, 0, 0, 0}},  // an odd count
        {"abc, -5 , 99999999999 ,7", {0, 0, 0, 0}, {0, -5, 7, 0}},
    };
    for (const Case& c : cases) {
        const KaraokePoints read = readKaraokeFile(c.file);
        EXPECT_EQ(read.frames, c.frames) << c.file.toStdString();
        EXPECT_EQ(read.offsets, c.offsets) << c.file.toStdString();
        EXPECT_EQ(read.count, std::int32_t(c.frames.size()) - 1);
    }
}

}  // namespace
}  // namespace sonarium
