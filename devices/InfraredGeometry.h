#pragma once

#include "camera/CameraParameters.h"
#include "kxapi/KXAPI.h"

namespace fieldcal {

/// Factors that bring a colour picture into the infrared geometry: fx and fy of infrared over those of colour.
struct ColourFactors {
    double sx = 0;
    double sy = 0;
};
ColourFactors factorsToInfrared(const CameraModel& colour, const CameraModel& infrared);

/// Applies the factors to the model; width and height both follow sx, rounded halves away from zero. `scaling` gets
/// what the rounding leaves over. False, with nothing changed, for factors or sizes that no camera has.
bool bringIntoInfraredGeometry(const ColourFactors& factors, CameraModel* colour, ColourScaling* scaling);

/// Library records to ours; translations from millimetres to metres.
CameraModel modelOf(const KXCalibIntrinsicsRectified& record);
CameraExtrinsics extrinsicsOf(const KXCalibExtrinsics& record);

/// Whether every number of the record is finite and, for models, its focal lengths and sizes are positive.
bool isUsable(const KXCalibIntrinsicsRectified& record);
bool isUsable(const KXCalibIntrinsicsNonRectified& record);
bool isUsable(const KXCalibExtrinsics& record);

}  // namespace fieldcal
