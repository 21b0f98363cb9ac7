#pragma once
// The names of the ID3v1 genre numbers, in their common public spellings: the original list
// 0 to 79 and the widely used extension 80 to 191. This is the player's vocabulary, which the
// library stores in its Genre column; the program's own genre box has a separate table.
#include <QString>

namespace sonarium {

// A text for every number: 0 to 191 their genre, 192 to 254 and anything outside 0..255
// "Unknown", 255 (no genre) "None".
QString id3v1GenreName(int genre);

}  // namespace sonarium
