#pragma once

#include <cstdint>
#include <string>

namespace vq {

/// The answers of the engine. 3 to 5 answer a live pair of frames, the others the processing of a selected pair.
enum CalibratorStatus : std::int32_t {
    NeedMoreImages = 0,              ///< too few areas of the image have matches; take another pair
    AddingFramesForConvergence = 2,  ///< no solution yet, or one that is not accurate enough; take another pair
    ProcessImagePair = 3,            ///< a pair has been selected and waits to be processed
    RotateDevice = 4,                ///< the device must move before the next pair can be selected
    RemainStill = 5,                 ///< the device must be held still
    SceneTooSimple = 6,              ///< no solution, and too few matches on average over at least seven pairs
    SceneTooSimpleRepeated = 7,      ///< reserved; never returned
    GoodSolution = 8,                ///< the solution is accepted; the attempt is complete
};

/// The answer of the engine to one call.
struct CalibratorResult {
    std::int32_t code = NeedMoreImages;  ///< a `CalibratorStatus`
    std::string message;                 ///< English, not shown to the user; may be empty
};

}  // namespace vq
