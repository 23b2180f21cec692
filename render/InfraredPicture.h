#pragma once

#include "camera/ImageFrame.h"

namespace fieldcal {

/// Converts an infrared frame (0..1023, proportional to light) to a grey image for display. The tone curve is fixed, so
/// that a dark scene stays darker than a lit one and the brightness of a live image does not oscillate. Larger values
/// are white. Any thread.
void infraredToPicture(const ImageFrame16& infrared, ImageFrame32* picture);

}  // namespace fieldcal
