#include "tools/ExportedCameras.h"

#include "engine/Rotation.h"

#include <Eigen/Dense>
#include <Eigen/Geometry>

#include <cmath>

namespace fieldcal {
namespace {

constexpr int kColumns = 33;  // grid of the points at which raw models are compared
constexpr int kRows = 19;

/// Moves the principal point of a colour camera from the position required after scaling to its position in the image
/// itself.
session::Intrinsics inOwnPixels(session::Intrinsics colour, const session::Intrinsics& infrared) {
    colour.cx += 0.5 * colour.fx / infrared.fx - 0.5;
    colour.cy += 0.5 * colour.fy / infrared.fy - 0.5;
    return colour;
}

Eigen::Vector3d ray(const session::Intrinsics& camera, const Eigen::Vector2d& pixel) {
    return {(pixel.x() - camera.cx) / camera.fx, (pixel.y() - camera.cy) / camera.fy, 1};
}

/// The position of a direction in the raw image, in focal lengths, before the tangential terms; and the factors of
/// these terms.
struct RadialPlace {
    Eigen::Vector2d place;
    Eigen::Matrix2d tangential;  ///< first column: shift by p1; second column: by p2
};

RadialPlace radialPlace(const session::RawIntrinsics& raw, const Eigen::Vector3d& direction) {
    const Eigen::Vector2d p = direction.hnormalized();
    const double r2 = p.squaredNorm();
    const double xy = 2 * p.x() * p.y();
    Eigen::Matrix2d tangential;
    tangential << xy, r2 + 2 * p.x() * p.x(), r2 + 2 * p.y() * p.y(), xy;
    return {p * (1 + r2 * (raw.k1 + r2 * (raw.k2 + r2 * raw.k3))), tangential};
}

}  // namespace

session::Intrinsics inScalingPixels(session::Intrinsics colour, const session::Intrinsics& infrared) {
    colour.cx += 0.5 - 0.5 * colour.fx / infrared.fx;
    colour.cy += 0.5 - 0.5 * colour.fy / infrared.fy;
    return colour;
}

/// When the principal point of the rectified image moves, every direction turns a little, and no raw model of this kind
/// reproduces the same mapping exactly. The principal point and the tangential coefficients, on which the raw pixels
/// depend linearly, are fitted over the image.
UnrectifiedCamera movedPrincipalPoint(const UnrectifiedCamera& camera, const session::Intrinsics& from,
                                      const session::Intrinsics& to) {
    const session::RawIntrinsics& raw = camera.intrinsics;
    const Eigen::Matrix3d toRaw = vq::matrixOf(camera.rectification).transpose();
    const Eigen::Vector2d focal(raw.fx, raw.fy);
    const Eigen::Vector2d tangential(raw.p1, raw.p2);
    Eigen::Matrix4d normal = Eigen::Matrix4d::Zero();
    Eigen::Vector4d right = Eigen::Vector4d::Zero();
    for (int i = 0; i < kColumns * kRows; ++i) {
        const int row = i / kColumns, column = i % kColumns;
        const Eigen::Vector2d pixel(column * (from.width - 1.0) / (kColumns - 1),
                                    row * (from.height - 1.0) / (kRows - 1));
        const RadialPlace before = radialPlace(raw, toRaw * ray(from, pixel));
        const RadialPlace after = radialPlace(raw, toRaw * ray(to, pixel));
        const Eigen::Vector2d wanted = before.place + before.tangential * tangential - after.place;
        Eigen::Matrix<double, 2, 4> factors;  // of the principal point's shift, in focal lengths, and of p1 and p2
        factors << Eigen::Matrix2d::Identity(), after.tangential;
        normal += factors.transpose() * factors;
        right += factors.transpose() * wanted;
    }
    const Eigen::Vector4d fitted = normal.ldlt().solve(right);
    UnrectifiedCamera result = camera;
    result.intrinsics.cx += fitted[0] * focal.x();
    result.intrinsics.cy += fitted[1] * focal.y();
    result.intrinsics.p1 = fitted[2];
    result.intrinsics.p2 = fitted[3];
    return result;
}

ExportedCameras exportedCameras(const CameraPair& pair) {
    ExportedCameras cameras{pair.infrared, inOwnPixels(pair.colour, pair.infrared), {}};
    if (pair.unrectified) cameras.unrectified = movedPrincipalPoint(*pair.unrectified, pair.colour, cameras.colour);
    return cameras;
}

ColourPose colourPose(const CameraPair& pair) {
    // The rotation that was read may be rounded. With the nearest exact rotation, the exported angles and the
    // quaternion agree.
    const Eigen::Quaterniond rotation = Eigen::Quaterniond(vq::matrixOf(pair.rotation)).normalized().conjugate();
    const Eigen::Matrix3d r = rotation.toRotationMatrix();
    ColourPose pose;
    pose.translationM = -(rotation * Eigen::Map<const Eigen::Vector3d>(pair.translationM.data()));
    pose.rollPitchYawRad = {std::atan2(r(2, 1), r(2, 2)), std::atan2(-r(2, 0), std::hypot(r(2, 1), r(2, 2))),
                            std::atan2(r(1, 0), r(0, 0))};
    pose.quaternion = rotation.coeffs();
    return pose;
}

}  // namespace fieldcal
