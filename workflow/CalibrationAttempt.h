#pragma once

#include "camera/ImageFrame.h"
#include "engine/ICalibrator.h"
#include "workflow/AttemptListener.h"
#include "workflow/LightGate.h"
#include "workflow/State.h"

#include <cstdint>

namespace fieldcal {

/// One calibration attempt of one colour camera: light gate, automatic capture, the engine's answers, the limit of
/// photo pairs. The references must outlive it. One thread.
class CalibrationAttempt {
public:
    /// `pairLimit`: pairs after which an attempt without a solution ends.
    CalibrationAttempt(vq::ICalibrator& calibrator, AttemptListener& listener, const LightGate& light,
                       std::int32_t pairLimit);

    /// Starts from the factory rotation of the chosen camera. The state is `ProcessingFrame` afterwards.
    void start(bool secondCamera);

    /// Takes one frame set, which must be fresh: it may have been grabbed only once and must not be empty (empty ones
    /// are ignored). Gives the state afterwards: `ProcessingFrame`, `FoundGoodSolution`, or `WaitingToCalibrate` when
    /// the attempt has failed. Nothing happens in any other state.
    State processFrame(const ImageFrame16& infrared, const ImageFrame32& colour);

    State state() const { return state_; }
    /// Pairs added in this attempt.
    std::int32_t photoCount() const { return photoCount_; }

private:
    void addPair();
    void act(const vq::CalibratorResult& result);
    void fail();
    void enter(State state);

    vq::ICalibrator& calibrator_;
    AttemptListener& listener_;
    const LightGate& light_;
    const std::int32_t pairLimit_;
    State state_ = State::WaitingToCalibrate;
    std::int32_t photoCount_ = 0;
};

/// The progress shown after the given number of pairs: a fifth for each of the first four, 0.9 from the fifth on.
double progressAfterPairs(std::int32_t pairs);

}  // namespace fieldcal
