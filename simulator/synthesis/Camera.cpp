#include "simulator/synthesis/Camera.h"

#include <functional>

namespace fieldcal::synthesis {

namespace {

/// `ray` returns x/z and y/z of a position in pixels, with the centre of the first pixel at 0.
RayGrid gridOf(cv::Size size, int samplesPerPixel, const std::function<cv::Point2d(cv::Point2d)>& ray) {
    RayGrid grid;
    grid.samplesPerPixel = samplesPerPixel;
    grid.rays.create(size.height * samplesPerPixel, size.width * samplesPerPixel);
    cv::parallel_for_({0, grid.rays.rows}, [&](const cv::Range& rows) {
        for (int y = rows.start; y < rows.end; ++y)
            for (int x = 0; x < grid.rays.cols; ++x) {
                const cv::Point2d r = ray({(x + 0.5) / samplesPerPixel - 0.5, (y + 0.5) / samplesPerPixel - 0.5});
                grid.rays(y, x) = cv::Vec2f(static_cast<float>(r.x), static_cast<float>(r.y));
            }
    });
    return grid;
}

cv::Matx33d matrix(const session::Matrix3& m) {
    return cv::Matx33d(m.data());
}

cv::Point2d distorted(const session::RawIntrinsics& k, cv::Point2d p) {
    const double r2 = p.dot(p), radial = 1 + r2 * (k.k1 + r2 * (k.k2 + r2 * k.k3));
    return {p.x * radial + 2 * k.p1 * p.x * p.y + k.p2 * (r2 + 2 * p.x * p.x),
            p.y * radial + k.p1 * (r2 + 2 * p.y * p.y) + 2 * k.p2 * p.x * p.y};
}

cv::Point2d undistorted(const session::RawIntrinsics& k, cv::Point2d target) {
    constexpr int rounds = 8;  // for such lenses each round gains more than an order of magnitude
    cv::Point2d p = target;
    for (int i = 0; i < rounds; ++i) {
        const cv::Point2d missing = target - distorted(k, p);
        p += missing;
        if (missing.dot(missing) < 1e-18) break;
    }
    return p;
}

}  // namespace

cv::Point2d ownPrincipalPoint(const session::Intrinsics& colour, const session::Intrinsics& infrared) {
    const double sx = infrared.fx / colour.fx, sy = infrared.fy / colour.fy;
    return {colour.cx - 0.5 + 0.5 / sx, colour.cy - 0.5 + 0.5 / sy};
}

namespace {

/// Rectified positions of raw pixels, computed at every eighth pixel. Linear interpolation is accurate to a hundredth
/// of a pixel for such lenses.
class RectifiedLattice {
public:
    explicit RectifiedLattice(const session::PlatformCamera& platform)
        : nodes_(platform.raw.height / kCellPx + 3, platform.raw.width / kCellPx + 3) {
        for (int y = 0; y < nodes_.rows; ++y)
            for (int x = 0; x < nodes_.cols; ++x)
                nodes_(y, x) = rectifiedFromRaw(platform, cv::Point2d(x - 1, y - 1) * kCellPx);
    }

    /// A position at most one pixel outside the image.
    cv::Point2d at(cv::Point2d raw) const {
        const double x = raw.x / kCellPx + 1, y = raw.y / kCellPx + 1;
        const int column = static_cast<int>(x), row = static_cast<int>(y);
        const double u = x - column, v = y - row;
        const cv::Point2d *above = nodes_[row] + column, *below = nodes_[row + 1] + column;
        return (above[0] * (1 - u) + above[1] * u) * (1 - v) + (below[0] * (1 - u) + below[1] * u) * v;
    }

private:
    static constexpr int kCellPx = 8;
    cv::Mat_<cv::Point2d> nodes_;
};

}  // namespace

RayGrid infraredRays(const session::Intrinsics& infrared, int samplesPerPixel) {
    return gridOf({infrared.width, infrared.height}, samplesPerPixel, [&](cv::Point2d p) {
        return cv::Point2d((p.x - infrared.cx) / infrared.fx, (p.y - infrared.cy) / infrared.fy);
    });
}

RayGrid colourRays(const session::Intrinsics& colour, const session::Intrinsics& infrared, int samplesPerPixel) {
    const cv::Point2d principal = ownPrincipalPoint(colour, infrared);
    return gridOf({colour.width, colour.height}, samplesPerPixel, [&](cv::Point2d p) {
        return cv::Point2d((p.x - principal.x) / colour.fx, (p.y - principal.y) / colour.fy);
    });
}

cv::Point2d rawFromRectified(const session::PlatformCamera& platform, cv::Point2d p) {
    const auto& k = platform.rectified;
    const cv::Vec3d x = matrix(platform.rectification).t() * cv::Vec3d((p.x - k.cx) / k.fx, (p.y - k.cy) / k.fy, 1);
    const cv::Point2d d = distorted(platform.raw, {x[0] / x[2], x[1] / x[2]});
    return {platform.raw.fx * d.x + platform.raw.cx, platform.raw.fy * d.y + platform.raw.cy};
}

cv::Point2d rectifiedFromRaw(const session::PlatformCamera& platform, cv::Point2d p) {
    const auto& raw = platform.raw;
    const cv::Point2d u = undistorted(raw, {(p.x - raw.cx) / raw.fx, (p.y - raw.cy) / raw.fy});
    const cv::Vec3d x = matrix(platform.rectification) * cv::Vec3d(u.x, u.y, 1);
    const auto& k = platform.rectified;
    return {k.fx * x[0] / x[2] + k.cx, k.fy * x[1] / x[2] + k.cy};
}

RayGrid platformRays(const session::PlatformCamera& platform, const session::Intrinsics& infrared,
                     int samplesPerPixel) {
    const auto& k = platform.rectified;
    const cv::Point2d principal = ownPrincipalPoint(k, infrared);
    const RectifiedLattice rectified(platform);
    return gridOf({platform.raw.width, platform.raw.height}, samplesPerPixel, [&](cv::Point2d p) {
        const cv::Point2d r = rectified.at(p);
        return cv::Point2d((r.x - principal.x) / k.fx, (r.y - principal.y) / k.fy);
    });
}

}  // namespace fieldcal::synthesis
