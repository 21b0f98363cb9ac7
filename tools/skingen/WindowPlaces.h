#pragma once
// Where the controls stand on the panels of the main window, in pixels of their panel: the
// window's design as the skin has to meet it. The panels are drawn around these places (a well
// behind a display, a tray behind buttons) and the preview puts each cut on its control here.
#include "skins/MainSkinLayout.h"

namespace sonarium::skingen::places {

using mainskin::Rect;

// The panels on the window.
inline constexpr Rect stickOnWindow{0, 0, 632, 27};
inline constexpr Rect topOnWindow{0, 27, 632, 146};
inline constexpr Rect viewOnWindow{0, 173, 634, 29};
inline constexpr Rect mixerOnWindow{0, 202, 53, 262};
inline constexpr Rect titlesOnWindow{53, 202, 531, 263};
inline constexpr Rect rightOnWindow{584, 202, 48, 262};
inline constexpr Rect databaseOnWindow{0, 202, 634, 263};
inline constexpr int windowWidth = 634, windowHeight = 465;

// imgStick
inline constexpr Rect imgSize{614, 8, 11, 11};

// PicTopPanel
inline constexpr Rect photo{6, 9, 231, 128};
inline constexpr Rect songTitle{246, 6, 380, 18};
inline constexpr Rect btnPlay{246, 30, 42, 20}, btnPause{292, 30, 42, 20}, btnStop{338, 30, 42, 20},
    btnFade{384, 30, 42, 20};
inline constexpr Rect time{436, 28, 96, 24};
inline constexpr Rect ball{546, 37, 12, 7}, loop{566, 37, 12, 7}, repeat{582, 34, 14, 13},
    shuffle{602, 37, 12, 7};
inline constexpr Rect songSlider{246, 66, 196, 3}, songKnob{246, 62, 20, 10};
inline constexpr Rect vu{244, 60, 201, 15};
inline constexpr Rect speedDown{456, 58, 15, 8}, speedUp{456, 67, 15, 8}, speed{474, 58, 32, 17},
    speedLegend{508, 61, 33, 12};
inline constexpr Rect bitrate{246, 88, 60, 14}, frequency{310, 88, 60, 14}, duration{374, 88, 60, 14},
    monoStereo{440, 90, 48, 11}, totalTime{540, 88, 84, 14};
inline constexpr Rect saveTB{246, 113, 12, 9}, saveTBDefaults{262, 113, 12, 9}, useInOut{280, 110, 16, 16},
    setPunch{300, 111, 30, 15}, punchLegend{334, 113, 80, 11};
inline constexpr Rect encoder{440, 110, 159, 16}, quitEncoder{440, 128, 110, 15};

// PanelVU: lamp i of 19.
inline constexpr int vuLamps = 19;
constexpr Rect vuLamp(int i) { return {5 + i * 10, 3, 8, 8}; }
// The meter lights its first ten lamps green, the next five amber and the rest red.
inline constexpr int vuFirstAmber = 10, vuFirstRed = 15;

// PicView
inline constexpr Rect addAll{6, 7, 48, 15}, deleteAll{58, 7, 56, 15}, deleteSong{118, 7, 83, 15};
inline constexpr Rect songQueue{210, 7, 200, 15}, drive{430, 4, 198, 21};

// PicMixer: the knobs' column and their Top at value 100, travelling 54 pixels down to 0
// (810 twips).
inline constexpr int knobX = 21, knobW = 11, knobH = 18, knobTravel = 54;
inline constexpr int knobTopAt100[3] = {18, 100, 182};

// PicTitleBoxes
inline constexpr Rect dirList{6, 6, 170, 251}, songList{358, 6, 167, 251};
inline constexpr int titleCount = 12;
constexpr Rect title(int i) { return {182, 6 + i * 21, 170, 19}; }

// PicRightPanel
inline constexpr Rect cmdUp{7, 6, 33, 37}, cmdDown{7, 46, 33, 37}, imgDataBase{6, 92, 36, 37},
    imgViewInfo{2, 138, 22, 37}, imgEditInfo{24, 138, 22, 37};

// PanelCdToMP3, over PicEncode.
inline constexpr Rect encodeProgress{6, 96, 209, 10};

// PicDatabase: the heading buttons (the last pair keeps its place at the right), the grid,
// the count, order and filter line and the commands along the bottom.
inline constexpr int columnPairs = 15;
constexpr Rect columnButton(int i) { return {i < 14 ? 6 + i * 40 : 596, 4, 17, 17}; }
constexpr Rect columnMenu(int i) { return {columnButton(i).x + 21, 6, 11, 12}; }
inline constexpr Rect grid{6, 24, 622, 196};
inline constexpr Rect records{6, 224, 64, 14}, order{74, 224, 130, 14}, filter{208, 224, 420, 14};
inline constexpr int commandY = 242, commandH = 17, commandGap = 4, commandCount = 8;
inline constexpr int commandWidths[commandCount] = {74, 71, 71, 71, 71, 71, 78, 71};
constexpr Rect command(int i) {
    int x = 6;
    for (int k = 0; k < i; ++k) x += commandWidths[k] + commandGap;
    return {x, commandY, commandWidths[i], commandH};
}

}  // namespace sonarium::skingen::places
