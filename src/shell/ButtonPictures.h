#pragma once
// The transport buttons' pictures: their indices in ImageListB, one per button and state.
namespace sonarium::buttons {

constexpr int PlayAtRest = 1, PlayPressed = 2, StopAtRest = 3, StopPressed = 4, FadeAtRest = 5,
              FadePressed = 6, PauseAtRest = 7, PausePressed = 8, PauseWhilePaused = 9,
              PausePressedWhilePaused = 10, MonoPicture = 17, StereoPicture = 18, PlayPlaying = 24;

}  // namespace sonarium::buttons
