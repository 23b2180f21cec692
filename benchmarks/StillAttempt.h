#pragma once

#include "benchmarks/ModuleStills.h"
#include "engine/CalibratorInterface.h"
#include "engine/Stopwatch.h"
#include "workflow/CalibrationAttempt.h"

namespace fieldcal {

/// The program's calibration of one colour camera, fed with stills instead of a live camera.
class StillAttempt {
public:
    using Outcome = CalibrationAttempt::Outcome;

    /// Both references must outlive it. `pairLimit`: pairs after which an attempt without a solution ends.
    StillAttempt(const CameraParameters& parameters, const JudgedCamera& camera, int pairLimit);

    /// Starts an attempt from the factory rotation.
    void start() { attempt_.start(camera_.camera); }
    /// Shows one still for as long as a hand rests, or until the attempt ends.
    Outcome show(const FrameRecords& still);
    /// What was found, once an attempt has been solved.
    double errorDeg();
    Eigen::Matrix3d rotation();
    vq::ParallaxReport parallax() const { return engine_.parallax(); }
    std::optional<vq::SolutionQuality> quality() const { return engine_.quality(); }
    /// No more stills will come.
    Outcome finish() { return attempt_.finish(); }

    int pairs() const { return watch_.pairs; }
    /// Of all pairs so far, each from its pictures to the engine's answer.
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
