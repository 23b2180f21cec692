#include "session/Nv12.h"
#include "simulator/kxapi/Rectification.h"
#include "simulator/synthesis/Rig.h"
#include "simulator/synthesis/Rotation.h"
#include "simulator/synthesis/StillRenderer.h"
#include "tests/synthesis/DotField.h"

#include <gmock/gmock.h>
#include <opencv2/imgproc.hpp>

#include <cmath>

namespace fieldcal::synthesis {
namespace {

StillSettings noiseless() {
    StillSettings s;
    s.infrared = {200, 1e12, 0, 0, 0};
    s.colour = {0.15, 1e12, 0, 0, 0, 0};
    return s;
}

cv::Mat_<float> greyOf(const std::uint8_t* bgra, int width, int height) {
    cv::Mat_<float> grey(height, width);
    for (int i = 0; i < width * height; ++i)
        grey(i / width, i % width) = bgra[4 * i + 1];
    return grey;
}

/// Where a dot lies that is expected near `guess`: the centroid of what exceeds the ground. NaN near a border.
cv::Point2d centroid(const cv::Mat_<float>& picture, cv::Point2d guess) {
    constexpr int reach = 7;
    const int cx = cvRound(guess.x), cy = cvRound(guess.y);
    if (cx < reach + 4 || cy < reach + 4 || cx >= picture.cols - reach - 4 || cy >= picture.rows - reach - 4)
        return {std::nan(""), 0};
    const cv::Mat_<float> window = picture(cv::Rect(cx - reach, cy - reach, 2 * reach + 1, 2 * reach + 1));
    double low = 0, high = 0;
    cv::minMaxLoc(window, &low, &high);
    const double ground = low + 0.15 * (high - low);
    cv::Point2d sum(0, 0);
    double weight = 0;
    for (int y = 0; y < window.rows; ++y)
        for (int x = 0; x < window.cols; ++x) {
            const double w = std::max(0.0, window(y, x) - ground);
            sum += cv::Point2d(cx - reach + x, cy - reach + y) * w;
            weight += w;
        }
    return high - low > 10 ? sum / weight : cv::Point2d(std::nan(""), 0);
}

cv::Point2d projected(const cv::Matx33d& homography, cv::Point2d p) {
    const cv::Vec3d v = homography * cv::Vec3d(p.x, p.y, 1);
    return {v[0] / v[2], v[1] / v[2]};
}

cv::Matx33d calibrationMatrix(double fx, double fy, double cx, double cy) {
    return {fx, 0, cx, 0, fy, cy, 0, 0, 1};
}

/// A colour picture brought into the infrared geometry as it is done with real ones.
struct Scaled {
    cv::Mat_<float> picture;
    cv::Matx33d k;
    double factorX, factorY;

    Scaled(const cv::Mat_<float>& raw, const session::Intrinsics& colour, const session::Intrinsics& infrared) {
        const double sx = infrared.fx / colour.fx, sy = infrared.fy / colour.fy;
        const cv::Size size(static_cast<int>(std::lround(colour.width * sx)),
                            static_cast<int>(std::lround(colour.height * sx)));
        cv::resize(raw, picture, size, 0, 0, cv::INTER_LINEAR);
        k = calibrationMatrix(infrared.fx, infrared.fy, sx * colour.cx, sy * colour.cy);
        factorX = sx * colour.width / size.width, factorY = sy * colour.height / size.height;
    }
    cv::Point2d delivered(cv::Point2d model) const {
        return {(model.x + 0.5) / factorX - 0.5, (model.y + 0.5) / factorY - 0.5};
    }
};

/// Deviations of the colour dots from where the infrared ones and the true rotation put them.
struct Deviations {
    int count = 0;
    cv::Point2d mean;
    double worst = 0;
};

Deviations compare(const cv::Mat_<float>& infrared, const cv::Matx33d& infrared_world, const session::Intrinsics& k,
                   const Scaled& colour, const session::Matrix3& rotation) {
    const cv::Matx33d kInfrared = calibrationMatrix(k.fx, k.fy, k.cx, k.cy);
    const cv::Matx33d homography = colour.k * cv::Matx33d(rotation.data()) * kInfrared.inv();
    Deviations out;
    for (int column = -30; column < 30; ++column)
        for (int row = -8; row <= 8; ++row) {
            const cv::Vec3d seen = infrared_world * DotField::dot(column, row);
            if (seen[2] < 0.3) continue;
            const cv::Point2d expected = projected(kInfrared, {seen[0] / seen[2], seen[1] / seen[2]});
            const cv::Point2d here = centroid(infrared, expected);
            const cv::Point2d there = colour.delivered(projected(homography, here));
            const cv::Point2d found = std::isnan(here.x) ? here : centroid(colour.picture, there);
            if (std::isnan(found.x)) continue;
            EXPECT_LT(cv::norm(here - expected), 0.06) << "infrared dot " << column << ", " << row;
            out.worst = std::max(out.worst, cv::norm(found - there));
            out.mean += found - there;
            ++out.count;
        }
    if (out.count > 0) out.mean /= out.count;
    return out;
}

void expectAligned(const Deviations& d) {
    EXPECT_GE(d.count, 40);
    EXPECT_LT(d.worst, 0.1);
    EXPECT_LT(cv::norm(d.mean), 0.02);
}

/// The rear camera's picture as the tablet's software rectifies it.
cv::Mat_<float> rectified(const session::PlatformCamera& camera, const std::vector<std::uint8_t>& nv12) {
    const auto f = [](double v) { return static_cast<float>(v); };
    const auto& r = camera.raw;
    const auto& k = camera.rectified;
    const KXCalibIntrinsicsNonRectified raw{f(r.fx), f(r.fy), f(r.cx), f(r.cy), r.width, r.height,
                                            f(r.k1), f(r.k2), f(r.p1), f(r.p2), f(r.k3)};
    const KXCalibIntrinsicsRectified target{f(k.fx), f(k.fy), f(k.cx), f(k.cy), k.width, k.height};
    std::vector<std::uint32_t> table(static_cast<std::size_t>(k.width) * k.height);
    kxsim::fillRectificationTable(raw, camera.rectification.data(), target, table.data());
    std::vector<std::uint8_t> source(table.size() * 4), destination(table.size() * 4);
    session::bgraFromNv12(nv12.data(), r.width, r.height, source.data());
    kxsim::rectify(table.data(), source.data(), k.width, k.width, k.height, destination.data());
    return greyOf(destination.data(), k.width, k.height);
}

TEST(SynthesisGeometry, DotsLieWhereTheTrueRotationPutsThemInBothColourCameras) {
    for (unsigned seed : {3U, 8U}) {
        const auto rig = drawRig(seed, {true, {}, {}});
        const DotField field;
        StillRenderer renderer(field, rig);
        const cv::Matx33d pose = rotationFromAngles({2.0, -37.0 * seed, 1.5});
        const auto pictures = renderer.take(pose, noiseless(), seed);

        const int width = rig.infrared.width, height = rig.infrared.height;
        cv::Mat_<float> infrared;
        cv::Mat_<std::uint16_t>(height, width, const_cast<std::uint16_t*>(pictures.infrared.pixels()))
            .convertTo(infrared, CV_32F);

        SCOPED_TRACE("seed " + std::to_string(seed));
        const Scaled third(greyOf(pictures.third.bytes(), rig.third.width, rig.third.height), rig.third, rig.infrared);
        expectAligned(compare(infrared, pose, rig.infrared, third, *rig.truthThird));

        const Scaled platform(rectified(*rig.platform, pictures.platform), rig.platform->rectified, rig.infrared);
        expectAligned(compare(infrared, pose, rig.infrared, platform, *rig.truthPlatform));
    }
}

}  // namespace
}  // namespace fieldcal::synthesis
