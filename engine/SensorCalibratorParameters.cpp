#include "engine/SensorCalibratorParameters.h"

namespace vq {

bool SensorCalibratorParameters::isValid(std::string* why) const {
    const auto require = [why](bool holds, const char* reason) {
        if (!holds) *why = reason;
        return holds;
    };
    return require(infraredConversionMode >= 0 && infraredConversionMode <= 3,
                   "infraredConversionMode must be 0, 1, 2 or 3") &&
           require(gridColumns >= 1 && gridRows >= 1, "gridColumns and gridRows must be at least 1") &&
           require(supportCount >= 1, "supportCount must be at least 1") &&
           require(cellMinimum >= 1, "cellMinimum must be at least 1") &&
           require(cellFillFraction >= 0.0F && cellFillFraction <= 1.0F, "cellFillFraction must be within 0..1") &&
           require(angleSearchStep > 0.0F, "angleSearchStep must be positive");
}

}  // namespace vq
