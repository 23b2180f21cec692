#include "engine/InfraredConversion.h"

#include "diagnostics/Assertions.h"
#include "engine/SensorCalibratorParameters.h"

#include <opencv2/imgproc.hpp>

#include <algorithm>
#include <array>
#include <cmath>
#include <future>
#include <vector>

namespace vq {
namespace {

constexpr int kLevels = 1024;
constexpr double kClippedShare = 0.02;
constexpr int kHalfNeighbourhood = 128;
constexpr float kMinimumCentre = 25.0F;
constexpr float kDeviations = 3.0F;

using Histogram = std::array<std::uint32_t, kLevels>;

Histogram histogramOf(const std::uint16_t* pixels, std::size_t count) {
    // Neighbouring pixels often have the same value. Four interleaved histograms avoid the store-to-load stalls of
    // repeated additions to one counter.
    std::array<Histogram, 4> parts{};
    const auto add = [](Histogram& part, std::uint16_t value) {
        if (value < kLevels) ++part[value];
    };
    std::size_t i = 0;
    for (; i + 4 <= count; i += 4) {
        for (std::size_t lane = 0; lane < 4; ++lane)
            add(parts[lane], pixels[i + lane]);
    }
    for (; i < count; ++i)
        add(parts[0], pixels[i]);
    Histogram sum{};
    for (std::size_t level = 0; level < kLevels; ++level) {
        for (const Histogram& part : parts)
            sum[level] += part[level];
    }
    return sum;
}

/// Returns the first level, stepping from `first` by `step`, at which the running sum exceeds `limit`; otherwise
/// `first`.
int cutLevel(const Histogram& histogram, int first, int step, double limit) {
    double sum = 0;
    for (int level = first; level >= 0 && level < kLevels; level += step) {
        sum += histogram[static_cast<std::size_t>(level)];
        if (sum > limit) return level;
    }
    return first;
}

double clampedMean(const Histogram& histogram, std::size_t count, int low, int high) {
    double sum = 0;
    std::size_t counted = 0;
    for (int level = 0; level < kLevels; ++level) {
        const std::uint32_t bin = histogram[static_cast<std::size_t>(level)];
        sum += static_cast<double>(bin) * std::min(std::max(level, low), high);
        counted += bin;
    }
    sum += static_cast<double>(count - counted) * high;
    return sum / static_cast<double>(count);
}

/// Computes the neighbourhood statistics of one row from the integral images of the clamped values and of their
/// squares.
class RowStretch {
public:
    RowStretch(const cv::Mat& sums, const cv::Mat& squares, int y, int height)
        : top_(std::max(y - kHalfNeighbourhood, 0)),
          bottom_(std::min(y + kHalfNeighbourhood, height - 1)),
          sumTop_(sums.ptr<double>(top_)),
          sumBottom_(sums.ptr<double>(bottom_)),
          squareTop_(squares.ptr<double>(top_)),
          squareBottom_(squares.ptr<double>(bottom_)) {}

    std::uint8_t stretched(float value, int x, int width) const {
        const int left = std::max(x - kHalfNeighbourhood, 0);
        const int right = std::min(x + kHalfNeighbourhood, width - 1);
        const double area = std::max((right - left) * (bottom_ - top_), 1);
        const double sum = sumBottom_[right] - sumBottom_[left] - sumTop_[right] + sumTop_[left];
        const double square = squareBottom_[right] - squareBottom_[left] - squareTop_[right] + squareTop_[left];
        const double mean = sum / area;
        const auto deviation = static_cast<float>(std::sqrt(std::max(square / area - mean * mean, 0.0)));
        const float centre = std::max(kMinimumCentre, static_cast<float>(mean));
        const float lower = std::max(centre - kDeviations * deviation, 0.0F);
        const float upper = std::min(centre + kDeviations * deviation, static_cast<float>(kLevels - 1));
        if (!(upper > lower)) return value > upper ? 255 : 0;
        const float share = std::clamp((value - lower) / (upper - lower), 0.0F, 1.0F);
        return static_cast<std::uint8_t>(share * 255.0F);
    }

private:
    int top_, bottom_;
    const double* sumTop_;
    const double* sumBottom_;
    const double* squareTop_;
    const double* squareBottom_;
};

void stretchRows(const cv::Mat& clamped, const cv::Mat& sums, const cv::Mat& squares, int first, int end,
                 cv::Mat* infrared8) {
    for (int y = first; y < end; ++y) {
        const RowStretch row(sums, squares, y, clamped.rows);
        const float* source = clamped.ptr<float>(y);
        std::uint8_t* target = infrared8->ptr<std::uint8_t>(y);
        for (int x = 0; x < clamped.cols; ++x)
            target[x] = row.stretched(source[x], x, clamped.cols);
    }
}

void stretchHistogram(const cv::Mat& infrared16, cv::Mat* infrared8) {
    const auto statistics = clippedStatistics(infrared16.ptr<std::uint16_t>(), infrared16.total());
    cv::Mat clamped;
    infrared16.convertTo(clamped, CV_32F);
    clamped = cv::min(cv::max(clamped, statistics.lowCut), statistics.highCut);
    cv::Mat sums, squares;
    cv::integral(clamped, sums, squares, CV_64F, CV_64F);
    infrared8->create(infrared16.size(), CV_8UC1);
    const int middle = clamped.rows / 2;
    auto lower =
        std::async(std::launch::async, [&] { stretchRows(clamped, sums, squares, middle, clamped.rows, infrared8); });
    stretchRows(clamped, sums, squares, 0, middle, infrared8);
    lower.get();
}

void convertByTable(const cv::Mat& infrared16, int mode, cv::Mat* infrared8) {
    std::array<std::uint8_t, kLevels> table{};
    for (int level = 0; level < kLevels; ++level) {
        const double share = level / (kLevels - 1.0);
        const double linear = mode == SquareRootConversion ? std::sqrt(share) : share;
        const double value = mode == ClampConversion ? std::min(level, 255) : std::floor(linear * 255.0 + 0.5);
        table[static_cast<std::size_t>(level)] = static_cast<std::uint8_t>(value);
    }
    infrared8->create(infrared16.size(), CV_8UC1);
    const auto* source = infrared16.ptr<std::uint16_t>();
    std::transform(source, source + infrared16.total(), infrared8->ptr<std::uint8_t>(),
                   [&table](std::uint16_t value) { return table[std::min<std::size_t>(value, kLevels - 1)]; });
}

}  // namespace

ClippedStatistics clippedStatistics(const std::uint16_t* pixels, std::size_t count) {
    ClippedStatistics statistics;
    if (count == 0) return statistics;
    const Histogram histogram = histogramOf(pixels, count);
    const double limit = kClippedShare * static_cast<double>(count);
    statistics.lowCut = cutLevel(histogram, 0, 1, limit);
    statistics.highCut = cutLevel(histogram, kLevels - 1, -1, limit);
    statistics.mean = clampedMean(histogram, count, statistics.lowCut, statistics.highCut);
    return statistics;
}

std::uint16_t clippedMean(const std::uint16_t* pixels, int width, int height) {
    const auto count = static_cast<std::size_t>(std::max(width, 0)) * static_cast<std::size_t>(std::max(height, 0));
    return static_cast<std::uint16_t>(clippedStatistics(pixels, count).mean);
}

void convertInfrared(const cv::Mat& infrared16, int mode, cv::Mat* infrared8) {
    FIELDCAL_ASSERT(infrared16.type() == CV_16UC1 && infrared16.isContinuous(), "type %d", infrared16.type());
    if (mode == HistogramStretch) {
        stretchHistogram(infrared16, infrared8);
    } else {
        convertByTable(infrared16, mode, infrared8);
    }
}

}  // namespace vq
