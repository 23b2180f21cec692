#include "simulator/kxapi/Calibration.h"

#include <algorithm>
#include <iterator>

namespace kxsim {
namespace {

using fieldcal::session::Matrix3;

constexpr Matrix3 kIdentity{1, 0, 0, 0, 1, 0, 0, 0, 1};
/// -0.25, 0.4 and 0.1 degrees about X, Y and Z.
constexpr Matrix3 kThirdRectification{0.99997410605, -0.00177577184, 0.00697356097,  0.00174528061, 0.99998889533,
                                      0.00437546986, -0.00698125349, -0.00436318578, 0.99996611157};

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

KXCalibRectParameters rectParameters(const fieldcal::session::SessionDescription& session) {
    KXCalibRectParameters out{};
    narrow(kIdentity, out.rectificationInfrared);
    narrow(kThirdRectification, out.rectificationThird);
    narrow(session.platform ? session.platform->rectification : kIdentity, out.rectificationPlatform);
    return out;
}

}  // namespace kxsim
