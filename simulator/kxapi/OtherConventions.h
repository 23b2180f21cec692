#pragma once

#include "camera/ImageFrame.h"
#include "kxapi/KXAPI.h"
#include "simulator/kxapi/Faults.h"

#include <cstdint>
#include <vector>

namespace kxsim {

/// What a module tells whose library follows other conventions than `KXAPI.h`, where a condition asks for them.
KXCalibIntrinsicsRectified inConvention(KXCalibIntrinsicsRectified colour, const Faults& faults);
KXCalibIntrinsicsNonRectified inConvention(KXCalibIntrinsicsNonRectified raw, const Faults& faults);
KXCalibExtrinsics inConvention(KXCalibExtrinsics pose, const Faults& faults);

/// A copy of a picture as such a library delivers it.
class AlteredImage {
public:
    /// The pixels to be delivered: the picture's own unless a condition asks for something else. Null for no picture.
    /// Valid until the next call, and as long as the picture.
    const std::uint8_t* withPaddedRows(const fieldcal::ImageFrame* image, const Faults& faults);
    const std::uint16_t* withLowerRows(const fieldcal::ImageFrame16* image, const Faults& faults);
    const std::uint8_t* displaced(const fieldcal::ImageFrame32* image, const Faults& faults);
    const std::uint16_t* inCentimetres(const fieldcal::ImageFrame16* image, const Faults& faults);

private:
    fieldcal::ImageFrame16 changed_;
    fieldcal::ImageFrame32 displaced_;
    std::vector<std::uint8_t> padded_;
};

}  // namespace kxsim
