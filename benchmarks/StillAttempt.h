#pragma once

#include "benchmarks/ModuleStills.h"
#include "engine/CalibratorInterface.h"
#include "engine/Stopwatch.h"
#include "workflow/CalibrationAttempt.h"

namespace fieldcal {

/// Runs the program's calibration of one colour camera on stills instead of a live camera.
class StillAttempt {
public:
    using Outcome = CalibrationAttempt::Outcome;

    /// Both references must outlive this object. `pairLimit`: number of pairs after which an attempt without a solution
    /// ends.
    StillAttempt(const CameraParameters& parameters, const JudgedCamera& camera, int pairLimit);

    /// Starts an attempt from the factory rotation.
    void start() { attempt_.start(camera_.camera); }
    /// Shows one still for as long as a hand rests, or until the attempt ends.
    Outcome show(const FrameRecords& still);
    /// The results of a solved attempt.
    double errorDeg();
    Eigen::Matrix3d rotation();
    vq::ParallaxReport parallax() const { return engine_.parallax(); }
    std::optional<vq::SolutionQuality> quality() const { return engine_.quality(); }
    /// To be called when there are no more stills.
    Outcome finish() { return attempt_.finish(); }

    int pairs() const { return watch_.pairs; }
    /// Mean time of all pairs so far, each from its images to the engine's result.
    double pairSeconds() const { return watch_.seconds; }

private:
    struct PairWatch : AttemptListener {
        void pairCaptured() override { watch.lap(); }
        void pairProcessed(const vq::CalibratorResult&) override {
            seconds += watch.lap();
            ++pairs;
        }
        vq::Stopwatch watch;
        double seconds = 0;
        int pairs = 0;
    };

    const JudgedCamera& camera_;
    vq::RegistrationContext context_;
    vq::CalibratorInterface engine_;
    PairWatch watch_;
    LightGate light_;
    CalibrationAttempt attempt_;
};

}  // namespace fieldcal
