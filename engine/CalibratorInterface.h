#pragma once

#include "camera/CameraParameters.h"
#include "engine/FrameSelector.h"
#include "engine/ICalibrator.h"
#include "engine/ImagePairRecord.h"
#include "engine/RegistrationContext.h"
#include "engine/SensorCalibrator.h"

#include <atomic>

namespace vq {

/// The engine behind `ICalibrator`. The program has one instance; tests create their own.
class CalibratorInterface : public ICalibrator {
public:
    /// `context` and `parameters` must outlive the engine. `parameters` are read by `setCameraParameters`.
    CalibratorInterface(RegistrationContext& context, const fieldcal::CameraParameters& parameters,
                        const SensorCalibratorParameters& tuning = {}, const AccuracyGoal& goal = {});

    std::int32_t setup() override;
    CalibratorResult inputFramesAndCheckMovement(const fieldcal::ImageFrame16& infrared,
                                                 const fieldcal::ImageFrame32& colour) override;
    CalibratorResult inputImageAndTryCalibration() override;
    void measureInfraredBrightness(const fieldcal::ImageFrame16& infrared, std::uint16_t* brightness) override;
    std::int32_t resetState() override;
    std::int32_t setCameraParameters(bool platformCamera) override;
    float* getTranslation(float out[3]) override;
    float* getRotationMatrix(float out[9]) override;
    void setTouchAreaSize(float width, float height) override;
    void setDragAreaSize(float width, float height) override;
    void beginDrag(std::int32_t x, std::int32_t y) override;
    void drag(std::int32_t x, std::int32_t y) override;
    void endDrag() override;
    void inputDistanceFrames(const fieldcal::ImageFrame16& right, const fieldcal::ImageFrame16& depth) override;
    void setRememberedBaseline(double metres) override;
    ParallaxReport parallax() const override { return calibrator_.parallax(); }
    bool hasSolution() const override { return calibrator_.goodSolution(); }
    std::optional<SolutionQuality> quality() const override { return calibrator_.quality(); }

    /// When the flag becomes true, a running estimation ends early without a solution. May be null.
    void setStopFlag(const std::atomic<bool>* stop) { calibrator_.setStopFlag(stop); }
    const SensorCalibrator& calibrator() const { return calibrator_; }

private:
    bool isSceneTooSimple() const;
    bool isAccurateEnough() const;

    SensorCalibrator calibrator_;
    const AccuracyGoal goal_;
    FrameSelector frameSelector_;
    SelectedImages selected_;
    const fieldcal::ImageFrame16* right_ = nullptr;  ///< of the frame set whose infrared and colour frames are fed next
    const fieldcal::ImageFrame16* depth_ = nullptr;  ///< of the same frame set
    std::int32_t attempts_ = 0;
    std::int32_t featureTotal_ = 0;
    bool firstPass_ = false;
    RegistrationContext& context_;
    const fieldcal::CameraParameters& parameters_;
};

}  // namespace vq
