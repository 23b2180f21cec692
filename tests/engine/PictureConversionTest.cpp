#include "engine/GreyConversion.h"
#include "engine/InfraredConversion.h"
#include "engine/SensorCalibratorParameters.h"
#include "tests/engine/Frames.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numeric>

namespace vq::testing {
namespace {

/// The stretch as it is described, pixel by pixel and sum by sum.
class SlowStretch {
public:
    explicit SlowStretch(const cv::Mat& raw) : clamped_(raw.size(), CV_64F) {
        std::vector<double> bins(1024, 0.0);
        for (const std::uint16_t value : cv::Mat_<std::uint16_t>(raw)) {
            if (value < 1024) bins[value] += 1;
        }
        const double limit = 0.02 * static_cast<double>(raw.total());
        double low = 0, high = 1023, sum = 0;
        for (int bin = 0; bin < 1024; ++bin) {
            sum += bins[static_cast<std::size_t>(bin)];
            if (sum <= limit) continue;
            low = bin;
            break;
        }
        sum = 0;
        for (int bin = 1023; bin >= 0; --bin) {
            sum += bins[static_cast<std::size_t>(bin)];
            if (sum <= limit) continue;
            high = bin;
            break;
        }
        for (int y = 0; y < raw.rows; ++y) {
            for (int x = 0; x < raw.cols; ++x)
                clamped_(y, x) = std::min(std::max<double>(raw.at<std::uint16_t>(y, x), low), high);
        }
    }

    std::uint16_t brightness() const {
        return static_cast<std::uint16_t>(cv::sum(clamped_)[0] / static_cast<double>(clamped_.total()));
    }

    /// −1 where the neighbourhood is flat.
    double output(int x, int y) const {
        const int left = std::max(x - 128, 0), right = std::min(x + 128, clamped_.cols - 1);
        const int top = std::max(y - 128, 0), bottom = std::min(y + 128, clamped_.rows - 1);
        double sum = 0, squares = 0;
        for (int v = top; v < bottom; ++v) {
            for (int u = left; u < right; ++u) {
                sum += clamped_(v, u);
                squares += clamped_(v, u) * clamped_(v, u);
            }
        }
        const double area = static_cast<double>(right - left) * (bottom - top);
        const double mean = sum / area, deviation = std::sqrt(std::max(squares / area - mean * mean, 0.0));
        const double centre = std::max(25.0, mean);
        const double lower = std::max(centre - 3.0 * deviation, 0.0);
        const double upper = std::min(centre + 3.0 * deviation, 1023.0);
        if (area == 0 || upper <= lower) return -1;
        return std::min(std::max((clamped_(y, x) - lower) / (upper - lower), 0.0), 1.0) * 255.0;
    }

private:
    cv::Mat_<double> clamped_;
};

/// A slope of brightness under noise; `low` and `high` are the darkest and brightest values.
cv::Mat slope(cv::RNG& random, const cv::Size& size, int low, int high) {
    cv::Mat image(size, CV_16UC1);
    for (int y = 0; y < size.height; ++y) {
        for (int x = 0; x < size.width; ++x) {
            const int noise = random.uniform(0, (high - low) / 3 + 1);
            image.at<std::uint16_t>(y, x) =
                static_cast<std::uint16_t>(low + (high - low) * 2 / 3 * (x + y) / (size.width + size.height) + noise);
        }
    }
    return image;
}

TEST(InfraredStretch, AgreesWithTheSlowOne) {
    cv::RNG random(1);
    struct Case {
        cv::Mat image;
        const char* what;
    };
    const Case cases[] = {
        {slope(random, {331, 287}, 100, 900), "odd size"},
        {slope(random, {64, 48}, 0, 1023), "smaller than the neighbourhood"},
        {slope(random, {1, 300}, 0, 1023), "one column"},
        {slope(random, {300, 2}, 20, 400), "two rows"},
        {slope(random, {300, 270}, 0, 30), "dark"},
        {slope(random, {300, 270}, 600, 1600), "values beyond the histogram"},
        {cv::Mat(270, 300, CV_16UC1, cv::Scalar(0)), "black"},
        {cv::Mat(270, 300, CV_16UC1, cv::Scalar(500)), "flat"},
        {cv::Mat(40, 30, CV_16UC1, cv::Scalar(5000)), "nothing in the histogram"},
    };
    for (const Case& test : cases) {
        const SlowStretch slow(test.image);
        cv::Mat converted;
        convertInfrared(test.image, HistogramStretch, &converted);
        ASSERT_EQ(converted.size(), test.image.size());
        EXPECT_EQ(clippedMean(test.image.ptr<std::uint16_t>(), test.image.cols, test.image.rows), slow.brightness())
            << test.what;
        for (int y = 0; y < test.image.rows; y += 7) {
            for (int x = y % 5; x < test.image.cols; x += 11) {
                const double expected = slow.output(x, y);
                const int value = converted.at<std::uint8_t>(y, x);
                // Truncated; single precision may fall on the other side of a whole number.
                const bool right = expected < 0 ? value == 0 || value == 255
                                                : value <= expected + 1e-3 && value > expected - 1.0 - 1e-3;
                EXPECT_TRUE(right) << test.what << " at " << x << ", " << y << ": " << value << " for " << expected;
            }
        }
    }
}

TEST(InfraredStretch, ClipsTheTailsOnlyBeyondTwoPercent) {
    // Of 100 pixels two may be clipped at either end, the third is the cut.
    std::vector<std::uint16_t> pixels(100, 400);
    pixels[0] = pixels[1] = 10;
    pixels[98] = pixels[99] = 1000;
    EXPECT_EQ(clippedStatistics(pixels.data(), pixels.size()).lowCut, 400);
    EXPECT_EQ(clippedStatistics(pixels.data(), pixels.size()).highCut, 400);
    pixels[2] = 20;
    pixels[97] = 900;
    EXPECT_EQ(clippedStatistics(pixels.data(), pixels.size()).lowCut, 20);
    EXPECT_EQ(clippedStatistics(pixels.data(), pixels.size()).highCut, 900);
    EXPECT_EQ(clippedMean(pixels.data(), 10, 10), (3 * 20 + 94 * 400 + 3 * 900) / 100);
    EXPECT_EQ(clippedMean(pixels.data(), 0, 10), 0);
}

TEST(InfraredStretch, SurvivesCutsThatCross) {
    // Nearly everything beyond the histogram: from below the cut is at 30, from above at 10, and the upper one wins.
    std::vector<std::uint16_t> pixels(100, 2000);
    pixels[0] = 10;
    pixels[1] = 20;
    pixels[2] = 30;
    EXPECT_EQ(clippedMean(pixels.data(), 10, 10), 10);
}

TEST(InfraredConversion, OtherModesRiseBetweenExactEnds) {
    cv::Mat ramp(1, 1200, CV_16UC1), converted;
    std::iota(ramp.begin<std::uint16_t>(), ramp.end<std::uint16_t>(), static_cast<std::uint16_t>(0));
    for (const int mode : {LinearConversion, SquareRootConversion, ClampConversion}) {
        convertInfrared(ramp, mode, &converted);
        const auto* values = converted.ptr<std::uint8_t>();
        EXPECT_TRUE(std::is_sorted(values, values + 1200)) << mode;
        EXPECT_EQ(values[0], 0) << mode;
        EXPECT_EQ(values[1023], 255) << mode;
        EXPECT_EQ(values[1199], 255) << mode;
        EXPECT_EQ(values[254] == 254, mode == ClampConversion);
        EXPECT_EQ(values[255] == 255, mode == ClampConversion);
    }
}

TEST(GreyConversion, WeighsTheBytesInStorageOrder) {
    cv::RNG random(2);
    cv::Mat colour = randomImage(random, {97, 31}, CV_8UC4, 0, 255), grey;
    colour.at<cv::Vec4b>(0, 0) = {255, 255, 255, 255};
    colour.at<cv::Vec4b>(0, 1) = {255, 255, 255, 0};
    colour.at<cv::Vec4b>(0, 2) = {255, 0, 0, 1};
    colour.at<cv::Vec4b>(0, 3) = {0, 255, 0, 1};
    colour.at<cv::Vec4b>(0, 4) = {0, 0, 255, 1};
    convertToGrey(colour, &grey);
    const std::uint8_t known[] = {255, 0, 76, 150, 29};
    EXPECT_TRUE(std::equal(std::begin(known), std::end(known), grey.ptr<std::uint8_t>()));
    for (int y = 0; y < colour.rows; ++y) {
        for (int x = 0; x < colour.cols; ++x) {
            const cv::Vec4b pixel = colour.at<cv::Vec4b>(y, x);
            const double sum = pixel[0] * 0.299 + pixel[1] * 0.587 + pixel[2] * 0.114 + 0.5;
            const double expected = pixel[3] == 0 ? 0 : std::min(sum, 255.0);
            const int value = grey.at<std::uint8_t>(y, x);
            EXPECT_TRUE(value <= expected + 1e-4 && value > expected - 1.0 - 1e-4) << value << " for " << expected;
        }
    }
    const std::uint8_t* buffer = grey.data;
    convertToGrey(colour, &grey);
    EXPECT_EQ(grey.data, buffer) << "reallocated only when the size changes";
}

}  // namespace
}  // namespace vq::testing
