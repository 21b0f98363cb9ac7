#pragma once
// Where the window's three sliders stand for a value: Top at value 100, and 8.1 twips lower
// per unit, over a travel of 810 twips down to value 0.
#include "shell/Module1.h"
#include "shell/TextFields.h"

namespace sonarium::slider {

constexpr int VolumeTop = 275, TrebleTop = 1505, BassTop = 2735, Travel = 810;
constexpr double TwipsPerUnit = 8.1;

inline int topFor(int top100, double value) { return toInt32((100 - value) * TwipsPerUnit + top100); }

// The mini player's three sliders share one travel, which its skin sets.
inline int miniTopFor(const Module1& m, double value) {
    return toInt32((100 - value) * m.MiniSliderStep + m.MiniSliderTop);
}

}  // namespace sonarium::slider
