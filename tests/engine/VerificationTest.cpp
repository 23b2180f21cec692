#include "engine/MatchVerification.h"
#include "tests/engine/Cameras.h"
#include "tests/engine/Frames.h"

#include <gtest/gtest.h>
#include <opencv2/imgproc.hpp>

#include <array>
#include <cmath>
#include <optional>

namespace vq::testing {
namespace {

constexpr int kReach = 7;

/// Cost of two 9 x 9 patches with the given first pixels. Whole-number sums, so that exact values stay exact.
int slowCost(const cv::Mat& colour, const cv::Point& a, const cv::Mat& infrared, const cv::Point& b) {
    std::int64_t sumA = 0, sumB = 0, squareA = 0, squareB = 0, product = 0;
    for (int y = 0; y < 9; ++y) {
        for (int x = 0; x < 9; ++x) {
            const std::int64_t p = colour.at<std::uint8_t>(a.y + y, a.x + x);
            const std::int64_t q = infrared.at<std::uint8_t>(b.y + y, b.x + x);
            sumA += p, sumB += q, squareA += p * p, squareB += q * q, product += p * q;
        }
    }
    const auto over81 = [](std::int64_t value) { return static_cast<long double>(value) / 81.0L; };
    const long double covariance = over81(81 * product - sumA * sumB);
    const long double variances = over81(81 * squareA - sumA * sumA) * over81(81 * squareB - sumB * sumB);
    const long double denominator = std::sqrt(variances);
    const long double zncc = denominator > 1e-5L ? covariance / denominator : -1.0L;
    // Long division leaves dust on whole numbers that double precision does not have.
    return static_cast<int>(std::max((1.0L - zncc) * 81.0L + 1e-9L, 0.0L));
}

/// The refined infrared point of a pair that is kept, step by step as it is described.
std::optional<cv::Point2f> slowVerify(const cv::Mat& colour, const cv::Mat& infrared, const cv::Point2f& c,
                                      const cv::Point2f& r) {
    const auto origin = [](const cv::Point2f& p) {
        return cv::Point(static_cast<int>(std::trunc(p.x - 4.5F)), static_cast<int>(std::trunc(p.y - 4.5F)));
    };
    const auto fits = [](const cv::Point& o, const cv::Mat& image) {
        return o.x - 7 >= 0 && o.y - 7 >= 0 && o.x + 16 < image.cols && o.y + 16 < image.rows;
    };
    const cv::Point co = origin(c), ro = origin(r);
    if (!fits(co, colour) || !fits(ro, infrared)) return std::nullopt;
    std::array<std::array<int, 15>, 15> costs{};
    int best = 1000, dx = 0, dy = 0;
    for (int y = -kReach; y <= kReach; ++y) {
        for (int x = -kReach; x <= kReach; ++x) {
            const int cost = slowCost(colour, co, infrared, ro + cv::Point(x, y));
            costs.at(static_cast<std::size_t>(y + kReach)).at(static_cast<std::size_t>(x + kReach)) = cost;
            if (cost < best) best = cost, dx = x, dy = y;
        }
    }
    if (std::abs(dx) == kReach || std::abs(dy) == kReach) return std::nullopt;
    const auto at = [&](int row, int column) -> double {
        return costs.at(static_cast<std::size_t>(dy + kReach + row - 1))
            .at(static_cast<std::size_t>(dx + kReach + column - 1));
    };
    const double gx = (at(1, 2) - at(1, 0)) / 2, gy = (at(2, 1) - at(0, 1)) / 2;
    const double dxx = at(1, 2) + at(1, 0) - 2 * at(1, 1), dyy = at(2, 1) + at(0, 1) - 2 * at(1, 1);
    const double dxy = (at(2, 2) + at(0, 0) - at(0, 2) - at(2, 0)) / 4;
    const double determinant = dxx * dyy - dxy * dxy;
    const double fx = -(dyy * gx - dxy * gy) / determinant, fy = -(dxx * gy - dxy * gx) / determinant;
    if (!(std::abs(fx) <= 1.0) || !(std::abs(fy) <= 1.0)) return std::nullopt;
    const cv::Point2d shift(dx + fx, dy + fy);
    if (std::hypot(shift.x, shift.y) > 2.0 + 1e-7) return std::nullopt;
    return r + cv::Point2f(shift);
}

/// Verifies one pair alone.
std::optional<cv::Point2f> verify(const cv::Mat& colour, const cv::Mat& infrared, const cv::Point2f& c,
                                  const cv::Point2f& r) {
    std::vector<cv::Point2f> colourPoints{c}, infraredPoints{r};
    verifyMatches(colour, infrared, &colourPoints, &infraredPoints);
    EXPECT_EQ(colourPoints.size(), infraredPoints.size());
    if (infraredPoints.empty()) return std::nullopt;
    EXPECT_EQ(colourPoints[0], c);
    return infraredPoints[0];
}

cv::Mat smoothNoise(cv::RNG& random, const cv::Size& size, double sigma) {
    cv::Mat image = randomImage(random, size, CV_8UC1, 0, 255);
    cv::GaussianBlur(image, image, {}, sigma);
    cv::normalize(image, image, 0, 255, cv::NORM_MINMAX);
    return image;
}

cv::Mat shifted(const cv::Mat& image, double dx, double dy) {
    const cv::Mat move = (cv::Mat_<double>(2, 3) << 1, 0, dx, 0, 1, dy);
    cv::Mat result;
    cv::warpAffine(image, result, move, image.size(), cv::INTER_LINEAR, cv::BORDER_REFLECT_101);
    return result;
}

TEST(Verification, AgreesWithTheSlowOneInOrder) {
    cv::RNG random(1);
    std::mt19937 places(1);
    const cv::Size size(90, 70);
    const cv::Mat texture = smoothNoise(random, size, 1.5);
    cv::Mat binary, periodic(size, CV_8UC1), halfFlat = texture.clone();
    cv::threshold(texture, binary, 128, 255, cv::THRESH_BINARY);
    for (int y = 0; y < size.height; ++y) {
        for (int x = 0; x < size.width; ++x)
            periodic.at<std::uint8_t>(y, x) = static_cast<std::uint8_t>(x % 3 * 60 + y * 37 % 101);
    }
    halfFlat.colRange(0, 45) = 77;
    const std::pair<cv::Mat, cv::Mat> scenes[] = {
        {texture, shifted(255 - texture * 0.5, 0.4, -0.7)},  // the other polarity: nothing correlates
        {texture, shifted(texture * 0.5 + 40, 0.4, -0.7)},
        {texture, shifted(texture, 1.6, 1.1)},
        {smoothNoise(random, size, 0.5), smoothNoise(random, size, 0.5)},
        {binary, binary},
        {periodic, periodic},
        {halfFlat, shifted(halfFlat, -1, 0)},
    };
    std::size_t keptInAll = 0, triedInAll = 0;
    for (const auto& [colour, infrared] : scenes) {
        std::vector<cv::Point2f> colourPoints, infraredPoints, expectedColour, expectedInfrared;
        for (int i = 0; i < 250; ++i) {
            const cv::Point2f c(static_cast<float>(uniform(places, 8, 82)), static_cast<float>(uniform(places, 8, 62)));
            const cv::Point2f away(static_cast<float>(uniform(places, -2.5, 2.5)),
                                   static_cast<float>(uniform(places, -2.5, 2.5)));
            colourPoints.push_back(c);
            infraredPoints.push_back(c + away);
            const auto expected = slowVerify(colour, infrared, c, c + away);
            if (!expected) continue;
            expectedColour.push_back(c);
            expectedInfrared.push_back(*expected);
        }
        triedInAll += colourPoints.size();
        keptInAll += expectedColour.size();
        verifyMatches(colour, infrared, &colourPoints, &infraredPoints);
        EXPECT_EQ(colourPoints, expectedColour);
        ASSERT_EQ(infraredPoints.size(), expectedInfrared.size());
        for (std::size_t i = 0; i < infraredPoints.size(); ++i)
            EXPECT_LT(cv::norm(infraredPoints[i] - expectedInfrared[i]), 1e-4);
    }
    EXPECT_GT(keptInAll, triedInAll / 10);
    EXPECT_LT(keptInAll, triedInAll * 4 / 5);
}

TEST(Verification, NeedsTheWholeSearchAreaInBothPictures) {
    cv::RNG random(2);
    const cv::Mat image = smoothNoise(random, {100, 80}, 1.5);
    struct Case {
        cv::Point2f point;
        bool kept;
    };
    // The first pixel of the patch lies at trunc(x - 4.5); from 7 to size - 17 there is room.
    for (const Case& test : {Case{{50, 40}, true},
                             {{11, 40}, false},
                             {{11.49F, 40}, false},
                             {{11.5F, 40}, true},
                             {{50, 11.49F}, false},
                             {{50, 11.5F}, true},
                             {{88.49F, 40}, true},
                             {{88.5F, 40}, false},
                             {{50, 68.49F}, true},
                             {{50, 68.5F}, false},
                             {{-3, 40}, false},
                             {{50, 400}, false}}) {
        EXPECT_EQ(verify(image, image, test.point, test.point).has_value(), test.kept) << test.point;
        // Each picture decides by itself: the other one has room around.
        cv::Mat padded;
        cv::copyMakeBorder(image, padded, 20, 20, 20, 20, cv::BORDER_REFLECT_101);
        const cv::Point2f inner = test.point + cv::Point2f(20, 20);
        if (std::abs(test.point.x) > 100 || std::abs(test.point.y) > 100 || test.point.x < 0) continue;
        EXPECT_EQ(verify(image, padded, test.point, inner).has_value(), test.kept) << test.point;
        EXPECT_EQ(verify(padded, image, inner, test.point).has_value(), test.kept) << test.point;
    }
}

/// The same from all four sides of a centre: costs about the right offset are symmetric, the fraction exactly zero.
cv::Mat symmetricAbout(const cv::Point& centre) {
    cv::RNG random(3);
    const cv::Mat quarter = smoothNoise(random, {128, 128}, 1.0);
    cv::Mat image(128, 128, CV_8UC1);
    for (int y = 0; y < 128; ++y) {
        for (int x = 0; x < 128; ++x)
            image.at<std::uint8_t>(y, x) = quarter.at<std::uint8_t>(std::abs(y - centre.y), std::abs(x - centre.x));
    }
    return image;
}

TEST(Verification, KeepsShiftsUpToTwoPixels) {
    const cv::Mat colour = symmetricAbout({64, 64});
    // The patch about (64.9, 64.9) is centred on pixel 64.
    const cv::Point2f point(64.9F, 64.9F);
    struct Case {
        cv::Point shift;
        bool kept;
    };
    for (const Case& test : {Case{{0, 0}, true},
                             {{2, 0}, true},
                             {{0, -2}, true},
                             {{1, 1}, true},
                             {{2, 1}, false},
                             {{-2, -1}, false},
                             {{3, 0}, false},
                             {{0, 6}, false},
                             {{7, 0}, false},
                             {{-7, 0}, false},
                             {{0, 7}, false},
                             {{0, -7}, false}}) {
        const auto refined = verify(colour, symmetricAbout(cv::Point(64, 64) + test.shift), point, point);
        EXPECT_EQ(refined.has_value(), test.kept) << test.shift;
        if (refined) {
            EXPECT_EQ(*refined, point + cv::Point2f(test.shift));
        }
    }
}

TEST(Verification, TakesTheFirstOfEqualOffsets) {
    // With a period of four pixels, offset 0 is as good as -4, which comes first and is too far.
    for (const cv::Point& period : {cv::Point(4, 0), cv::Point(0, 4), cv::Point(0, 0)}) {
        cv::RNG random(4);
        cv::Mat image = smoothNoise(random, {100, 100}, 0.8);
        for (int y = 0; y < 100; ++y) {
            for (int x = 0; x < 100; ++x) {
                if (period.x > 0 && x >= period.x) image.at<std::uint8_t>(y, x) = image.at<std::uint8_t>(y, x - 4);
                if (period.y > 0 && y >= period.y) image.at<std::uint8_t>(y, x) = image.at<std::uint8_t>(y - 4, x);
            }
        }
        EXPECT_EQ(verify(image, image, {50, 50}, {50, 50}).has_value(), period == cv::Point(0, 0)) << period;
    }
}

TEST(Verification, DropsWhatHasNothingToCorrelate) {
    cv::RNG random(5);
    const cv::Mat image = smoothNoise(random, {60, 60}, 1.5), flat(60, 60, CV_8UC1, cv::Scalar(90));
    EXPECT_TRUE(verify(image, image, {30, 30}, {30, 30}).has_value());
    EXPECT_FALSE(verify(image, flat, {30, 30}, {30, 30}).has_value());
    EXPECT_FALSE(verify(flat, image, {30, 30}, {30, 30}).has_value());
    EXPECT_FALSE(verify(image, 255 - image, {30, 30}, {30, 30}).has_value());
    std::vector<cv::Point2f> none, nothing;
    verifyMatches({}, {}, &none, &nothing);
    EXPECT_TRUE(none.empty());
}

}  // namespace
}  // namespace vq::testing
