#pragma once

#include "camera/ImageFrame.h"
#include "engine/CalibratorResult.h"

#include <string>

namespace fieldcal {

/// Receives the progress of a calibration attempt, for the user and for the code that drives the attempt. Called on the
/// thread that drives the attempt. An implementation overrides the calls that it shows.
class AttemptListener {
public:
    virtual ~AttemptListener() = default;

    /// The current instruction, in English and marked for translation in the context "Interface", and whether it asks
    /// the user to hold still. An empty text hides the line. `startText` is translated by the receiver, too.
    virtual void movementText(const std::string&, bool /*holdStill*/) {}
    /// The text of the page on which an attempt is started: the reason why the last attempt failed.
    virtual void startText(const std::string&) {}
    /// 0..1.
    virtual void calibrationProgress(double) {}
    virtual void returnToWellLitArea(bool /*needed*/) {}
    /// A pair has been selected and is about to be processed.
    virtual void pairCaptured() {}
    /// The two images of the pair, sent after `pairCaptured`. Valid during the call only.
    virtual void pairImages(const ImageFrame16& /*infrared*/, const ImageFrame32& /*colour*/) {}
    /// A pair has been matched, and a calibration has been tried with it.
    virtual void pairProcessed(const vq::CalibratorResult&) {}
    virtual void offerHowToMove() {}
};

}  // namespace fieldcal
