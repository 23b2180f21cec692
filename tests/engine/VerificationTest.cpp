#include "engine/MatchVerification.h"
#include "tests/engine/Scenes.h"

#include <gtest/gtest.h>
#include <opencv2/imgproc.hpp>

#include <cmath>
#include <optional>

namespace vq::testing {
namespace {

constexpr int kReach = 7;

cv::Point patchOrigin(const cv::Point2f& p) {
    return {static_cast<int>(std::trunc(p.x - 4.5F)), static_cast<int>(std::trunc(p.y - 4.5F))};
}

/// Cost of two 9 x 9 patches with the given first pixels. The sums are integers, so that exact values stay exact.
int slowCost(const cv::Mat& colour, const cv::Point& a, const cv::Mat& infrared, const cv::Point& b) {
    std::int64_t sumA = 0, sumB = 0, squareA = 0, squareB = 0, product = 0;
    for (int i = 0; i < 81; ++i) {
        const std::int64_t p = colour.at<std::uint8_t>(a.y + i / 9, a.x + i % 9);
        const std::int64_t q = infrared.at<std::uint8_t>(b.y + i / 9, b.x + i % 9);
        sumA += p, sumB += q, squareA += p * p, squareB += q * q, product += p * q;
    }
    const auto whole = [](std::int64_t value) { return static_cast<long double>(value); };
    const long double denominator = std::sqrt(whole(81 * squareA - sumA * sumA) * whole(81 * squareB - sumB * sumB));
    const long double zncc = denominator / 81.0L > 1e-5L ? whole(81 * product - sumA * sumB) / denominator : -1.0L;
    // Division in extended precision gives tiny deviations from whole numbers that double precision does not have.
    return static_cast<int>(std::max((1.0L - zncc) * 81.0L + 1e-9L, 0.0L));
}

/// Reference for the refined infrared point of a kept pair, step by step.
std::optional<cv::Point2f> slowVerify(const cv::Mat& colour, const cv::Mat& infrared, const cv::Point2f& c,
                                      const cv::Point2f& r) {
    const auto fits = [](const cv::Point& o, const cv::Mat& image) {
        return o.x - 7 >= 0 && o.y - 7 >= 0 && o.x + 16 < image.cols && o.y + 16 < image.rows;
    };
    if (!fits(patchOrigin(c), colour) || !fits(patchOrigin(r), infrared)) return std::nullopt;
    cv::Mat_<double> costs(15, 15);
    cv::Point best(-kReach, -kReach);
    const auto costAt = [&costs](const cv::Point& offset) -> double& {
        return costs(offset.y + kReach, offset.x + kReach);
    };
    for (int i = 0; i < 225; ++i) {
        const cv::Point offset(i % 15 - kReach, i / 15 - kReach);
        costAt(offset) = slowCost(colour, patchOrigin(c), infrared, patchOrigin(r) + offset);
        if (costAt(offset) < costAt(best)) best = offset;
    }
    if (std::abs(best.x) == kReach || std::abs(best.y) == kReach) return std::nullopt;
    const auto at = [&](int row, int column) { return costAt(best + cv::Point(column - 1, row - 1)); };
    const double gx = (at(1, 2) - at(1, 0)) / 2, gy = (at(2, 1) - at(0, 1)) / 2;
    const double dxx = at(1, 2) + at(1, 0) - 2 * at(1, 1), dyy = at(2, 1) + at(0, 1) - 2 * at(1, 1);
    const double dxy = (at(2, 2) + at(0, 0) - at(0, 2) - at(2, 0)) / 4;
    const double determinant = dxx * dyy - dxy * dxy;
    const cv::Point2d fraction(-(dyy * gx - dxy * gy) / determinant, -(dxx * gy - dxy * gx) / determinant);
    if (!(std::abs(fraction.x) <= 1.0 && std::abs(fraction.y) <= 1.0)) return std::nullopt;
    const cv::Point2d shift = cv::Point2d(best) + fraction;
    if (cv::norm(shift) > 2.0 + 1e-7) return std::nullopt;
    return r + cv::Point2f(shift);
}

cv::Mat smoothNoise(int seed, const cv::Size& size, double sigma) {
    cv::RNG random(static_cast<std::uint64_t>(seed));
    cv::Mat image = randomImage(random, size, CV_8UC1);
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
    std::mt19937 places(1);
    const cv::Size size(90, 70);
    const cv::Mat texture = smoothNoise(1, size, 1.5);
    cv::Mat binary, periodic = texture.clone(), halfFlat = texture.clone();
    cv::threshold(texture, binary, 128, 255, cv::THRESH_BINARY);
    halfFlat.colRange(0, 45) = 77;
    // Equal costs every four columns: the first one in scan order wins, and it is too far away.
    for (int x = 4; x < size.width; ++x)
        periodic.col(x - 4).copyTo(periodic.col(x));
    const std::pair<cv::Mat, cv::Mat> scenes[] = {{texture, 255 - texture},
                                                  {texture, shifted(texture * 0.5 + 40, 0.4, -0.7)},
                                                  {texture, shifted(texture, 1.6, 1.1)},
                                                  {smoothNoise(2, size, 0.5), smoothNoise(3, size, 0.5)},
                                                  {binary, binary},
                                                  {periodic, periodic},
                                                  {halfFlat, shifted(halfFlat, -1, 0)}};
    std::size_t keptTotal = 0;
    for (const auto& [colour, infrared] : scenes) {
        std::vector<cv::Point2f> colourPoints, infraredPoints, expectedColour, expectedInfrared;
        for (int i = 0; i < 250; ++i) {
            colourPoints.push_back(randomPoint(places, {8, 8, 74, 54}));
            infraredPoints.push_back(colourPoints.back() + randomPoint(places, {-2.5F, -2.5F, 5, 5}));
            const auto expected = slowVerify(colour, infrared, colourPoints.back(), infraredPoints.back());
            if (!expected) continue;
            expectedColour.push_back(colourPoints.back());
            expectedInfrared.push_back(*expected);
        }
        keptTotal += expectedColour.size();
        verifyMatches(colour, infrared, &colourPoints, &infraredPoints);
        EXPECT_EQ(colourPoints, expectedColour);
        ASSERT_EQ(infraredPoints.size(), expectedInfrared.size());
        for (std::size_t i = 0; i < infraredPoints.size(); ++i)
            EXPECT_LT(cv::norm(infraredPoints[i] - expectedInfrared[i]), 1e-4);
    }
    EXPECT_GT(keptTotal, 200U);
}

/// Verifies a single pair.
std::optional<cv::Point2f> verify(const cv::Mat& colour, const cv::Mat& infrared, const cv::Point2f& c,
                                  const cv::Point2f& r) {
    std::vector<cv::Point2f> colourPoints{c}, infraredPoints{r};
    verifyMatches(colour, infrared, &colourPoints, &infraredPoints);
    return infraredPoints.empty() ? std::nullopt : std::optional(infraredPoints[0]);
}

TEST(Verification, NeedsTheWholeSearchAreaInBothPictures) {
    const cv::Mat image = smoothNoise(2, {100, 80}, 1.5);
    cv::Mat padded;
    cv::copyMakeBorder(image, padded, 20, 20, 20, 20, cv::BORDER_REFLECT_101);
    // The first pixel of the patch is at trunc(x - 4.5); positions from 7 to size - 17 leave enough space.
    const std::pair<cv::Point2f, bool> cases[] = {{{11, 40}, false},    {{11.49F, 40}, false}, {{11.5F, 40}, true},
                                                  {{88.49F, 40}, true}, {{88.5F, 40}, false},  {{50, 11.49F}, false},
                                                  {{50, 11.5F}, true},  {{50, 68.49F}, true},  {{50, 68.5F}, false}};
    for (const auto& [point, hasRoom] : cases) {
        const cv::Point2f inner = point + cv::Point2f(20, 20);
        EXPECT_EQ(verify(image, padded, point, inner).has_value(), hasRoom) << "colour " << point;
        EXPECT_EQ(verify(padded, image, inner, point).has_value(), hasRoom) << "infrared " << point;
    }
}

/// An image that is symmetric about a centre in both directions: the costs around the correct offset are symmetric, and
/// the fraction is exactly zero.
cv::Mat symmetricAbout(const cv::Point& centre) {
    const cv::Mat quarter = smoothNoise(3, {128, 128}, 1.0);
    cv::Mat image(128, 128, CV_8UC1);
    for (int y = 0; y < 128; ++y) {
        for (int x = 0; x < 128; ++x)
            image.at<std::uint8_t>(y, x) = quarter.at<std::uint8_t>(std::abs(y - centre.y), std::abs(x - centre.x));
    }
    return image;
}

TEST(Verification, KeepsShiftsUpToTwoPixels) {
    const cv::Point2f point(64.9F, 64.9F);  // its patch is centred on pixel 64
    const std::pair<cv::Point, bool> cases[] = {{{0, 0}, true},  {{2, 0}, true},    {{0, -2}, true}, {{1, 1}, true},
                                                {{2, 1}, false}, {{-2, -1}, false}, {{3, 0}, false}, {{0, 6}, false},
                                                {{7, 0}, false}, {{-7, 0}, false},  {{0, 7}, false}, {{0, -7}, false}};
    for (const auto& [shift, isKept] : cases) {
        const auto refined = verify(symmetricAbout({64, 64}), symmetricAbout(cv::Point(64, 64) + shift), point, point);
        EXPECT_EQ(refined.has_value(), isKept) << shift;
        EXPECT_EQ(refined.value_or(point + cv::Point2f(shift)), point + cv::Point2f(shift));
    }
}

}  // namespace
}  // namespace vq::testing
