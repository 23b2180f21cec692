#include "workflow/EstimateCheck.h"

#include "engine/CalibratorInterface.h"
#include "workflow/LightGate.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace fieldcal {
namespace {

/// Two seconds of the module's frame sets.
constexpr int kFrameSets = 120;
/// Motion of the hand between the exposures of a pair that counts as held still.
constexpr double kHandDeg = 0.25;
constexpr double kDeviations = 5;
constexpr std::uint16_t kBright = 1023;

/// An engine that accepts a rotation on which the matches of a single pair agree.
class SinglePairEngine {
public:
    SinglePairEngine(CameraParameters parameters, ColourCamera camera, double rememberedBaselineM)
        : parameters_(parameters), engine_(context_, parameters_, tuning(), goal()) {
        engine_.setCameraParameters(camera == ColourCamera::Platform);
        engine_.setRememberedBaseline(rememberedBaselineM);
        engine_.setup();
        light_.detect(kBright);  // the light sufficed for the capture that has just ended
    }

    /// Returns true when the frame set completed a pair from which a rotation could be estimated.
    bool show(const FrameRecords& frames, ColourCamera camera) {
        const ImageFrame32& colour = frames.colour[camera];
        if (frames.leftInfrared.empty() || colour.empty()) return false;
        std::uint16_t brightness = 0;
        engine_.measureInfraredBrightness(frames.leftInfrared, &brightness);
        if (!light_.isLitForCapture(brightness)) return false;
        engine_.inputDistanceFrames(frames.rightInfrared, frames.depth);
        if (engine_.inputFramesAndCheckMovement(frames.leftInfrared, colour).code != vq::ProcessImagePair) return false;
        engine_.inputImageAndTryCalibration();
        return engine_.hasSolution() && engine_.quality();
    }

    Rotation rotation() {
        Rotation rotation{};
        engine_.getRotationMatrix(rotation.data());
        return rotation;
    }
    double deviationDeg() const {
        const auto deviation = engine_.quality()->deviationDeg;
        return std::hypot(deviation[0], deviation[1], deviation[2]);
    }

private:
    static vq::SensorCalibratorParameters tuning() {
        vq::SensorCalibratorParameters tuning;
        tuning.minimumAttempts = 1;
        return tuning;
    }
    static vq::AccuracyGoal goal() {
        vq::AccuracyGoal goal;
        goal.leastPairs = goal.mostPairs = 1;
        return goal;
    }

    vq::RegistrationContext context_;
    const CameraParameters parameters_;
    vq::CalibratorInterface engine_;
    LightGate light_;
};

double angleDeg(const Rotation& a, const Rotation& b) {
    return angleBetweenDeg(widened(a.data()), widened(b.data()));
}

}  // namespace

std::optional<EstimateCheck> checkEstimate(Sensor& sensor, ColourCamera camera, const Rotation& estimate,
                                           double rememberedBaselineM) {
    CameraParameters parameters = sensor.parameters();
    // The search covers a few degrees about the rotation with which it starts.
    SinglePairEngine aboutBefore(parameters, camera, rememberedBaselineM);
    const Rotation before = std::exchange(parameters.colour[camera].fromDepth.rotation, estimate);
    SinglePairEngine aboutEstimate(parameters, camera, rememberedBaselineM);
    sensor.setPlatformImageWanted(camera == ColourCamera::Platform);
    sensor.setEmitterQuietly(false);
    for (int set = 0; set < kFrameSets; ++set) {
        if (!sensor.grabQuietly()) return std::nullopt;
        if (!sensor.isFreshPair(camera)) continue;
        for (SinglePairEngine* engine : {&aboutEstimate, &aboutBefore}) {
            if (!engine->show(sensor.frames(), camera)) continue;
            EstimateCheck check;
            check.offsetDeg = angleDeg(engine->rotation(), estimate);
            check.toleranceDeg =
                std::max({kHandDeg, angleDeg(before, estimate) / 2, kDeviations * engine->deviationDeg()});
            return check;
        }
    }
    return std::nullopt;
}

}  // namespace fieldcal
