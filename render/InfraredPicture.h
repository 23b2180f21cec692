#pragma once

#include "camera/ImageFrame.h"

namespace fieldcal {

/// An infrared frame (0..1023, proportional to light) as a grey picture for the eye: a fixed curve, so that a dark
/// scene stays darker than a lit one and nothing pumps. Larger values are white. Any thread.
void infraredToPicture(const ImageFrame16& infrared, ImageFrame32* picture);

}  // namespace fieldcal
