#pragma once
// The .KAK file beside a song: the timings of its lyric sheet. One line with no line end of
// numbers in pairs, frame then character offset, each number printed as a Long is (" 150 ")
// and followed by a comma. The points come in the order marked, then the closing pair (the
// song's frame count and the text's length plus 1), then an empty pair 0, 0.
#include <QByteArray>
#include <cstdint>
#include <vector>

namespace sonarium {

// The points as the program holds them: element 0 unused, points from 1 to count − 1 (the
// last two being the closing and the empty pair when the file was whole).
struct KaraokePoints {
    std::vector<std::int32_t> frames{0, 0}, offsets{0, 0};
    std::int32_t count = 1;
};

// Elements 1 to count of both arrays, as the file holds them.
QByteArray karaokeFileBytes(const KaraokePoints& points);

// Reads comma-separated numbers, blanks skipped: a frame, then its offset if the file goes on.
// A number past the range of a Long reads as 0, text as 0, and a missing last comma changes
// nothing. Past MaxKaraokePoints pairs the rest of the file is left unread.
constexpr std::int32_t MaxKaraokePoints = 1'000'000;
KaraokePoints readKaraokeFile(const QByteArray& bytes);

}  // namespace sonarium
