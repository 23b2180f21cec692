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

/// The images of one frame set that an attempt uses. The right infrared image and the depth image are empty when the
/// module does not deliver them.
struct CaptureFrames {
    const ImageFrame16& infrared;
    const ImageFrame32& colour;
    const ImageFrame16& right;
    const ImageFrame16& depth;
};

/// One calibration attempt for one colour camera: light gate, automatic capture, the engine's results, the limit of
/// photo pairs. The references must outlive the attempt. One thread.
class CalibrationAttempt {
public:
    /// `pairLimit`: number of pairs after which an attempt without a solution ends.
    CalibrationAttempt(vq::ICalibrator& calibrator, AttemptListener& listener, const LightGate& light,
                       std::int32_t pairLimit);

    /// From the next `start` on, uses the known stereo baseline of the module with this serial number, and stores the
    /// one that a solved attempt has measured. Without this call no baseline is read or stored.
    void useMemory(const BaselineMemory& memory, std::uint32_t serial);

    /// Discards everything collected before, for either camera, and starts from the factory rotation of the given
    /// camera.
    void start(ColourCamera camera);

    enum class Outcome {
        Continues,
        Solved,
        Failed  ///< the scenery is too simple, or the limit is reached; `fail` is to be called next
    };
    /// Processes one frame set. It must not have been processed before; empty frames are ignored. After any outcome
    /// other than `Continues`, calls have no effect until the next `start`.
    Outcome processFrame(const CaptureFrames& frames);
    /// Ends the attempt when no more frames will come: an existing solution is accepted even if its accuracy could
    /// improve.
    Outcome finish();
    /// Stops taking frames until the next `start`.
    void cancel() { running_ = false; }
    /// Ends a failed attempt: resets the engine and tells the user what to try.
    void fail();

    /// The number of pairs taken in this attempt.
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
