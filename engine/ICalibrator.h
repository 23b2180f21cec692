#pragma once

#include "camera/ImageFrame.h"
#include "engine/CalibratorResult.h"
#include "engine/ParallaxReport.h"
#include "engine/SolutionQuality.h"

#include <cstdint>
#include <optional>

namespace vq {

/// The calibration engine as the application and the overlay use it.
///
/// Order of calls: `setCameraParameters` once the camera's calibration has been read, then `setup`. During the lighting
/// check, `measureInfraredBrightness` per frame. During capture, `inputFramesAndCheckMovement` per frame and, each time
/// it returns `ProcessImagePair`, `inputImageAndTryCalibration` once. `resetState` whenever capture starts over.
/// `inputDistanceFrames` precedes each `inputFramesAndCheckMovement` where the module delivers such images.
///
/// Threads: `getTranslation`, `getRotationMatrix` and the functions of the drag gesture, from `setTouchAreaSize` to
/// `endDrag`, may be called from the interface's thread once `setCameraParameters` has run; they never wait for an
/// estimation. All other functions belong to the processing thread.
class ICalibrator {
public:
    virtual ~ICalibrator() = default;

    /// Starts an attempt: sets up the search areas about the current angles and zeroes the counters. Always returns 0.
    virtual std::int32_t setup() = 0;
    /// Feeds one live pair to the frame selection. Returns `ProcessImagePair` when a pair has been selected,
    /// `RotateDevice` while the device has to move, and `RemainStill` while it has to be held still. Neither frame may
    /// be empty. Infrared: 0..1023. Colour: RGBA in storage order, in the infrared geometry.
    virtual CalibratorResult inputFramesAndCheckMovement(const fieldcal::ImageFrame16& infrared,
                                                         const fieldcal::ImageFrame32& colour) = 0;
    /// Matches the selected pair and tries a calibration. Returns
    /// - `NeedMoreImages` while too many areas of the image have too few matches for an estimation,
    /// - `AddingFramesForConvergence` while there is no stable solution, or one that further pairs can improve,
    /// - `GoodSolution` when the solution meets the accuracy goal, or exists after the largest number of pairs (8),
    /// - `SceneTooSimple` when more than six pairs without a solution have given fewer than 30 matches on average.
    virtual CalibratorResult inputImageAndTryCalibration() = 0;
    /// Computes the mean of the infrared values, clipped at the darkest and brightest 2 %, 0..1023; 0 for an empty
    /// frame.
    virtual void measureInfraredBrightness(const fieldcal::ImageFrame16& infrared, std::uint16_t* brightness) = 0;
    /// Returns to the start of capture; camera parameters and registration stay. Always returns 0.
    virtual std::int32_t resetState() = 0;
    /// Copies the models and the factory extrinsics of the platform camera (true) or of the colour camera in the
    /// module (false). Always returns 0.
    virtual std::int32_t setCameraParameters(bool platformCamera) = 0;
    /// Writes the translation of the factory depth-to-colour extrinsics in metres. Returns `out`.
    virtual float* getTranslation(float out[3]) = 0;
    /// Writes the row-major 3 x 3 depth-to-colour rotation of the current angles. Returns `out`.
    virtual float* getRotationMatrix(float out[9]) = 0;
    /// Sizes and positions of the drag gesture are in pixels of the interface.
    virtual void setTouchAreaSize(float width, float height) = 0;
    virtual void setDragAreaSize(float width, float height) = 0;
    virtual void beginDrag(std::int32_t x, std::int32_t y) = 0;
    /// Only x changes the rotation, about the vertical axis.
    virtual void drag(std::int32_t x, std::int32_t y) = 0;
    virtual void endDrag() = 0;
    /// Sets the right infrared image and the depth image (millimetres) of the frame set that the next call of
    /// `inputFramesAndCheckMovement` feeds. Both must live until that call. Either is empty when the module has none.
    virtual void inputDistanceFrames(const fieldcal::ImageFrame16& right, const fieldcal::ImageFrame16& depth) = 0;
    /// Sets the stereo baseline that an earlier calibration of this module measured, in metres; 0 for none. Takes
    /// effect with the next `setup`.
    virtual void setRememberedBaseline(double metres) = 0;
    /// Reports what the attempt has measured about distances so far.
    virtual ParallaxReport parallax() const = 0;
    /// Returns whether the current angles are a solution, even if further pairs could improve it.
    virtual bool hasSolution() const = 0;
    /// Quality of the solution; none without a solution, or when it comes from the vote without a final fit.
    virtual std::optional<SolutionQuality> quality() const = 0;
};

}  // namespace vq
