#pragma once

#include "camera/ImageFrame.h"
#include "engine/CalibratorResult.h"

#include <string>

namespace fieldcal {

/// What a calibration attempt tells the user and its driver. Called on the thread that drives the attempt; an
/// implementation overrides what it shows.
class AttemptListener {
public:
    virtual ~AttemptListener() = default;

    /// The instruction of the moment; an empty text hides the line.
    /// The instruction of the moment, and whether it is to hold still.
    virtual void movementText(const std::string&, bool /*holdStill*/) {}
    /// Shown where an attempt is started: why the last one failed.
    virtual void startText(const std::string&) {}
    /// 0..1.
    virtual void calibrationProgress(double) {}
    virtual void returnToWellLitArea(bool /*needed*/) {}
    /// A pair is being taken.
    virtual void pairCaptured() {}
    /// What is seen at that moment, told after `pairCaptured`. Valid during the call.
    virtual void pairPictures(const ImageFrame16& /*infrared*/, const ImageFrame32& /*colour*/) {}
    /// A pair has been matched, and a calibration tried with it.
    virtual void pairProcessed(const vq::CalibratorResult&) {}
    virtual void offerHowToMove() {}
};

}  // namespace fieldcal
