#pragma once

#include "camera/ImageFrame.h"
#include "engine/CalibratorResult.h"
#include "engine/ParallaxReport.h"
#include "engine/SolutionQuality.h"

#include <cstdint>
#include <optional>

namespace vq {

/// The calibration engine as the application and the overlay see it.
///
/// Order of calls: `setCameraParameters` once the camera's calibration is read, then `setup`; during the lighting
/// check `measureInfraredBrightness` per frame; during capture `inputFramesAndCheckMovement` per frame and, each time
/// it answers 3, `inputImageAndTryCalibration` once; `resetState` whenever capture starts over.
/// `inputDistanceFrames` comes before each `inputFramesAndCheckMovement` where the module delivers such images.
/// Threads: slots 0 to 5 and 13 to 17 belong to the processing thread. Slots 6 to 12 may be called from the interface's
/// thread once `setCameraParameters` has run; they never wait for an estimation.
class ICalibrator {
public:
    virtual ~ICalibrator() = default;

    /// Starts an attempt: search areas about the current angles, counters to zero. Always 0.
    virtual std::int32_t setup() = 0;
    /// Feeds one live pair to the frame selection: 3 use this pair, 4 move the device, 5 hold it still. Both frames
    /// must not be empty. Colour: RGBA in storage order, in the infrared geometry.
    virtual CalibratorResult inputFramesAndCheckMovement(const fieldcal::ImageFrame16& infrared,
                                                         const fieldcal::ImageFrame32& colour) = 0;
    /// Matches the selected pair and tries a calibration: 0, 2, 6, 7 or 8. It answers 8 when the solution is as
    /// accurate as it should be, or when there have been eight pairs; until then a solution is kept and made better.
    virtual CalibratorResult inputImageAndTryCalibration() = 0;
    /// Mean of the infrared values with the darkest and brightest 2 % clipped, 0..1023. Empty frame: 0.
    virtual void measureInfraredBrightness(const fieldcal::ImageFrame16& infrared, std::uint16_t* brightness) = 0;
    /// Back to the start of capture; camera parameters and registration stay. Always 0.
    virtual std::int32_t resetState() = 0;
    /// Takes the models and the factory extrinsics of the platform camera or of the one inside the module. 0.
    virtual std::int32_t setCameraParameters(bool platformCamera) = 0;
    /// Metres, of the factory depth-to-colour extrinsics. Gives `out` back.
    virtual float* getTranslation(float out[3]) = 0;
    /// Row-major 3 x 3 rotation of the current angles. Gives `out` back.
    virtual float* getRotationMatrix(float out[9]) = 0;
    virtual void setTouchAreaSize(float width, float height) = 0;
    virtual void setDragAreaSize(float width, float height) = 0;
    virtual void beginDrag(std::int32_t x, std::int32_t y) = 0;
    /// Only x moves the rotation, about the vertical axis.
    virtual void drag(std::int32_t x, std::int32_t y) = 0;
    virtual void endDrag() = 0;
    /// The right infrared image and the depth (millimetres) of the grab that the next call of
    /// `inputFramesAndCheckMovement` feeds. Either may be empty: the module has none.
    virtual void inputDistanceFrames(const fieldcal::ImageFrame16& right, const fieldcal::ImageFrame16& depth) = 0;
    /// The stereo baseline that an earlier calibration of this module found, metres; 0 for none. Takes effect with the
    /// next `setup`.
    virtual void setRememberedBaseline(double metres) = 0;
    /// What the attempt knows about distances so far.
    virtual ParallaxReport parallax() const = 0;
    /// Whether the current angles are a solution, though perhaps not one as accurate as it could become.
    virtual bool hasSolution() const = 0;
    /// How good the solution is; none without one, or when only the vote stands behind it.
    virtual std::optional<SolutionQuality> quality() const = 0;
};

}  // namespace vq
