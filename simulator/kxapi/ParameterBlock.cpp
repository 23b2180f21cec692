#include "simulator/kxapi/ParameterBlock.h"

#include "camera/Rotation.h"
#include "simulator/kxapi/BlockLayout.h"
#include "simulator/kxapi/Calibration.h"

#include <Eigen/Geometry>
#include <Eigen/LU>

#include <algorithm>
#include <random>

namespace kxsim {
namespace {

using fieldcal::session::Matrix3;
using fieldcal::session::SessionDescription;
using fieldcal::session::Vector3;
using Matrix = Eigen::Matrix<double, 3, 3, Eigen::RowMajor>;
using Vector = Eigen::Vector3d;

constexpr double kRotationTolerance = 1e-3;
constexpr double kLargestTranslation = 1e5;
/// Larger than the rounding error of a product of three rotations, and too small to matter in single precision except
/// for values near zero.
constexpr double kRounding = 1e-14;

Matrix widened(const float* values) {
    return Eigen::Map<const Eigen::Matrix<float, 3, 3, Eigen::RowMajor>>(values).cast<double>();
}

Matrix matrix(const Matrix3& values) {
    return Eigen::Map<const Matrix>(values.data());
}

Matrix rotationXyzDeg(double xDeg, double yDeg, double zDeg) {
    const auto about = [](double degrees, const Vector& axis) {
        return Eigen::AngleAxisd(degrees / fieldcal::kDegreesPerRadian, axis);
    };
    return (about(zDeg, Vector::UnitZ()) * about(yDeg, Vector::UnitY()) * about(xDeg, Vector::UnitX()))
        .toRotationMatrix();
}

void narrow(const Matrix& values, float* out) {
    std::transform(values.data(), values.data() + 9, out, [](double value) { return static_cast<float>(value); });
}

Matrix storedRotation(const KXCalibRectParameters& block, std::size_t camera) {
    Matrix rotation;
    loadRotation(block, camera, rotation.data());
    return rotation;
}

/// Fills the reserved bytes with a pattern determined by the serial number.
void fillReserved(std::uint32_t serial, std::uint8_t* bytes, std::size_t count) {
    std::mt19937 random(serial);
    std::generate(bytes, bytes + count, [&] { return static_cast<std::uint8_t>(random() >> 24); });
}

/// Stores the raw rotation that corresponds to `rotation` between rectified frames.
void storeCamera(KXCalibRectParameters* block, std::size_t camera, const float* rectification, const Matrix3& rotation,
                 const Vector3& translation) {
    const Matrix raw = widened(rectification).inverse() * matrix(rotation) * widened(block->rectificationInfrared);
    storeRotation(block, camera, raw.data());
    storeTranslation(block, camera, translation.data());
}

bool isNearlyRotation(const Matrix& m) {
    Matrix3 rows{};
    std::copy(m.data(), m.data() + m.size(), rows.begin());
    return fieldcal::isRotation(rows, kRotationTolerance);
}

bool translationMakesSense(const KXCalibRectParameters& block, std::size_t camera) {
    Vector translation;
    loadTranslation(block, camera, translation.data());
    return translation.allFinite() && translation.cwiseAbs().maxCoeff() <= kLargestTranslation;
}

KXCalibExtrinsics reportedExtrinsics(const KXCalibRectParameters& block, std::size_t camera, const float* rectification,
                                     const Matrix3& recorded) {
    const Matrix product =
        widened(rectification) * storedRotation(block, camera) * widened(block.rectificationInfrared).inverse();
    Matrix3 rotation = recorded;
    Vector3 translation{};
    for (std::size_t i = 0; i < rotation.size(); ++i) {
        if (!(std::abs(product.data()[i] - recorded[i]) <= kRounding)) rotation[i] = product.data()[i];
    }
    loadTranslation(block, camera, translation.data());
    return extrinsics(rotation, translation);
}

}  // namespace

KXCalibRectParameters factoryBlock(const SessionDescription& session) {
    KXCalibRectParameters block{};
    fillReserved(session.module.serial, reinterpret_cast<std::uint8_t*>(&block), sizeof(block));
    narrow(rotationXyzDeg(0.15, -0.3, 0.2), block.rectificationInfrared);
    narrow(rotationXyzDeg(-0.25, 0.4, 0.1), block.rectificationThird);
    narrow(session.platform ? matrix(session.platform->rectification) : rotationXyzDeg(0.35, 0.1, -0.45),
           block.rectificationPlatform);
    const auto& third = session.third;
    storeCamera(&block, kThirdOffset, block.rectificationThird, third.rotation, third.translation);
    const auto platform = session.platform.value_or(fieldcal::session::PlatformCamera{});
    const Matrix3 rotation = session.platform ? platform.rotation : Matrix3{1, 0, 0, 0, 1, 0, 0, 0, 1};
    storeCamera(&block, kPlatformOffset, block.rectificationPlatform, rotation, platform.translation);
    return block;
}

bool isValidBlock(const KXCalibRectParameters& block, std::string* why) {
    const auto check = [why](bool good, const char* complaint) {
        if (!good) *why = complaint;
        return good;
    };
    return check(isNearlyRotation(widened(block.rectificationInfrared)), "rectificationInfrared: not a rotation") &&
           check(isNearlyRotation(widened(block.rectificationThird)), "rectificationThird: not a rotation") &&
           check(isNearlyRotation(widened(block.rectificationPlatform)), "rectificationPlatform: not a rotation") &&
           check(isNearlyRotation(storedRotation(block, kThirdOffset)),
                 "rotation of the third camera: not a rotation") &&
           check(isNearlyRotation(storedRotation(block, kPlatformOffset)),
                 "rotation of the platform camera: not a rotation") &&
           check(translationMakesSense(block, kThirdOffset), "translation of the third camera: no length in reach") &&
           check(translationMakesSense(block, kPlatformOffset),
                 "translation of the platform camera: no length in reach");
}

KXCalibExtrinsics thirdExtrinsics(const KXCalibRectParameters& block, const SessionDescription& session) {
    return reportedExtrinsics(block, kThirdOffset, block.rectificationThird, session.third.rotation);
}

KXCalibExtrinsics platformExtrinsics(const KXCalibRectParameters& block, const SessionDescription& session) {
    return reportedExtrinsics(block, kPlatformOffset, block.rectificationPlatform, session.platform->rotation);
}

}  // namespace kxsim
