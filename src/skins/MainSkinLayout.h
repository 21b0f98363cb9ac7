#pragma once
// Where each picture of the main window lies on the sheets of a main skin: the one table that
// the skin loader cuts by and the artwork generator draws by. Rectangles are pixels of the
// sheet, x and y from its top left corner. A name stands for every control of that name, so an
// array's entry covers all its elements.
#include <array>
#include <string_view>

namespace sonarium::mainskin {

struct Rect {
    int x, y, w, h;
    constexpr int right() const { return x + w; }
    constexpr int bottom() const { return y + h; }
};

struct Cut {
    std::string_view control;
    Rect rect;
};

// The files of a skin directory. The first one's presence is what makes a directory a skin.
inline constexpr std::string_view DatabaseFile = "PanelDatabase.bmp";
inline constexpr std::string_view ButtonsFile = "Buttons.bmp";
inline constexpr std::string_view PanelsFile = "Panels.bmp";
inline constexpr std::string_view ColorsFile = "Colors.txt";

// The smallest sheets that hold every rectangle below.
inline constexpr int PanelsMinWidth = 635, PanelsMinHeight = 617;
inline constexpr int ButtonsMinWidth = 381, ButtonsMinHeight = 167;

// Panels.bmp, in the order they are cut; imgMpeg3 is cut apart, after everything else.
inline constexpr std::array<Cut, 10> PanelCuts{{
    {"PicTopPanel", {1, 1, 632, 146}},
    {"PicView", {1, 148, 634, 29}},
    {"imgStick", {1, 178, 632, 27}},
    {"PicMixer", {1, 206, 53, 262}},
    {"PicTitleBoxes", {55, 206, 531, 263}},
    {"PicRightPanel", {587, 206, 48, 262}},
    {"PicEncode", {2, 472, 231, 128}},
    {"Image8", {465, 471, 53, 127}},
    {"Image9", {465, 471, 53, 127}},
    {"PanelVU", {2, 602, 201, 15}},
}};
inline constexpr Cut PhotoCut{"imgMpeg3", {234, 471, 230, 128}};

// Buttons.bmp: the pictures that stay on their controls.
inline constexpr std::array<Cut, 56> ButtonCuts{{
    {"cmdAddAll", {1, 1, 48, 15}},
    {"cmdDeleteAll", {50, 1, 56, 15}},
    {"cmdDelete", {107, 1, 83, 15}},
    {"imgQuitEncoder", {191, 1, 110, 15}},
    {"cmdSetPunchInOut", {302, 1, 30, 15}},
    {"cmdAddToQueue", {1, 17, 74, 17}},
    {"CmdDataAdd", {76, 17, 71, 17}},
    {"cmdSearch", {148, 17, 71, 17}},
    {"imgAutoUpdate", {148, 17, 71, 17}},
    {"cmdAutoSet", {220, 17, 71, 17}},
    {"cmdClearAll", {292, 17, 71, 17}},
    {"cmdDatabaseClose", {1, 35, 71, 17}},
    {"CmdDeleteFile", {152, 35, 71, 17}},
    {"cmdDeleteLine", {224, 35, 78, 17}},
    {"cmdCloseInfoViewer", {303, 35, 78, 17}},
    {"btnGigGuide", {1, 53, 78, 17}},
    {"btnContact", {73, 53, 78, 17}},
    {"cmdCurrentSongInfo", {80, 53, 78, 17}},
    {"cmdPrint", {159, 53, 41, 17}},
    {"imgCancelSearch", {201, 53, 71, 17}},
    {"SLiderVolume", {259, 71, 11, 18}},
    {"SliderTreble", {259, 71, 11, 18}},
    {"SliderBass", {259, 71, 11, 18}},
    {"imgDown", {271, 77, 11, 12}},
    {"imgEncoder", {1, 113, 159, 16}},
    {"lblPunchInOut", {161, 113, 80, 11}},
    {"lblSpd", {242, 113, 33, 12}},
    {"cmdDown", {1, 130, 33, 37}},
    {"cmdUp", {35, 130, 33, 37}},
    {"imgDataBase", {69, 130, 36, 37}},
    {"imgViewInfo", {106, 130, 22, 37}},
    {"imgEditInfo", {129, 130, 22, 37}},
    {"imgVUPurple", {152, 130, 8, 8}},
    {"imgVUGreen", {161, 130, 8, 8}},
    {"imgVURed", {170, 130, 8, 8}},
    {"imgVUAmber", {179, 130, 8, 8}},
    {"cmdInfoLeft", {152, 139, 10, 18}},
    {"cmdInfoRight", {163, 139, 10, 18}},
    {"Indent", {174, 139, 17, 17}},
    {"imgButon", {174, 139, 17, 17}},
    {"Button", {192, 139, 17, 17}},
    {"ButtonBlue", {210, 139, 17, 17}},
    {"cmdSpeedDown", {228, 139, 15, 8}},
    {"cmdSpeedUp", {228, 148, 15, 8}},
    {"chkLoop", {244, 139, 12, 7}},
    {"Ball", {244, 139, 12, 7}},
    {"imgRedBall", {244, 139, 12, 7}},
    {"imgGreenBall", {261, 139, 12, 7}},
    {"lblRepeat", {278, 139, 14, 13}},
    {"cmdShuffle", {293, 139, 12, 7}},
    {"cmdSaveTBDefaults", {310, 139, 12, 9}},
    {"cmdSaveTB", {310, 139, 12, 9}},
    {"imgButtonSong", {244, 147, 20, 10}},
    {"imgSLiderSong", {152, 158, 196, 3}},
    // The size button's two states; the full window's comes last and stays.
    {"imgSize", {283, 78, 11, 11}},
    {"imgSize", {295, 78, 11, 11}},
}};

// ImageListB, from index 1: the pictures of controls whose look changes while the program runs.
// clang-format off
inline constexpr std::array<Rect, 24> ImageListCuts{{
    {1, 71, 42, 20},     // 1  BtnPlay at rest
    {44, 71, 42, 20},    // 2  BtnPlay pressed
    {87, 71, 42, 20},    // 3  BtnStop at rest
    {130, 71, 42, 20},   // 4  BtnStop pressed
    {173, 71, 42, 20},   // 5  BtnFade at rest
    {216, 71, 42, 20},   // 6  BtnFade pressed
    {130, 92, 42, 20},   // 7  BtnPause at rest
    {173, 92, 42, 20},   // 8  BtnPause pressed, not paused
    {1, 92, 42, 20},     // 9  BtnPause while paused
    {44, 92, 42, 20},    // 10 BtnPause pressed while paused
    {44, 92, 42, 20},    // 11-14 fillers that keep the numbering
    {44, 92, 42, 20},
    {44, 92, 42, 20},
    {44, 92, 42, 20},
    {295, 78, 11, 11},   // 15 imgSize, the full window
    {283, 78, 11, 11},   // 16 imgSize, only the stick
    {216, 92, 48, 11},   // 17 imgMS, mono
    {266, 92, 48, 11},   // 18 imgMS, stereo
    {266, 92, 48, 11},   // 19-23 fillers
    {266, 92, 49, 11},
    {266, 92, 49, 11},
    {266, 92, 49, 11},
    {266, 92, 49, 11},
    {87, 92, 42, 20},    // 24 BtnPlay while a song plays
}};
// clang-format on

// The image list's pictures that the buttons also take at once, at load.
struct RestPicture {
    std::string_view control;
    int index;
};
inline constexpr std::array<RestPicture, 4> RestPictures{
    {{"BtnPlay", 1}, {"BtnStop", 3}, {"BtnFade", 5}, {"BtnPause", 7}}};

}  // namespace sonarium::mainskin
