#pragma once

#include "camera/CameraParameters.h"
#include "engine/CalibratorInterface.h"
#include "tools/CheckLine.h"

#include <vector>

namespace fieldcal {

/// What one colour camera and the infrared cameras saw.
struct CameraStills {
    bool platformCamera = false;
    std::vector<vq::SelectedImages> stills;
};

/// Which of the two conventions about rotations something follows.
enum class Direction { AsTold, Transposed, Unknown };

/// Whether the left and the right infrared image belong together: rows, order, and the stereo baseline against depth.
CheckLines checkStereo(const std::vector<vq::SelectedImages>& stills, const CameraParameters& parameters);

/// Whether the translations are ones that a module can have, in millimetres.
CheckLine checkTranslations(const CameraParameters& parameters, bool withPlatform);

/// Whether what one colour camera sees agrees with its calibration, and which conventions fit the scene. `trusted`:
/// what was found so far; what rests on something that does not fit is not judged. `direction` gets which direction of
/// the camera's rotation the scene shows.
CheckLines checkCamera(const CameraStills& camera, const CameraParameters& parameters, const CheckLines& trusted,
                       Direction* direction);

}  // namespace fieldcal
