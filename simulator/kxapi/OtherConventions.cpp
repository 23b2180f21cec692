#include "simulator/kxapi/OtherConventions.h"

#include <algorithm>
#include <cstring>
#include <utility>

namespace kxsim {
namespace {

/// From one row to the next there are so many pixels more than a row has.
constexpr std::size_t kPaddingPixels = 12;
constexpr std::size_t kLowerRows = 3;
constexpr std::size_t kDisplacedColumns = 12;
constexpr int kMillimetresPerCentimetre = 10;
constexpr float kCorner = 0.5F;
constexpr float kOtherLens = 1.03F;
constexpr float kMetresPerMillimetre = 0.001F;

const std::uint16_t* pixels16(const std::uint8_t* bytes) {
    return reinterpret_cast<const std::uint16_t*>(bytes);
}

}  // namespace

KXCalibIntrinsicsRectified inConvention(KXCalibIntrinsicsRectified colour, const Faults& faults) {
    if (!faults.holds("corner-pixels")) return colour;
    colour.cx += kCorner;
    colour.cy += kCorner;
    return colour;
}

KXCalibIntrinsicsNonRectified inConvention(KXCalibIntrinsicsNonRectified raw, const Faults& faults) {
    if (!faults.holds("other-rear-lens")) return raw;
    raw.fx *= kOtherLens;
    raw.fy *= kOtherLens;
    return raw;
}

KXCalibExtrinsics inConvention(KXCalibExtrinsics pose, const Faults& faults) {
    if (faults.holds("transposed-rotation")) {
        for (const auto& [upper, lower] : {std::pair{1, 3}, {2, 6}, {5, 7}})
            std::swap(pose.rotation[upper], pose.rotation[lower]);
    }
    float factor = faults.holds("opposite-translation") ? -1.0F : 1.0F;
    if (faults.holds("metre-translation")) factor *= kMetresPerMillimetre;
    for (float& entry : pose.translation)
        entry *= factor;
    return pose;
}

const std::uint8_t* AlteredImage::withPaddedRows(const fieldcal::ImageFrame* image, const Faults& faults) {
    if (image == nullptr || image->empty()) return nullptr;
    if (!faults.holds("padded-rows")) return image->bytes();
    const std::size_t row = std::size_t{image->width()} * image->bytesPerPixel();
    const std::size_t pitch = row + kPaddingPixels * image->bytesPerPixel();
    padded_.assign(pitch * image->height(), 0);
    for (std::size_t y = 0; y < image->height(); ++y)
        std::memcpy(padded_.data() + y * pitch, image->bytes() + y * row, row);
    return padded_.data();
}

const std::uint16_t* AlteredImage::withLowerRows(const fieldcal::ImageFrame16* image, const Faults& faults) {
    const bool lower = image != nullptr && image->height() > kLowerRows && faults.holds("lower-right-rows");
    if (!lower) return pixels16(withPaddedRows(image, faults));
    changed_ = *image;
    const std::size_t row = std::size_t{image->width()} * image->bytesPerPixel();
    std::memcpy(changed_.bytes() + kLowerRows * row, image->bytes(), image->byteCount() - kLowerRows * row);
    return pixels16(withPaddedRows(&changed_, faults));
}

const std::uint8_t* AlteredImage::displaced(const fieldcal::ImageFrame32* image, const Faults& faults) {
    if (image == nullptr || image->width() <= kDisplacedColumns) return withPaddedRows(image, faults);
    displaced_ = *image;
    const std::size_t row = std::size_t{image->width()} * image->bytesPerPixel();
    const std::size_t shift = kDisplacedColumns * image->bytesPerPixel();
    for (std::size_t y = 0; y < image->height(); ++y)
        std::memcpy(displaced_.bytes() + y * row + shift, image->bytes() + y * row, row - shift);
    return withPaddedRows(&displaced_, faults);
}

const std::uint16_t* AlteredImage::inCentimetres(const fieldcal::ImageFrame16* image, const Faults& faults) {
    const bool other = image != nullptr && !image->empty() && faults.holds("depth-in-centimetres");
    if (!other) return pixels16(withPaddedRows(image, faults));
    changed_ = *image;
    std::transform(image->pixels(), image->pixels() + image->byteCount() / 2, changed_.pixels(),
                   [](std::uint16_t depth) { return static_cast<std::uint16_t>(depth / kMillimetresPerCentimetre); });
    return pixels16(withPaddedRows(&changed_, faults));
}

}  // namespace kxsim
