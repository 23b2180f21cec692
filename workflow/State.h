#pragma once

#include <cstdint>

namespace fieldcal {

/// The states of the workflow. The interface uses the same numbers.
enum class State : std::int32_t {
    FirstOpened = 0,
    ShowingIntroduction = 1,
    DetectingLighting = 2,
    ResetCalibration = 3,
    InitializingCalibration = 4,
    WaitingToCalibrate = 5,
    StartingCalibration = 6,
    ProcessingFrame = 7,
    FoundGoodSolution = 8,
    RefiningTutorial = 9,
    RefiningCalibration = 10,
    AskToSaveCalibration = 11,
};

}  // namespace fieldcal
