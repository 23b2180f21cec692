#pragma once

#include "camera/ImageFrame.h"
#include "kxapi/KXAPI.h"
#include "simulator/kxapi/Faults.h"

#include <cstdint>
#include <vector>

namespace kxsim {

/// Converts a record to the convention that a condition among the faults names, instead of that of `KXAPI.h`.
KXCalibIntrinsicsRectified inConvention(KXCalibIntrinsicsRectified colour, const Faults& faults);
KXCalibIntrinsicsNonRectified inConvention(KXCalibIntrinsicsNonRectified raw, const Faults& faults);
KXCalibExtrinsics inConvention(KXCalibExtrinsics pose, const Faults& faults);

/// A copy of an image as a library with such a convention delivers it.
class AlteredImage {
public:
    /// Returns the pixels to be delivered: the image's own, unless a condition names another convention. Null when
    /// there is no image. Valid until the next call, and as long as the image.
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
