#include "simulator/kxapi/Calibration.h"

#include <algorithm>

namespace kxsim {
namespace {

using fieldcal::session::Matrix3;

template <std::size_t n>
void narrow(const std::array<double, n>& values, float* out) {
    std::transform(values.begin(), values.end(), out, [](double value) { return static_cast<float>(value); });
}

}  // namespace

KXCalibIntrinsicsRectified rectifiedIntrinsics(const fieldcal::session::Intrinsics& camera) {
    return {static_cast<float>(camera.fx),
            static_cast<float>(camera.fy),
            static_cast<float>(camera.cx),
            static_cast<float>(camera.cy),
            camera.width,
            camera.height};
}

KXCalibIntrinsicsNonRectified rawIntrinsics(const fieldcal::session::RawIntrinsics& camera) {
    return {static_cast<float>(camera.fx),
            static_cast<float>(camera.fy),
            static_cast<float>(camera.cx),
            static_cast<float>(camera.cy),
            camera.width,
            camera.height,
            static_cast<float>(camera.k1),
            static_cast<float>(camera.k2),
            static_cast<float>(camera.p1),
            static_cast<float>(camera.p2),
            static_cast<float>(camera.k3)};
}

KXCalibExtrinsics extrinsics(const Matrix3& rotation, const fieldcal::session::Vector3& translation) {
    KXCalibExtrinsics out{};
    narrow(rotation, out.rotation);
    narrow(translation, out.translation);
    return out;
}

}  // namespace kxsim
