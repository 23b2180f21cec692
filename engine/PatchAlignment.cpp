#include "engine/PatchAlignment.h"

#include "engine/PatchMath.h"

#include <Eigen/LU>

#include <cmath>
#include <future>

namespace vq {
namespace {

constexpr int kReach = 7;
constexpr int kSize = 2 * kReach + 1;
constexpr int kArea = kSize * kSize;
constexpr int kLatticePx = 12;
constexpr int kIterations = 8;
constexpr float kMinimumDeviation = 2.0F;  ///< grey levels of 256
constexpr float kMinimumCorrelation = 0.65F;
constexpr float kMinimumGain = 0.02F;
constexpr double kLargestMovePx = 3.0;
constexpr double kConvergedPx = 0.03;
/// Position error that the gradients of a patch do not reveal, due to the difference between infrared and visible
/// light: standard deviation in pixels.
constexpr double kModelDeviationPx = 0.05;
/// Lower bound of the residual variance of a patch: the rounding of both images to whole grey levels.
constexpr float kMinVariance = 0.5F;

using Window = Patch<kSize>;

bool fits(const cv::Mat& image, const cv::Point& middle, int margin) {
    return middle.x >= margin && middle.y >= margin && middle.x + margin < image.cols && middle.y + margin < image.rows;
}

float variance(const cv::Mat& infrared8, const cv::Point& middle) {
    int sum = 0, squares = 0;
    for (int y = middle.y - kReach; y <= middle.y + kReach; ++y) {
        const auto* row = infrared8.ptr<std::uint8_t>(y) + middle.x - kReach;
        for (int x = 0; x < kSize; ++x) {
            sum += row[x];
            squares += row[x] * row[x];
        }
    }
    const float mean = static_cast<float>(sum) / kArea;
    return static_cast<float>(squares) / kArea - mean * mean;
}

/// The infrared patch with its gradients, which are the same in every step.
class Template {
public:
    Template(const cv::Mat& infrared8, const cv::Point& middle) {
        std::size_t i = 0;
        for (int y = middle.y - kReach; y <= middle.y + kReach; ++y) {
            const auto* row = infrared8.ptr<std::uint8_t>(y);
            const auto *above = infrared8.ptr<std::uint8_t>(y - 1), *below = infrared8.ptr<std::uint8_t>(y + 1);
            for (int x = middle.x - kReach; x <= middle.x + kReach; ++x, ++i) {
                value_[i] = row[x];
                across_[i] = 0.5F * static_cast<float>(row[x + 1] - row[x - 1]);
                down_[i] = 0.5F * static_cast<float>(below[x] - above[x]);
            }
        }
        squares_ = value_.centre();
        if (!hasTexture()) return;
        for (Window* gradient : {&across_, &down_}) {
            gradient->centre();
            // The gain is estimated as well, so the part of the gradients that is proportional to the patch itself must
            // change the gain and not the position.
            gradient->subtract(value_, gradient->dot(value_) / squares_);
        }
        hessian_ << across_.dot(across_), across_.dot(down_), 0, down_.dot(down_);
        hessian_(1, 0) = hessian_(0, 1);
    }

    bool hasTexture() const { return squares_ > kMinimumDeviation * kMinimumDeviation * kArea; }
    const Window& value() const { return value_; }
    float squares() const { return squares_; }
    const Eigen::Matrix2f& hessian() const { return hessian_; }
    Eigen::Vector2f gradientProduct(const Window& other) const { return {across_.dot(other), down_.dot(other)}; }

private:
    Window value_, across_, down_;
    float squares_ = 0;
    Eigen::Matrix2f hessian_;
};

/// Positions of the patch's pixels in the colour image: the centre, and the steps in the colour image for one pixel to
/// the right and one pixel down in the patch.
struct Placement {
    Eigen::Vector2d middle;
    Eigen::Matrix2d axes;
};

class Aligner {
public:
    Aligner(const cv::Mat& infrared8, const cv::Mat& grey, const Projection& projection,
            const Eigen::Matrix3d& rotation)
        : infrared8_(infrared8), grey_(grey), projection_(projection), rotation_(rotation) {}

    bool align(const MeasuredPlace& place, double inverseDepth, MeasuredMatch* match) const {
        const cv::Point middle(cvRound(place.infrared.x), cvRound(place.infrared.y));
        if (!fits(infrared8_, middle, kReach + 1)) return false;
        const Template patch(infrared8_, middle);
        if (!patch.hasTexture()) return false;
        Placement placement = placementOf(middle, inverseDepth);
        const Eigen::Vector2d predicted = placement.middle;
        const Eigen::Matrix2f inverseHessian = patch.hessian().inverse();
        if (!inverseHessian.allFinite()) return false;
        Window seen;
        float gain = 0, squares = 0;
        for (int i = 0; i < kIterations; ++i) {
            if (!sample(placement, &seen)) return false;
            squares = seen.centre();
            gain = patch.value().dot(seen) / patch.squares();
            if (!(gain > kMinimumGain)) return false;
            // The step is in pixels of the infrared patch; the colour patch moves in the opposite direction.
            const Eigen::Vector2f moved = inverseHessian * patch.gradientProduct(seen) / gain;
            if (!(moved.norm() < 10.0F)) return false;
            const Eigen::Vector2d step = placement.axes * shortened(moved).cast<double>();
            placement.middle -= step;
            if ((placement.middle - predicted).norm() > kLargestMovePx) return false;
            if (step.norm() < kConvergedPx) break;
        }
        const float correlation = gain * std::sqrt(patch.squares() / squares);
        if (!(correlation > kMinimumCorrelation)) return false;
        *match = matchOf(place, middle, placement, patch, 1 - correlation * correlation);
        return true;
    }

private:
    /// Limits the length of a step, because long steps overshoot.
    static Eigen::Vector2f shortened(const Eigen::Vector2f& step) {
        const float length = step.norm();
        return length > 1.0F ? Eigen::Vector2f(step / length) : step;
    }

    Eigen::Vector2d delivered(const cv::Point2f& infrared, double inverseDepth) const {
        const Eigen::Vector2d model = projection_.colourPoint(rotation_, infrared, inverseDepth);
        const fieldcal::ColourScaling& scaling = projection_.cameras.colourScaling;
        return {(model.x() + 0.5) / scaling.x - 0.5, (model.y() + 0.5) / scaling.y - 0.5};
    }

    Placement placementOf(const cv::Point& middle, double inverseDepth) const {
        const cv::Point2f place(middle);
        constexpr float reach = kReach;
        const auto at = [&](float dx, float dy) { return delivered(place + cv::Point2f(dx, dy), inverseDepth); };
        Placement placement{at(0, 0), {}};
        placement.axes.col(0) = (at(reach, 0) - at(-reach, 0)) / (2 * kReach);
        placement.axes.col(1) = (at(0, reach) - at(0, -reach)) / (2 * kReach);
        return placement;
    }

    /// Samples the colour image at the patch's pixels, bilinearly. Returns false when the patch leaves the image.
    bool sample(const Placement& placement, Window* out) const {
        const Eigen::Vector2f across = placement.axes.col(0).cast<float>(), down = placement.axes.col(1).cast<float>();
        const Eigen::Vector2f corner = placement.middle.cast<float>() - kReach * (across + down);
        constexpr float margin = kReach + 3;
        const Eigen::Vector2d& m = placement.middle;
        if (!(m.x() > margin + kReach && m.y() > margin + kReach && m.x() < grey_.cols - margin - kReach &&
              m.y() < grey_.rows - margin - kReach)) {
            return false;
        }
        std::size_t i = 0;
        for (int y = 0; y < kSize; ++y) {
            Eigen::Vector2f place = corner + static_cast<float>(y) * down;
            for (int x = 0; x < kSize; ++x, ++i, place += across) {
                const int column = static_cast<int>(place.x()), row = static_cast<int>(place.y());
                const float u = place.x() - static_cast<float>(column), v = place.y() - static_cast<float>(row);
                const std::uint8_t* above = grey_.ptr<std::uint8_t>(row) + column;
                const std::uint8_t* below = above + grey_.step;
                const float upper = above[0] + u * static_cast<float>(above[1] - above[0]);
                const float lower = below[0] + u * static_cast<float>(below[1] - below[0]);
                (*out)[i] = upper + v * (lower - upper);
            }
        }
        return true;
    }

    MeasuredMatch matchOf(const MeasuredPlace& place, const cv::Point& middle, const Placement& placement,
                          const Template& patch, float unexplainedShare) const {
        MeasuredMatch match;
        match.place = place;
        match.place.infrared = middle;
        match.colour = projection_.cameras.colourModelPoint(
            {static_cast<float>(placement.middle.x()), static_cast<float>(placement.middle.y())});
        const float variance = unexplainedShare * patch.squares() / kArea + kMinVariance;
        const Eigen::Matrix2d toInfrared = placement.axes.inverse();
        const Eigen::Matrix2d information =
            toInfrared.transpose() * patch.hessian().cast<double>() * toInfrared / variance;
        const Eigen::Matrix2d covariance =
            information.inverse() + kModelDeviationPx * kModelDeviationPx * Eigen::Matrix2d::Identity();
        match.information = covariance.inverse();
        return match;
    }

    const cv::Mat& infrared8_;
    const cv::Mat& grey_;
    const Projection& projection_;
    const Eigen::Matrix3d& rotation_;
};

}  // namespace

std::vector<cv::Point2f> texturedPlaces(const cv::Mat& infrared8) {
    std::vector<cv::Point2f> places;
    for (int y = kLatticePx; y < infrared8.rows; y += kLatticePx) {
        for (int x = kLatticePx; x < infrared8.cols; x += kLatticePx) {
            if (!fits(infrared8, {x, y}, kReach + 1)) continue;
            if (variance(infrared8, {x, y}) > kMinimumDeviation * kMinimumDeviation)
                places.emplace_back(static_cast<float>(x), static_cast<float>(y));
        }
    }
    return places;
}

std::vector<MeasuredMatch> alignPatches(const cv::Mat& infrared8, const cv::Mat& grey,
                                        const std::vector<MeasuredPlace>& places, const Projection& projection,
                                        const Eigen::Matrix3d& rotation, const StereoScale* scale, bool skipUnknown) {
    std::vector<MeasuredMatch> matches(places.size());
    std::vector<char> aligned(places.size(), 0);
    const Aligner aligner(infrared8, grey, projection, rotation);
    const auto alignFrom = [&](std::size_t first) {
        for (std::size_t i = first; i < places.size(); i += 2) {
            const double inverseDepth = inverseDepthOf(places[i], scale);
            if (std::isnan(inverseDepth) && skipUnknown) continue;
            aligned[i] = aligner.align(places[i], std::isnan(inverseDepth) ? 0 : inverseDepth, &matches[i]) ? 1 : 0;
        }
    };
    auto odd = std::async(std::launch::async, alignFrom, 1);
    alignFrom(0);
    odd.get();
    std::size_t count = 0;
    for (std::size_t i = 0; i < matches.size(); ++i) {
        if (aligned[i] != 0) matches[count++] = matches[i];
    }
    matches.resize(count);
    return matches;
}

}  // namespace vq
