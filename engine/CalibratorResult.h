#pragma once

#include <cstdint>
#include <string>

namespace vq {

enum CalibratorStatus : std::int32_t {
    NeedMoreImages = 0,
    AddingFramesForConvergence = 2,
    ProcessImagePair = 3,
    RotateDevice = 4,
    RemainStill = 5,
    SceneTooSimple = 6,
    SceneTooSimpleRepeated = 7,
    GoodSolution = 8,
};

struct CalibratorResult {
    std::int32_t code = NeedMoreImages;  ///< a `CalibratorStatus`
    std::string message;                 ///< may be empty
};

}  // namespace vq
