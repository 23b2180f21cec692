#include "engine/BriefDescriptor.h"
#include "engine/BriefPairs.h"
#include "engine/CandidateSearch.h"
#include "tests/engine/Scenes.h"

#include <gtest/gtest.h>
#include <opencv2/features2d.hpp>

namespace vq::testing {
namespace {

cv::Mat slowDescriptor(const cv::Mat& image, const cv::Point& centre) {
    const auto box = [&](int dx, int dy) {
        return cv::sum(image(cv::Rect(centre.x + dx - 4, centre.y + dy - 4, 9, 9)))[0];
    };
    cv::Mat bytes(1, kDescriptorBytes, CV_8UC1, cv::Scalar(0));
    for (int bit = 0; bit < 256; ++bit) {
        const BriefPair& pair = kBriefPairs[static_cast<std::size_t>(bit)];
        if (box(pair.x0, pair.y0) < box(pair.x1, pair.y1)) bytes.at<std::uint8_t>(bit / 8) |= 0x80 >> bit % 8;
    }
    return bytes;
}

TEST(Descriptor, AgreesWithBoxSumsTakenOneByOne) {
    cv::RNG random(1);
    const cv::Mat image = randomImage(random, {120, 90}, CV_8UC1);
    // Each corner belongs to the pixel whose centre is nearest.
    std::vector<cv::Point2f> corners{{28, 28}, {91, 61}, {60.4F, 40.4F}, {60.6F, 40.6F}, {33.3F, 58.8F}};
    const std::vector<cv::Point> pixels{{28, 28}, {91, 61}, {60, 40}, {61, 41}, {33, 59}};
    cv::Mat descriptors;
    describeCorners(image, &corners, &descriptors);
    ASSERT_EQ(descriptors.rows, 5);
    for (int i = 0; i < 5; ++i) {
        const cv::Mat slow = slowDescriptor(image, pixels[static_cast<std::size_t>(i)]);
        EXPECT_EQ(cv::norm(descriptors.row(i), slow, cv::NORM_HAMMING), 0) << i;
    }
}

TEST(Descriptor, DropsCornersWithoutACompletePatchFromBothLists) {
    cv::RNG random(2);
    const cv::Mat image = randomImage(random, {120, 90}, CV_8UC1);
    // Pixels 28..91 across and 28..61 down have a complete patch.
    std::vector<cv::Point2f> corners{{27.4F, 40}, {27.6F, 40}, {91.4F, 40}, {91.6F, 40}, {50, 27.4F},   {50, 27.6F},
                                     {50, 61.4F}, {50, 61.6F}, {-1, 40},    {50, 300},   {91.4F, 61.4F}};
    const std::vector<cv::Point2f> kept{{27.6F, 40}, {91.4F, 40}, {50, 27.6F}, {50, 61.4F}, {91.4F, 61.4F}};
    cv::Mat descriptors;
    describeCorners(image, &corners, &descriptors);
    EXPECT_EQ(corners, kept);
    EXPECT_EQ(descriptors.size(), cv::Size(32, 5));
    corners = {{28, 28}, {10, 10}};
    describeCorners(image(cv::Rect(0, 0, 56, 56)), &corners, &descriptors);
    EXPECT_TRUE(corners.empty() && descriptors.empty()) << "too small for any";
}

/// Reference: a brute-force search among the corners inside the area.
int bruteForce(const CornerSet& targets, const cv::Rect2f& area, const cv::Mat& query) {
    cv::Mat inside;
    std::vector<int> indices;
    for (int i = 0; i < targets.descriptors.rows; ++i) {
        const cv::Point2f p = targets.points[static_cast<std::size_t>(i)];
        if (p.x < area.x || p.y < area.y || p.x > area.x + area.width || p.y > area.y + area.height) continue;
        indices.push_back(i);
        inside.push_back(targets.descriptors.row(i));
    }
    std::vector<cv::DMatch> matches;
    if (!indices.empty()) cv::BFMatcher(cv::NORM_L2, false).match(query, inside, matches);
    return matches.empty() ? -1 : indices[static_cast<std::size_t>(matches[0].trainIdx)];
}

TEST(CandidateSearch, FindsWhatBruteForceFinds) {
    cv::RNG random(3);
    std::mt19937 places(3);
    const cv::Size size(310, 205);
    CornerSet targets;
    for (int i = 0; i < 400; ++i) {
        // Some positions are whole pixels and lie exactly on an edge.
        const cv::Point2f place = randomPoint(places, {0, 0, 310, 205});
        targets.points.push_back(i % 2 ? place : cv::Point2f(std::floor(place.x), std::floor(place.y)));
    }
    targets.descriptors = randomImage(random, {kDescriptorBytes, 400}, CV_8UC1);
    // Equal descriptors far apart in the list test the rule for ties.
    for (int i = 0; i < 100; ++i)
        targets.descriptors.row(i).copyTo(targets.descriptors.row(399 - i));
    const CandidateSearch search(targets, size);
    int found = 0;
    for (int i = 0; i < 2000; ++i) {
        const cv::Rect2f area(
            cv::Rect(random.uniform(0, 320), random.uniform(0, 215), random.uniform(0, 160), i % 120));
        const cv::Mat query = i % 3 ? randomImage(random, {kDescriptorBytes, 1}, CV_8UC1)
                                    : targets.descriptors.row(random.uniform(0, 400)).clone();
        const int expected = bruteForce(targets, area, query);
        EXPECT_EQ(search.nearest(area, query.data), expected) << area;
        found += expected >= 0 ? 1 : 0;
    }
    EXPECT_GT(found, 1000);
}

}  // namespace
}  // namespace vq::testing
