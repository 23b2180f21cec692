#include "devices/InfraredGeometry.h"

#include "devices/ColourConversion.h"

#include <algorithm>
#include <cmath>
#include <initializer_list>

namespace fieldcal {
namespace {

constexpr float kMetresPerMillimetre = 0.001F;

bool allFinite(std::initializer_list<float> numbers) {
    return std::all_of(numbers.begin(), numbers.end(), [](float number) { return std::isfinite(number); });
}

template <typename Model>
bool isPinhole(const Model& model) {
    return allFinite({model.fx, model.fy, model.cx, model.cy}) && model.fx > 0 && model.fy > 0 &&
           isPlausibleImageSize(model.w, model.h);
}

/// Returns 0 when the result is not a valid image side.
std::int32_t roundedSide(std::int32_t side, double factor) {
    const double scaled = std::round(side * factor);
    return scaled >= 1 && scaled <= kLargestImageSide ? static_cast<std::int32_t>(scaled) : 0;
}

}  // namespace

ColourFactors factorsToInfrared(const CameraModel& colour, const CameraModel& infrared) {
    return {static_cast<double>(infrared.fx) / colour.fx, static_cast<double>(infrared.fy) / colour.fy};
}

bool bringIntoInfraredGeometry(const ColourFactors& factors, CameraModel* colour, ColourScaling* scaling) {
    if (!std::isfinite(factors.sx) || !std::isfinite(factors.sy)) return false;
    const std::int32_t width = roundedSide(colour->width, factors.sx);
    const std::int32_t height = roundedSide(colour->height, factors.sx);
    if (width == 0 || height == 0) return false;
    scaling->x = static_cast<float>(factors.sx * colour->width / width);
    scaling->y = static_cast<float>(factors.sy * colour->height / height);
    *colour = {width,
               height,
               static_cast<float>(colour->fx * factors.sx),
               static_cast<float>(colour->fy * factors.sy),
               static_cast<float>(colour->cx * factors.sx),
               static_cast<float>(colour->cy * factors.sy)};
    return true;
}

CameraModel modelOf(const KXCalibIntrinsicsRectified& record) {
    return {record.w, record.h, record.fx, record.fy, record.cx, record.cy};
}

CameraExtrinsics extrinsicsOf(const KXCalibExtrinsics& record) {
    CameraExtrinsics result;
    std::copy(std::begin(record.rotation), std::end(record.rotation), result.rotation.begin());
    std::transform(std::begin(record.translation), std::end(record.translation), result.translation.begin(),
                   [](float millimetres) { return millimetres * kMetresPerMillimetre; });
    return result;
}

bool isUsable(const KXCalibIntrinsicsRectified& record) {
    return isPinhole(record);
}

bool isUsable(const KXCalibIntrinsicsNonRectified& record) {
    return isPinhole(record) && allFinite({record.k1, record.k2, record.p1, record.p2, record.k3});
}

bool isUsable(const KXCalibExtrinsics& record) {
    const auto finite = [](float number) { return std::isfinite(number); };
    return std::all_of(std::begin(record.rotation), std::end(record.rotation), finite) &&
           std::all_of(std::begin(record.translation), std::end(record.translation), finite);
}

}  // namespace fieldcal
