#pragma once

#include "camera/CameraParameters.h"
#include "engine/CalibratorInterface.h"
#include "tools/CheckLine.h"

#include <vector>

namespace fieldcal {

/// The stills of one colour camera and the infrared cameras.
struct CameraStills {
    bool platformCamera = false;
    std::vector<vq::SelectedImages> stills;
};

/// The direction of reported rotations: as the convention says, or transposed.
enum class Direction { AsReported, Transposed, Unknown };

/// Checks whether the left and the right infrared image belong together: rows, order, and the stereo baseline compared
/// with depth.
CheckLines checkStereo(const std::vector<vq::SelectedImages>& stills, const CameraParameters& parameters);

/// Checks whether the translations are plausible for a module, as millimetres.
CheckLine checkTranslations(const CameraParameters& parameters, bool withPlatform);

/// Checks whether the images of one colour camera agree with its calibration, and which conventions fit the scene.
/// `trusted`: the lines so far; results that depend on a line that does not fit are not judged. `direction` receives
/// the direction of the camera's rotation that the scene shows.
CheckLines checkCamera(const CameraStills& camera, const CameraParameters& parameters, const CheckLines& trusted,
                       Direction* direction);

}  // namespace fieldcal
