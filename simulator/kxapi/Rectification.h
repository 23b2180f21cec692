#pragma once

#include "kxapi/KXAPI.h"

namespace kxsim {

/// Fills the rectification table. An entry is the position of a rectified pixel in the raw image, to 1/32 pixel: bit 31
/// is set when the position is inside; then follow x (11 bits), y (10 bits), and the fractions of x and y (5 bits
/// each). The integer part is never the last column or row, so that the four neighbours always exist. Entry 0: outside.
///
/// For the rectified pixel (u, v): X = rotationᵀ · K_rectified⁻¹ · (u, v, 1), the radial-tangential distortion of
/// X / Z, then the raw intrinsics; the first pixel's centre is at 0. By docs/conventions.md a colour camera's principal
/// point lies ½ · f / f_infrared - ½ further in its own pixels. The infrared focal length is not needed here, because
/// it shifts the raw and the rectified image by nearly the same angle. The remaining error is about
/// ½ · (f_raw / f_rectified - 1), a hundredth of a pixel.
///
/// Raw images have at most 2048 x 1024 pixels; with larger ones, or with invalid intrinsics, every entry is outside.
void fillRectificationTable(const KXCalibIntrinsicsNonRectified& raw, const double* rotation,
                            const KXCalibIntrinsicsRectified& rectified, std::uint32_t* table);

/// Rectifies an image bilinearly, within 1 of the exact value. Pixels from outside become black with alpha 255. Entries
/// that point outside `width` x `height` count as outside.
void rectify(const std::uint32_t* table, const std::uint8_t* source, std::int32_t pitchPixels, std::int32_t width,
             std::int32_t height, std::uint8_t* destination);

}  // namespace kxsim
