#include "engine/MatchVerification.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <future>

namespace vq {
namespace {

constexpr int kPatch = 9;
constexpr int kPatchArea = kPatch * kPatch;
constexpr int kReach = 7;
constexpr int kSearch = 2 * kReach + 1;
constexpr int kWindow = kPatch + 2 * kReach;
constexpr double kFlat = 0.00001;
constexpr float kMaxShiftPx = 2.0F;

/// The result of one search: integer costs, and the correlations from which they were rounded.
struct SearchResult {
    std::array<std::int32_t, kSearch * kSearch> costs{};
    std::array<double, kSearch * kSearch> correlations{};
};

cv::Point patchOrigin(const cv::Point2f& point) {
    return {static_cast<int>(point.x - 0.5F - 4.0F), static_cast<int>(point.y - 0.5F - 4.0F)};
}

bool searchFits(const cv::Point& origin, const cv::Size& size) {
    return origin.x - kReach >= 0 && origin.y - kReach >= 0 && origin.x + 16 < size.width &&
           origin.y + 16 < size.height;
}

/// Sum and sum of squares of the 9 x 9 patches at all offsets, by running sums along columns, then rows.
struct WindowSums {
    std::array<std::int32_t, kSearch * kSearch> sum;
    std::array<std::int32_t, kSearch * kSearch> square;

    explicit WindowSums(const std::array<std::int16_t, kWindow * kWindow + 1>& window) {
        std::array<std::int32_t, kWindow> columnSum{}, columnSquare{};
        for (int y = 0; y < kWindow; ++y) {
            for (int x = 0; x < kWindow; ++x) {
                const int entering = window[static_cast<std::size_t>(y * kWindow + x)];
                const int leaving = y >= kPatch ? window[static_cast<std::size_t>((y - kPatch) * kWindow + x)] : 0;
                columnSum[static_cast<std::size_t>(x)] += entering - leaving;
                columnSquare[static_cast<std::size_t>(x)] += entering * entering - leaving * leaving;
            }
            if (y >= kPatch - 1) sumRow(columnSum, columnSquare, y - kPatch + 1);
        }
    }

private:
    void sumRow(const std::array<std::int32_t, kWindow>& columnSum,
                const std::array<std::int32_t, kWindow>& columnSquare, int row) {
        for (int x = 0; x < kSearch; ++x) {
            std::int32_t s = 0, q = 0;
            for (int i = 0; i < kPatch; ++i) {
                s += columnSum[static_cast<std::size_t>(x + i)];
                q += columnSquare[static_cast<std::size_t>(x + i)];
            }
            sum[static_cast<std::size_t>(row * kSearch + x)] = s;
            square[static_cast<std::size_t>(row * kSearch + x)] = q;
        }
    }
};

/// Correlates one colour patch with the 225 infrared patches around a corner.
class PatchSearch {
public:
    PatchSearch(const cv::Mat& colour, const cv::Point& colourOrigin, const cv::Mat& infrared,
                const cv::Point& infraredOrigin) {
        for (int y = 0; y < kPatch; ++y) {
            const auto* row = colour.ptr<std::uint8_t>(colourOrigin.y + y) + colourOrigin.x;
            for (int x = 0; x < kPatch; ++x)
                patch_[static_cast<std::size_t>(y * kPatch + x)] = row[x];
        }
        for (int y = 0; y < kWindow; ++y) {
            const auto* row = infrared.ptr<std::uint8_t>(infraredOrigin.y - kReach + y) + infraredOrigin.x - kReach;
            for (int x = 0; x < kWindow; ++x)
                window_[static_cast<std::size_t>(y * kWindow + x)] = row[x];
        }
    }

    void fill(SearchResult* result) const {
        std::int32_t patchSum = 0, patchSquare = 0;
        for (const std::int32_t value : patch_) {
            patchSum += value;
            patchSquare += value * value;
        }
        const double patchVariance = kPatchArea * static_cast<double>(patchSquare) - square(patchSum);
        const WindowSums sums(window_);
        for (int dy = 0; dy < kSearch; ++dy) {
            const auto products = rowProducts(dy);
            for (int dx = 0; dx < kSearch; ++dx) {
                const auto i = static_cast<std::size_t>(dy * kSearch + dx);
                const double covariance = kPatchArea * static_cast<double>(products[static_cast<std::size_t>(dx)]) -
                                          static_cast<double>(patchSum) * sums.sum[i];
                const double variance = kPatchArea * static_cast<double>(sums.square[i]) - square(sums.sum[i]);
                result->correlations[i] = correlation(covariance, patchVariance * variance);
                result->costs[i] = cost(result->correlations[i]);
            }
        }
    }

private:
    static double square(std::int32_t value) { return static_cast<double>(value) * value; }

    /// Covariance and variances are both scaled by the 81 pixels, which cancels in the quotient.
    static double correlation(double covariance, double varianceProduct) {
        const double denominator = std::sqrt(varianceProduct);
        return denominator > kFlat * kPatchArea ? covariance / denominator : -1.0;
    }

    static std::int32_t cost(double correlation) {
        const double value = (1.0 - correlation) * 9.0 * 9.0;
        return value > 0.0 ? static_cast<std::int32_t>(value) : 0;
    }

    /// Sums of products of the colour patch with the 15 infrared patches of one row of offsets.
    std::array<std::int32_t, kSearch + 1> rowProducts(int dy) const {
        std::array<std::int32_t, kSearch + 1> products{};
        for (int y = 0; y < kPatch; ++y) {
            const std::int16_t* row = &window_[static_cast<std::size_t>((dy + y) * kWindow)];
            for (int x = 0; x < kPatch; ++x) {
                const std::int32_t weight = patch_[static_cast<std::size_t>(y * kPatch + x)];
                for (int dx = 0; dx < kSearch + 1; ++dx)
                    products[static_cast<std::size_t>(dx)] += weight * row[x + dx];
            }
        }
        return products;
    }

    std::array<std::int16_t, kPatchArea> patch_{};
    // One pixel longer than the window: products are computed sixteen at a time, and the last one is not used.
    std::array<std::int16_t, kWindow * kWindow + 1> window_{};
};

struct Offset {
    int dx = 0;
    int dy = 0;
};

std::size_t indexOf(const Offset& offset, int row, int column) {
    return static_cast<std::size_t>((offset.dy + kReach + row) * kSearch + offset.dx + kReach + column);
}

/// Returns the first of the smallest costs in scan order.
Offset bestOffset(const SearchResult& result) {
    const auto& costs = result.costs;
    const auto best = static_cast<int>(std::min_element(costs.begin(), costs.end()) - costs.begin());
    return {best % kSearch - kReach, best / kSearch - kReach};
}

/// Returns the extremum of the parabola through the 3 x 3 values around an offset. It is one Newton step in the
/// precision of the value, except for the reciprocal.
template <typename Value, typename Values>
cv::Point_<Value> newtonStep(const Values& c) {
    const Value gx = (c(0, 1) - c(0, -1)) * Value(0.5);
    const Value gy = (c(1, 0) - c(-1, 0)) * Value(0.5);
    const Value dxx = c(0, 1) + c(0, -1) - Value(2) * c(0, 0);
    const Value dyy = c(1, 0) + c(-1, 0) - Value(2) * c(0, 0);
    const Value dxy = (c(1, 1) + c(-1, -1) - c(-1, 1) - c(1, -1)) * Value(0.25);
    const double reciprocal = 1.0 / static_cast<double>(dxx * dyy - dxy * dxy);
    return {static_cast<Value>(-static_cast<double>(dyy * gx - dxy * gy) * reciprocal),
            static_cast<Value>(-static_cast<double>(dxx * gy - dxy * gx) * reciprocal)};
}

template <typename Value>
bool isShort(const cv::Point_<Value>& step) {
    return std::abs(step.x) <= 1 && std::abs(step.y) <= 1;
}

/// Takes one Newton step on the 3 x 3 block of costs about the minimum. Returns false when the step leaves the
/// neighbourhood.
bool subPixelOffset(const SearchResult& result, const Offset& offset, cv::Point2f* fraction) {
    *fraction = newtonStep<float>(
        [&](int row, int column) { return static_cast<float>(result.costs[indexOf(offset, row, column)]); });
    return isShort(*fraction);
}

/// Returns the offset of the largest correlation near the smallest cost, because several neighbouring offsets can have
/// the same integer cost. Returns `rounded` when the correlation has no maximum there.
cv::Point2d exactOffset(const SearchResult& result, const Offset& smallest, const cv::Point2f& rounded) {
    Offset peak = smallest;
    for (int row = -1; row <= 1; ++row) {
        for (int column = -1; column <= 1; ++column) {
            const double correlation = result.correlations[indexOf(smallest, row, column)];
            if (correlation > result.correlations[indexOf(peak, 0, 0)])
                peak = {smallest.dx + column, smallest.dy + row};
        }
    }
    if (std::abs(peak.dx) >= kReach || std::abs(peak.dy) >= kReach) return rounded;
    const auto step =
        newtonStep<double>([&](int row, int column) { return result.correlations[indexOf(peak, row, column)]; });
    return isShort(step) ? cv::Point2d(peak.dx, peak.dy) + step : cv::Point2d(rounded);
}

/// The images of a pair, and the buffers of one search.
struct Verifier {
    const cv::Mat& colour;
    const cv::Mat& infrared;
    SearchResult result;

    /// Moves the infrared point of a good match and computes its exact position. Returns false when the match is to be
    /// removed.
    ///
    /// The offset found is that between the patches' centres, which are whole pixels. The matched position therefore
    /// has the same distance from the infrared patch's centre as the colour corner has from its own.
    bool verify(const cv::Point2f& colourPoint, cv::Point2f* infraredPoint, cv::Point2f* exactInfraredPoint) {
        const cv::Point colourOrigin = patchOrigin(colourPoint);
        const cv::Point infraredOrigin = patchOrigin(*infraredPoint);
        if (!searchFits(colourOrigin, colour.size()) || !searchFits(infraredOrigin, infrared.size())) return false;
        PatchSearch(colour, colourOrigin, infrared, infraredOrigin).fill(&result);
        const Offset offset = bestOffset(result);
        if (std::abs(offset.dx) >= kReach || std::abs(offset.dy) >= kReach) return false;
        cv::Point2f fraction;
        if (!subPixelOffset(result, offset, &fraction)) return false;
        const cv::Point2f shift(static_cast<float>(offset.dx) + fraction.x, static_cast<float>(offset.dy) + fraction.y);
        if (std::sqrt(shift.x * shift.x + shift.y * shift.y) > kMaxShiftPx) return false;
        *infraredPoint += shift;
        *exactInfraredPoint = cv::Point2d(infraredOrigin) + exactOffset(result, offset, shift) +
                              cv::Point2d(colourPoint) - cv::Point2d(colourOrigin);
        return true;
    }
};

}  // namespace

void verifyMatches(const cv::Mat& colour, const cv::Mat& infrared, std::vector<cv::Point2f>* colourPoints,
                   std::vector<cv::Point2f>* infraredPoints, std::vector<cv::Point2f>* exactInfraredPoints) {
    std::vector<char> kept(colourPoints->size());
    std::vector<cv::Point2f> exact(colourPoints->size());
    const auto verifyEveryOther = [&](std::size_t first) {
        Verifier verifier{colour, infrared, {}};
        for (std::size_t i = first; i < kept.size(); i += 2)
            kept[i] = verifier.verify((*colourPoints)[i], &(*infraredPoints)[i], &exact[i]) ? 1 : 0;
    };
    auto odd = std::async(std::launch::async, verifyEveryOther, 1);
    verifyEveryOther(0);
    odd.get();
    std::size_t count = 0;
    for (std::size_t i = 0; i < kept.size(); ++i) {
        if (kept[i] == 0) continue;
        (*colourPoints)[count] = (*colourPoints)[i];
        (*infraredPoints)[count] = (*infraredPoints)[i];
        exact[count++] = exact[i];
    }
    colourPoints->resize(count);
    infraredPoints->resize(count);
    exact.resize(count);
    if (exactInfraredPoints != nullptr) *exactInfraredPoints = std::move(exact);
}

}  // namespace vq
