#pragma once
// The program's global state, shared by its windows.
#include <QString>
#include <array>
#include <cstdint>
#include <vector>

namespace sonarium {

constexpr int SongPathSize = 501;  // rows 0 to 500 have a directory

struct Module1 {
    // Shell
    QString AppDir;  // current directory at start, no closing slash (a root keeps its own)
    std::int16_t MiniMode = 0;
    bool ReturnedFromMini = false;
    QString DatabasePath;
    QString SkinPath;
    QString MiniSkinPath;
    QString SelectedDir;
    // What the dialog of the scan and the directory picks was left with.
    bool IncludeSubDirs = false;
    bool DialogAccepted = false;  // set by the dialog's OK
    std::int16_t VUMeterOn = 0;
    std::int16_t EncoderChoice = 0;
    QString AlarmTime = QStringLiteral("00:00");

    // Queue
    std::array<QString, SongPathSize> SongPath;
    std::vector<std::int32_t> PunchStart, PunchEnd;
    std::vector<std::int16_t> PunchActive;
    // The punch dialog's working values: the marks being set and the last frame heard.
    std::int32_t PunchInFrame = 0, PunchOutFrame = 0, PunchPosition = 0;
    std::int16_t PunchTesting = 0;  // set while the section plays; nothing reads it
    std::int16_t CurrentSong = 0;
    bool QueueClickOff = false;

    // Play state
    bool SongPlaying = false;
    bool SongPaused = false;
    std::int16_t LoopMode = 0;  // 0 off, 1 whole queue, 2 same song
    std::int16_t SongSpeed = 100;
    bool KaraokePlaying = false;
    bool KaraokeMarkPending = false;
    std::vector<std::int32_t> KaraokeFrames{0, 0}, KaraokeOffsets{0, 0};  // from index 1
    std::int32_t KaraokeIndex = 0, KaraokeCount = 0;                      // every Play resets them
    bool KaraokeRecording = false;
    QString MiniTitleText;
    QString SongFile;
    std::int32_t SongSeconds = 0;

    // Mixer and tone
    std::int16_t Volume = 0;
    std::int32_t Treble = 0, Bass = 0;
    std::int32_t DefaultTreble = 0, DefaultBass = 0;
    std::array<std::int32_t, 2> TrebleControl{}, BassControl{};
    std::int32_t MiniTop = 0, MiniLeft = 0;
    std::int32_t MiniSliderTop = 690, MiniSliderBottom = 1020;
    double MiniSliderStep = 3.3;

    // The mini player's skin: window sizes in twips, the list's rows, the sliders' travel in
    // pixels, and which list it shows (0 the queue, 1 the song sets).
    std::int32_t MiniCollapsedSize = 3270;
    std::int16_t MiniCollapseHeight = 0;
    std::int32_t MiniWidth = 5850, MiniHeight = 1320;
    std::int32_t MiniListRows = 5;
    std::int32_t MiniSliderTravel = 0;
    std::int32_t MiniTrebleTop = 0, MiniBassTop = 0;  // read from the skin, used by nothing
    std::int16_t MiniListType = 0;

    // Info pages: the folder's pages from index 1, the last element always empty; the parts of
    // the last background colour read.
    std::vector<QString> InfoFiles{QString(), QString()};
    std::int16_t RedPart = 0, GreenPart = 0, BluePart = 0;

    // Conversion
    std::int16_t SelectedCDDrive = 0;
    bool BitRateChanging = false;  // while the bit rate list refreshes the queue
    QString BladeSourceName, BladeSpacelessName;
};

}  // namespace sonarium
