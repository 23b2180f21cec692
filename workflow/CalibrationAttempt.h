#pragma once

#include "camera/ColourCamera.h"
#include "camera/ImageFrame.h"
#include "engine/ICalibrator.h"
#include "workflow/AttemptListener.h"
#include "workflow/BaselineMemory.h"
#include "workflow/LightGate.h"

#include <cstdint>
#include <optional>

namespace fieldcal {

/// What an attempt takes of one grab. The right infrared image and the depth may be empty: the module has none.
struct CaptureFrames {
    const ImageFrame16& infrared;
    const ImageFrame32& colour;
    const ImageFrame16& right;
    const ImageFrame16& depth;
};

/// One calibration attempt of one colour camera: light gate, automatic capture, the engine's answers, the limit of
/// photo pairs. The references must outlive it. One thread.
class CalibrationAttempt {
public:
    /// `pairLimit`: pairs after which an attempt without a solution ends.
    CalibrationAttempt(vq::ICalibrator& calibrator, AttemptListener& listener, const LightGate& light,
                       std::int32_t pairLimit);

    /// From the next `start` on, what is known about the stereo baseline of the module with this serial number is used,
    /// and what a solved attempt has measured is remembered. Without this call nothing is.
    void useMemory(const BaselineMemory& memory, std::uint32_t serial);

    /// Forgets what was collected before, of whichever camera, and starts from the factory rotation of the chosen one.
    void start(ColourCamera camera);

    enum class Outcome {
        Continues,
        Solved,
        Failed  ///< the scenery is too simple, or the limit is reached; `fail` follows
    };
    /// Takes one frame set, which must be fresh: it may have been grabbed only once and must not be empty (empty ones
    /// are ignored). After another outcome than `Continues` nothing happens until an attempt is started.
    Outcome processFrame(const CaptureFrames& frames);
    /// No more frames will come: a solution that could have become more accurate counts as it is.
    Outcome finish();
    /// Takes no more frames until an attempt is started.
    void cancel() { running_ = false; }
    /// Ends a failed attempt: resets the engine and tells the user what to try.
    void fail();

    /// Pairs added in this attempt.
    std::int32_t photoCount() const { return photoCount_; }

private:
    Outcome addPair(const CaptureFrames& frames);
    Outcome judge(const vq::CalibratorResult& result) const;
    void rememberBaseline() const;

    vq::ICalibrator& calibrator_;
    AttemptListener& listener_;
    const LightGate& light_;
    const std::int32_t pairLimit_;
    std::optional<BaselineMemory> memory_;
    std::uint32_t serial_ = 0;
    std::int32_t photoCount_ = 0;
    bool running_ = false;
};

/// The progress shown after the given number of pairs: a fifth for each of the first four, 0.9 from the fifth on.
double progressAfterPairs(std::int32_t pairs);

}  // namespace fieldcal
