#pragma once

#include "camera/CameraParameters.h"
#include "kxapi/KXAPI.h"

namespace fieldcal {

/// Factors that scale a colour image into the infrared geometry: fx and fy of infrared divided by those of colour.
struct ColourFactors {
    double sx = 0;
    double sy = 0;
};
ColourFactors factorsToInfrared(const CameraModel& colour, const CameraModel& infrared);

/// Applies the factors to the model; width and height both follow sx, with halves rounded away from zero. `scaling`
/// receives the remainder of the rounding. Returns false and changes nothing for implausible factors or sizes.
bool bringIntoInfraredGeometry(const ColourFactors& factors, CameraModel* colour, ColourScaling* scaling);

/// Conversion of library records to this program's; translations from millimetres to metres.
CameraModel modelOf(const KXCalibIntrinsicsRectified& record);
CameraExtrinsics extrinsicsOf(const KXCalibExtrinsics& record);

/// Returns whether every number of the record is finite and, for models, whether its focal lengths and sizes are
/// positive.
bool isUsable(const KXCalibIntrinsicsRectified& record);
bool isUsable(const KXCalibIntrinsicsNonRectified& record);
bool isUsable(const KXCalibExtrinsics& record);

}  // namespace fieldcal
