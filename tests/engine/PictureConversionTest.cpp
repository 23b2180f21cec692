#include "engine/GreyConversion.h"
#include "engine/InfraredConversion.h"
#include "engine/SensorCalibratorParameters.h"
#include "tests/engine/Scenes.h"

#include <gtest/gtest.h>

#include <numeric>

namespace vq::testing {
namespace {

/// Returns whether a byte is the given real number truncated; near a whole number, single precision may give either.
bool isTruncated(int value, double exact) {
    return value <= exact + 1e-3 && value > exact - 1.0 - 1e-3;
}

/// A slow reference implementation of the local stretch, pixel by pixel.
class SlowStretch {
public:
    explicit SlowStretch(const cv::Mat& raw) {
        const double limit = 0.02 * static_cast<double>(raw.total());
        const auto pixelsWithin = [&raw](int from, int to) {
            return std::count_if(raw.begin<std::uint16_t>(), raw.end<std::uint16_t>(),
                                 [&](int value) { return value >= from && value <= to; });
        };
        int low = 0, high = 1023;
        while (low < 1023 && static_cast<double>(pixelsWithin(0, low)) <= limit)
            ++low;
        while (high > 0 && static_cast<double>(pixelsWithin(high, 1023)) <= limit)
            --high;
        if (static_cast<double>(pixelsWithin(0, 1023)) <= limit) low = 0, high = 1023;
        raw.convertTo(clamped_, CV_64F);
        clamped_ = cv::min(cv::max(clamped_, low), high);
    }

    std::uint16_t brightness() const {
        return static_cast<std::uint16_t>(cv::sum(clamped_)[0] / static_cast<double>(clamped_.total()));
    }

    bool isRight(int value, int x, int y) const {
        const cv::Point from(std::max(x - 128, 0), std::max(y - 128, 0));
        const cv::Point to(std::min(x + 128, clamped_.cols - 1), std::min(y + 128, clamped_.rows - 1));
        const cv::Mat around = clamped_(cv::Rect(from, to));
        const double area = std::max(static_cast<double>(around.total()), 1.0), mean = cv::sum(around)[0] / area;
        const double deviation = std::sqrt(std::max(around.dot(around) / area - mean * mean, 0.0));
        const double centre = std::max(25.0, mean);
        const double lower = std::max(centre - 3.0 * deviation, 0.0);
        const double upper = std::min(centre + 3.0 * deviation, 1023.0);
        if (upper <= lower) return value == 0 || value == 255;
        return isTruncated(value, std::clamp((clamped_(y, x) - lower) / (upper - lower), 0.0, 1.0) * 255.0);
    }

private:
    cv::Mat_<double> clamped_;
};

/// A brightness gradient with noise.
cv::Mat slope(cv::RNG& random, const cv::Size& size, int low, int high) {
    cv::Mat image = randomImage(random, size, CV_16UC1, low, low + (high - low) / 3);
    for (int x = 0; x < size.width; ++x)
        image.col(x) += (high - low) * (2.0 / 3.0) * x / size.width;
    return image;
}

TEST(InfraredStretch, AgreesWithTheSlowOne) {
    cv::RNG random(1);
    const std::pair<const char*, cv::Mat> cases[] = {
        {"odd size", slope(random, {331, 287}, 100, 900)},
        {"smaller than the neighbourhood", slope(random, {64, 48}, 0, 1023)},
        {"one column", slope(random, {1, 300}, 0, 1023)},
        {"two rows", slope(random, {300, 2}, 20, 400)},
        {"dark", slope(random, {300, 270}, 0, 30)},
        {"values beyond the histogram", slope(random, {300, 270}, 600, 1600)},
        {"black", cv::Mat(270, 300, CV_16UC1, cv::Scalar(0))},
        {"flat", cv::Mat(270, 300, CV_16UC1, cv::Scalar(500))},
        {"nothing in the histogram", cv::Mat(40, 30, CV_16UC1, cv::Scalar(5000))},
    };
    for (const auto& [what, image] : cases) {
        const SlowStretch slow(image);
        cv::Mat converted;
        convertInfrared(image, HistogramStretch, &converted);
        EXPECT_EQ(clippedMean(image.ptr<std::uint16_t>(), image.cols, image.rows), slow.brightness()) << what;
        for (int y = 0; y < image.rows; y += 7) {
            for (int x = y % 5; x < image.cols; x += 11)
                EXPECT_TRUE(slow.isRight(converted.at<std::uint8_t>(y, x), x, y)) << what << " at " << cv::Point(x, y);
        }
    }
}

TEST(InfraredStretch, ClipsTheTailsOnlyBeyondTwoPercent) {
    // Of 100 pixels two may be clipped at either end; the third one is the cut.
    std::vector<std::uint16_t> pixels(100, 400);
    pixels[0] = pixels[1] = 10;
    pixels[98] = pixels[99] = 1000;
    EXPECT_EQ(clippedMean(pixels.data(), 10, 10), 400);
    pixels[2] = 20;
    pixels[97] = 900;
    EXPECT_EQ(clippedMean(pixels.data(), 10, 10), (3 * 20 + 94 * 400 + 3 * 900) / 100);
    EXPECT_EQ(clippedMean(pixels.data(), 0, 10), 0);
    // Nearly all values lie beyond the histogram: the cuts cross at 30 and 10, and the upper one wins.
    pixels.assign(100, 2000);
    pixels[0] = 10, pixels[1] = 20, pixels[2] = 30;
    EXPECT_EQ(clippedMean(pixels.data(), 10, 10), 10);
}

TEST(InfraredConversion, OtherModesRiseBetweenExactEnds) {
    cv::Mat ramp(1, 1200, CV_16UC1), converted;
    std::iota(ramp.begin<std::uint16_t>(), ramp.end<std::uint16_t>(), static_cast<std::uint16_t>(0));
    for (const int mode : {LinearConversion, SquareRootConversion, ClampConversion}) {
        convertInfrared(ramp, mode, &converted);
        const auto* values = converted.ptr<std::uint8_t>();
        EXPECT_TRUE(std::is_sorted(values, values + 1200)) << mode;
        EXPECT_TRUE(values[0] == 0 && values[1023] == 255 && values[1199] == 255) << mode;
        EXPECT_EQ(values[254] == 254 && values[255] == 255, mode == ClampConversion);
    }
}

TEST(GreyConversion, WeighsTheBytesInStorageOrder) {
    cv::RNG random(2);
    cv::Mat colour = randomImage(random, {97, 31}, CV_8UC4), grey;
    const cv::Vec4b known[] = {
        {255, 255, 255, 255}, {255, 255, 255, 0}, {255, 0, 0, 1}, {0, 255, 0, 1}, {0, 0, 255, 1}};
    std::copy(std::begin(known), std::end(known), colour.ptr<cv::Vec4b>());
    convertToGrey(colour, &grey);
    EXPECT_EQ(std::vector<int>(grey.data, grey.data + 5), (std::vector<int>{255, 0, 76, 150, 29}));
    for (int y = 0; y < colour.rows; ++y) {
        for (int x = 0; x < colour.cols; ++x) {
            const cv::Vec4b pixel = colour.at<cv::Vec4b>(y, x);
            const double sum = pixel[0] * 0.299 + pixel[1] * 0.587 + pixel[2] * 0.114 + 0.5;
            EXPECT_TRUE(isTruncated(grey.at<std::uint8_t>(y, x), pixel[3] == 0 ? 0 : std::min(sum, 255.0))) << sum;
        }
    }
}

}  // namespace
}  // namespace vq::testing
