#include "engine/StereoMatcher.h"

#include "engine/PatchMath.h"

#include <opencv2/imgproc.hpp>

#include <algorithm>
#include <array>
#include <cmath>
#include <future>
#include <limits>
#include <optional>

namespace vq {
namespace {

constexpr float kNone = std::numeric_limits<float>::quiet_NaN();

/// Coarse search, in pixels of the half-size images. The number of candidates is a multiple of four for the vector
/// units.
constexpr int kHalfReach = 3;
constexpr int kHalfWindow = 2 * kHalfReach + 1;
constexpr int kSmallestHalf = -4;
constexpr int kCandidates = 32;
/// Smallest standard deviation of a window that allows positions to be distinguished, in grey levels of 1024.
constexpr float kMinimumDeviation = 4.0F;
constexpr float kMinimumCoarseCorrelation = 0.6F;
/// A place is ambiguous when another local maximum is this close to the best one.
constexpr float kAmbiguousCorrelation = 0.06F;
constexpr int kPeakDistance = 2;
/// Padding columns on both sides of the half-size images, so that candidates inside the image are found near its
/// border.
constexpr int kPadding = kCandidates + kHalfReach + 1;

constexpr int kReach = 6;
constexpr int kWindow = 2 * kReach + 1;
constexpr int kWindowArea = kWindow * kWindow;
using Window = Patch<kWindow>;
/// A coarse disparity is correct to about a pixel.
constexpr float kLargestWayPx = 2.5F;
constexpr float kConvergedPx = 0.02F;
constexpr float kMinimumFineCorrelation = 0.75F;
constexpr float kLargestRowOffsetPx = 1.0F;
constexpr int kIterations = 8;

using Correlations = std::array<float, kCandidates>;

/// The sums needed for the correlation of one window with all candidates, one element per candidate.
struct CandidateSums {
    std::array<float, kCandidates> sum{}, square{}, product{};
    float ownSum = 0, ownSquare = 0;
};

/// `from` and `to` point at the upper left pixels of the windows for the first candidate.
CandidateSums sumsOf(const cv::Mat& from, const cv::Point& corner, const cv::Mat& to, int firstColumn) {
    CandidateSums sums;
    for (int y = 0; y < kHalfWindow; ++y) {
        const float* own = from.ptr<float>(corner.y + y) + corner.x;
        const float* row = to.ptr<float>(corner.y + y) + firstColumn;
        for (int x = 0; x < kHalfWindow; ++x) {
            const float value = own[x];
            sums.ownSum += value;
            sums.ownSquare += value * value;
            for (std::size_t c = 0; c < kCandidates; ++c) {
                const float other = row[x + static_cast<int>(c)];
                sums.sum[c] += other;
                sums.square[c] += other * other;
                sums.product[c] += value * other;
            }
        }
    }
    return sums;
}

/// Correlates the window about `centre` with the windows at the columns firstColumn … firstColumn + 31 of the same row.
/// Returns false where a window leaves the images or has no texture.
bool correlate(const cv::Mat& from, const cv::Point& centre, const cv::Mat& to, int firstColumn, Correlations* out) {
    constexpr float area = kHalfWindow * kHalfWindow;
    const cv::Point corner(centre.x - kHalfReach, centre.y - kHalfReach);
    const bool fits = corner.x >= 0 && corner.y >= 0 && centre.x + kHalfReach < from.cols &&
                      centre.y + kHalfReach < from.rows && firstColumn >= kHalfReach &&
                      firstColumn + kCandidates + kHalfReach <= to.cols;
    if (!fits) return false;
    const CandidateSums sums = sumsOf(from, corner, to, firstColumn - kHalfReach);
    const float variance = sums.ownSquare - sums.ownSum * sums.ownSum / area;
    if (variance < kMinimumDeviation * kMinimumDeviation * area) return false;
    for (std::size_t c = 0; c < kCandidates; ++c) {
        const float other = sums.square[c] - sums.sum[c] * sums.sum[c] / area;
        const float covariance = sums.product[c] - sums.ownSum * sums.sum[c] / area;
        (*out)[c] = other > 1.0F ? covariance / std::sqrt(variance * other) : -1.0F;
    }
    return true;
}

std::size_t bestOf(const Correlations& correlations) {
    return static_cast<std::size_t>(std::max_element(correlations.begin(), correlations.end()) - correlations.begin());
}

bool isAmbiguous(const Correlations& correlations, std::size_t best) {
    for (std::size_t c = 1; c + 1 < correlations.size(); ++c) {
        const bool farFromBest = std::abs(static_cast<int>(c) - static_cast<int>(best)) > kPeakDistance;
        const bool isPeak = correlations[c] >= correlations[c - 1] && correlations[c] >= correlations[c + 1];
        if (farFromBest && isPeak && correlations[c] > correlations[best] - kAmbiguousCorrelation) return true;
    }
    return false;
}

/// A window of the left image prepared for alignment by the inverse compositional method (Baker and Matthews, IJCV
/// 2004): its gradients and their matrix are computed once.
class WindowAlignment {
public:
    /// `centre` is a whole pixel. The window must lie inside the image with a margin of one pixel.
    WindowAlignment(const cv::Mat& left, const cv::Point& centre) {
        std::size_t i = 0;
        for (int y = centre.y - kReach; y <= centre.y + kReach; ++y) {
            const float* row = left.ptr<float>(y);
            const float *above = left.ptr<float>(y - 1), *below = left.ptr<float>(y + 1);
            for (int x = centre.x - kReach; x <= centre.x + kReach; ++x, ++i) {
                value_[i] = row[x];
                across_[i] = 0.5F * (row[x + 1] - row[x - 1]);
                down_[i] = 0.5F * (below[x] - above[x]);
            }
        }
        squares_ = value_.centre();
        for (Window* gradient : {&across_, &down_}) {
            gradient->centre();
            // The gain is estimated as well, so the part of the gradients that is proportional to the window itself
            // must change the gain and not the position.
            gradient->subtract(value_, gradient->dot(value_) / std::max(squares_, 1.0F));
        }
        xx_ = across_.dot(across_);
        xy_ = across_.dot(down_);
        yy_ = down_.dot(down_);
    }

    bool hasTexture() const {
        const float determinant = xx_ * yy_ - xy_ * xy_;
        return squares_ > kMinimumDeviation * kMinimumDeviation * kWindowArea && determinant > 1e-3F * xx_ * xx_;
    }

    struct Step {
        cv::Point2f move;
        float correlation;  ///< before the step
    };
    /// The step that moves the window at `centre` in the right image closer to a match; none where the two windows do
    /// not correlate.
    std::optional<Step> step(const cv::Mat& right, const cv::Point2f& centre) const {
        Window other;
        sample(right, centre, &other);
        const float squares = other.centre(), covariance = value_.dot(other);
        const float gain = covariance / squares_;
        if (!(gain > 0.1F)) return std::nullopt;
        const float gx = across_.dot(other) / gain, gy = down_.dot(other) / gain;
        const float determinant = xx_ * yy_ - xy_ * xy_;
        return Step{{-(yy_ * gx - xy_ * gy) / determinant, -(xx_ * gy - xy_ * gx) / determinant},
                    covariance / std::sqrt(squares_ * squares)};
    }

private:
    static void sample(const cv::Mat& right, const cv::Point2f& centre, Window* out) {
        const int column = static_cast<int>(std::floor(centre.x)) - kReach;
        const int row = static_cast<int>(std::floor(centre.y)) - kReach;
        const float u = centre.x - std::floor(centre.x), v = centre.y - std::floor(centre.y);
        std::size_t i = 0;
        for (int y = 0; y < kWindow; ++y) {
            const float* above = right.ptr<float>(row + y) + column;
            const float* below = right.ptr<float>(row + y + 1) + column;
            for (int x = 0; x < kWindow; ++x, ++i) {
                const float upper = above[x] + u * (above[x + 1] - above[x]);
                const float lower = below[x] + u * (below[x + 1] - below[x]);
                (*out)[i] = upper + v * (lower - upper);
            }
        }
    }

    Window value_, across_, down_;
    float squares_ = 0, xx_ = 0, xy_ = 0, yy_ = 0;
};

/// Limits the length of a step, because long steps overshoot.
cv::Point2f shortened(const cv::Point2f& step) {
    const auto length = static_cast<float>(cv::norm(step));
    return length > 1.0F ? step / length : step;
}

bool windowFits(const cv::Mat& image, const cv::Point2f& centre) {
    constexpr float margin = kReach + 2;
    return centre.x >= margin && centre.y >= margin && centre.x < static_cast<float>(image.cols) - margin &&
           centre.y < static_cast<float>(image.rows) - margin;
}

}  // namespace

StereoMatcher::StereoMatcher(const cv::Mat& left16, const cv::Mat& right16) {
    const auto prepare = [](const cv::Mat& image16, cv::Mat* whole, cv::Mat* half) {
        image16.convertTo(*whole, CV_32F);
        cv::resize(*whole, *half, image16.size() / 2, 0, 0, cv::INTER_AREA);
        cv::copyMakeBorder(*half, *half, 0, 0, kPadding, kPadding, cv::BORDER_REPLICATE);
    };
    auto done = std::async(std::launch::async, [&] { prepare(right16, &right_, &rightHalf_); });
    prepare(left16, &left_, &leftHalf_);
    done.get();
}

std::vector<float> StereoMatcher::findCoarse(const std::vector<cv::Point2f>& leftPoints) const {
    std::vector<float> found(leftPoints.size(), kNone);
    const auto findFrom = [&](std::size_t first) {
        for (std::size_t i = first; i < leftPoints.size(); i += 2)
            found[i] = findCoarseAt(leftPoints[i]);
    };
    auto odd = std::async(std::launch::async, findFrom, 1);
    findFrom(0);
    odd.get();
    return found;
}

float StereoMatcher::findCoarseAt(const cv::Point2f& leftPoint) const {
    const cv::Point centre(cvRound((leftPoint.x - 0.5F) / 2) + kPadding, cvRound((leftPoint.y - 0.5F) / 2));
    // Candidate c has the disparity kSmallestHalf + 31 − c.
    Correlations there{}, back{};
    const int first = centre.x - kSmallestHalf - (kCandidates - 1);
    if (!correlate(leftHalf_, centre, rightHalf_, first, &there)) return kNone;
    const std::size_t best = bestOf(there);
    if (best == 0 || best + 1 == there.size() || there[best] < kMinimumCoarseCorrelation) return kNone;
    if (isAmbiguous(there, best)) return kNone;
    const cv::Point match(first + static_cast<int>(best), centre.y);
    if (!correlate(rightHalf_, match, leftHalf_, match.x + kSmallestHalf, &back)) return kNone;
    const int again = match.x + kSmallestHalf + static_cast<int>(bestOf(back));
    if (std::abs(again - centre.x) > 1) return kNone;
    // The parabola through the three best correlations gives the position of the maximum between the candidates.
    const float before = there[best - 1], after = there[best + 1];
    const float bend = before + after - 2 * there[best];
    const float fraction = bend < 0 ? 0.5F * (before - after) / bend : 0;
    return 2.0F * (static_cast<float>(centre.x - match.x) - fraction);
}

std::vector<float> StereoMatcher::refine(const std::vector<cv::Point2f>& leftPoints,
                                         const std::vector<float>& coarseDisparitiesPx) const {
    std::vector<float> refined;
    refined.reserve(leftPoints.size());
    for (const cv::Point2f& way : refineWays(leftPoints, coarseDisparitiesPx))
        refined.push_back(-way.x);
    return refined;
}

std::vector<float> StereoMatcher::refineRows(const std::vector<cv::Point2f>& leftPoints,
                                             const std::vector<float>& coarseDisparitiesPx) const {
    std::vector<float> refined;
    refined.reserve(leftPoints.size());
    for (const cv::Point2f& way : refineWays(leftPoints, coarseDisparitiesPx))
        refined.push_back(way.y);
    return refined;
}

/// From each place to where the right image shows it.
std::vector<cv::Point2f> StereoMatcher::refineWays(const std::vector<cv::Point2f>& leftPoints,
                                                   const std::vector<float>& coarseDisparitiesPx) const {
    std::vector<cv::Point2f> ways(leftPoints.size(), {kNone, kNone});
    const auto refineFrom = [&](std::size_t first) {
        for (std::size_t i = first; i < leftPoints.size(); i += 2) {
            if (!std::isnan(coarseDisparitiesPx[i])) ways[i] = refineWayAt(leftPoints[i], coarseDisparitiesPx[i]);
        }
    };
    auto odd = std::async(std::launch::async, refineFrom, 1);
    refineFrom(0);
    odd.get();
    return ways;
}

cv::Point2f StereoMatcher::refineWayAt(const cv::Point2f& leftPoint, float coarsePx) const {
    const cv::Point centre(cvRound(leftPoint.x), cvRound(leftPoint.y));
    const cv::Point2f start(static_cast<float>(centre.x) - coarsePx, static_cast<float>(centre.y));
    constexpr float reach = kLargestWayPx;
    if (!windowFits(left_, centre) || !windowFits(right_, start - cv::Point2f(reach, 0)) ||
        !windowFits(right_, start + cv::Point2f(reach, 0))) {
        return {kNone, kNone};
    }
    const WindowAlignment window(left_, centre);
    if (!window.hasTexture()) return {kNone, kNone};
    cv::Point2f place = start;
    float correlation = -1.0F;
    for (int i = 0; i < kIterations; ++i) {
        const auto step = window.step(right_, place);
        if (!step) return {kNone, kNone};
        correlation = step->correlation;
        place += shortened(step->move);
        const cv::Point2f way = place - start;
        if (!(std::abs(way.x) < kLargestWayPx && std::abs(way.y) < kLargestRowOffsetPx)) return {kNone, kNone};
        if (std::abs(step->move.x) < kConvergedPx && std::abs(step->move.y) < kConvergedPx) break;
    }
    if (correlation < kMinimumFineCorrelation) return {kNone, kNone};
    return {place.x - static_cast<float>(centre.x), place.y - static_cast<float>(centre.y)};
}

}  // namespace vq
