#include "engine/MatchVerification.h"

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
constexpr int kWorstCost = 162;
constexpr double kFlat = 0.00001;
constexpr float kMaxShiftPx = 2.0F;

using CostTable = std::array<std::int32_t, kSearch * kSearch>;

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

/// One colour patch against the 225 infrared patches about a corner.
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

    void fill(CostTable* costs) const {
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
                (*costs)[i] = cost(covariance, patchVariance * variance);
            }
        }
    }

private:
    static double square(std::int32_t value) { return static_cast<double>(value) * value; }

    /// Covariance and variances come multiplied by the 81 pixels; the quotient is the same.
    static std::int32_t cost(double covariance, double varianceProduct) {
        const double denominator = std::sqrt(varianceProduct);
        if (!(denominator > kFlat * kPatchArea)) return kWorstCost;
        const double value = (1.0 - covariance / denominator) * 9.0 * 9.0;
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
    // One pixel more than the window: products are computed sixteen at a time, and nobody looks at the last.
    std::array<std::int16_t, kWindow * kWindow + 1> window_{};
};

struct Offset {
    int dx = 0;
    int dy = 0;
};

/// The first of the smallest costs in scan order.
Offset bestOffset(const CostTable& costs) {
    std::size_t best = 0;
    for (std::size_t i = 1; i < costs.size(); ++i) {
        if (costs[i] < costs[best]) best = i;
    }
    return {static_cast<int>(best) % kSearch - kReach, static_cast<int>(best) / kSearch - kReach};
}

/// One Newton step on the 3 x 3 block of costs about the minimum; false when it leads nowhere near.
bool subPixelOffset(const CostTable& costs, const Offset& offset, cv::Point2f* fraction) {
    const auto c = [&](int row, int column) {
        const int index = (offset.dy + kReach + row - 1) * kSearch + offset.dx + kReach + column - 1;
        return static_cast<float>(costs[static_cast<std::size_t>(index)]);
    };
    const float gx = (c(1, 2) - c(1, 0)) * 0.5F;
    const float gy = (c(2, 1) - c(0, 1)) * 0.5F;
    const float dxx = c(1, 2) + c(1, 0) - 2.0F * c(1, 1);
    const float dyy = c(2, 1) + c(0, 1) - 2.0F * c(1, 1);
    const float dxy = (c(2, 2) + c(0, 0) - c(0, 2) - c(2, 0)) * 0.25F;
    const double reciprocal = 1.0 / static_cast<double>(dxx * dyy - dxy * dxy);
    fraction->x = static_cast<float>(-static_cast<double>(dyy * gx - dxy * gy) * reciprocal);
    fraction->y = static_cast<float>(-static_cast<double>(dxx * gy - dxy * gx) * reciprocal);
    return std::abs(fraction->x) <= 1.0F && std::abs(fraction->y) <= 1.0F;
}

/// Moves the infrared point of a good pair; false drops the pair.
bool verifyPair(const cv::Mat& colour, const cv::Mat& infrared, const cv::Point2f& colourPoint,
                cv::Point2f* infraredPoint, CostTable* costs) {
    const cv::Point colourOrigin = patchOrigin(colourPoint);
    const cv::Point infraredOrigin = patchOrigin(*infraredPoint);
    if (!searchFits(colourOrigin, colour.size()) || !searchFits(infraredOrigin, infrared.size())) return false;
    PatchSearch(colour, colourOrigin, infrared, infraredOrigin).fill(costs);
    const Offset offset = bestOffset(*costs);
    if (std::abs(offset.dx) >= kReach || std::abs(offset.dy) >= kReach) return false;
    cv::Point2f fraction;
    if (!subPixelOffset(*costs, offset, &fraction)) return false;
    const cv::Point2f shift(static_cast<float>(offset.dx) + fraction.x, static_cast<float>(offset.dy) + fraction.y);
    if (std::sqrt(shift.x * shift.x + shift.y * shift.y) > kMaxShiftPx) return false;
    *infraredPoint += shift;
    return true;
}

/// Verifies every pair from `first` on by steps of two; `kept` gets one flag a pair.
void verifyEveryOther(const cv::Mat& colour, const cv::Mat& infrared, const std::vector<cv::Point2f>& colourPoints,
                      std::size_t first, std::vector<cv::Point2f>* infraredPoints, std::vector<char>* kept) {
    CostTable costs{};
    for (std::size_t i = first; i < colourPoints.size(); i += 2) {
        (*kept)[i] = verifyPair(colour, infrared, colourPoints[i], &(*infraredPoints)[i], &costs) ? 1 : 0;
    }
}

}  // namespace

void verifyMatches(const cv::Mat& colour, const cv::Mat& infrared, std::vector<cv::Point2f>* colourPoints,
                   std::vector<cv::Point2f>* infraredPoints) {
    std::vector<char> kept(colourPoints->size());
    auto odd = std::async(std::launch::async,
                          [&] { verifyEveryOther(colour, infrared, *colourPoints, 1, infraredPoints, &kept); });
    verifyEveryOther(colour, infrared, *colourPoints, 0, infraredPoints, &kept);
    odd.get();
    std::size_t count = 0;
    for (std::size_t i = 0; i < kept.size(); ++i) {
        if (kept[i] == 0) continue;
        (*colourPoints)[count] = (*colourPoints)[i];
        (*infraredPoints)[count++] = (*infraredPoints)[i];
    }
    colourPoints->resize(count);
    infraredPoints->resize(count);
}

}  // namespace vq
