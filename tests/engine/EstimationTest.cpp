#include "engine/MatchGrid.h"
#include "engine/RotationEstimator.h"
#include "engine/RotationFit.h"
#include "tests/engine/Matchers.h"
#include "tests/engine/Scenes.h"

#include <gtest/gtest.h>

#include <cstdlib>

namespace vq::testing {
namespace {

const CameraPair kCameras = fullCameras();
const Eigen::Vector3d kInitialRad = Eigen::Vector3d(0.4, -0.7, 0.3) * kDeg;

#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
constexpr unsigned kTrials = 20;
#else
constexpr unsigned kTrials = 200;
#endif

/// Matched points of a scene.
struct PointPairs {
    std::vector<cv::Point2f> infrared, colour;

    /// Adds correct matches with Gaussian noise on the infrared point.
    void addRight(const Eigen::Vector3d& anglesRad, int count, double noisePx, std::mt19937& random) {
        std::normal_distribution<float> noise(0.0F, 1.0F);
        for (int i = 0; i < count; ++i) {
            const cv::Point2f exact = randomPoint(random, {12, 12, 604, 444});
            infrared.push_back(exact + static_cast<float>(noisePx) * cv::Point2f(noise(random), noise(random)));
            colour.push_back(mapped(colourFromInfrared(kCameras, anglesRad), exact));
        }
    }
    /// Adds wrong matches of the kind that the matcher lets pass: each is consistent with some rotation of the search
    /// range.
    void addWrong(int count, std::mt19937& random) {
        for (int i = 0; i < count; ++i) {
            const Eigen::Vector3d offsetDeg(uniform(random, -4, 4), uniform(random, -1.5, 1.5), uniform(random, -2, 2));
            addRight(kInitialRad + offsetDeg * kDeg, 1, 0.0, random);
        }
    }
    RotationCost cost() const { return {infrared, colour, kCameras}; }
};

Eigen::Vector3d truthInSearchRange(std::mt19937& random) {
    const Eigen::Vector3d offsetDeg(uniform(random, -3.8, 3.8), uniform(random, -1.4, 1.4), uniform(random, -1.9, 1.9));
    return kInitialRad + offsetDeg * kDeg;
}

class Estimation : public ::testing::Test {
protected:
    Estimation() { estimator_.setup({kCameras, kInitialRad.cast<float>(), {}, 0.15F, 30}); }

    bool vote(const PointPairs& pairs, unsigned seed, Eigen::Vector3d* anglesRad) {
        std::srand(seed);
        MatchGrid grid(4, 3, 10);
        grid.add(pairs.colour, pairs.infrared, 628, 468);
        return estimator_.estimateRotationByVoting(grid, 7, anglesRad);
    }
    RotationEstimator estimator_;
};

TEST_F(Estimation, SolvesThroughOutliersAndNoise) {
    for (unsigned seed = 1; seed <= kTrials / 4; ++seed) {
        SCOPED_TRACE(seed);
        std::mt19937 random(seed);
        const Eigen::Vector3d truthRad = truthInSearchRange(random);
        PointPairs pairs;
        pairs.addRight(truthRad, 216, 0.5, random);
        pairs.addWrong(144, random);
        Eigen::Vector3d anglesRad;
        ASSERT_TRUE(vote(pairs, seed, &anglesRad));
        EXPECT_THAT(anglesRad, NearAngles(truthRad, 0.1 * kDeg));
    }
}

TEST_F(Estimation, RefusesRandomMatchesInsideTheSearchAreas) {
    for (unsigned seed = 1; seed <= kTrials; ++seed) {
        std::mt19937 random(seed);
        PointPairs pairs;
        pairs.addWrong(12 + static_cast<int>(seed * 400 / kTrials), random);  // from hardly any to full cells
        Eigen::Vector3d anglesRad;
        EXPECT_FALSE(vote(pairs, seed, &anglesRad)) << seed;
    }
}

TEST_F(Estimation, RefusesTwoRotationsThatExplainHalfEach) {
    for (unsigned seed = 1; seed <= kTrials / 10; ++seed) {
        std::mt19937 random(seed);
        const Eigen::Vector3d oneRad = truthInSearchRange(random);
        const Eigen::Vector3d apartRad(0, (oneRad[1] > kInitialRad[1] ? -1.0 : 1.0) * kDeg, 0);
        PointPairs pairs;
        pairs.addRight(oneRad, 150, 0.3, random);
        pairs.addRight(oneRad + apartRad, 150, 0.3, random);
        Eigen::Vector3d anglesRad;
        EXPECT_FALSE(vote(pairs, seed, &anglesRad)) << seed;
    }
}

TEST_F(Estimation, RepeatsItselfWithTheSameSeed) {
    std::mt19937 random(5);
    PointPairs pairs;
    pairs.addRight(truthInSearchRange(random), 200, 0.5, random);
    pairs.addWrong(60, random);
    Eigen::Vector3d first, again, other;
    ASSERT_TRUE(vote(pairs, 11, &first) && vote(pairs, 11, &again) && vote(pairs, 12, &other));
    EXPECT_EQ(first, again);
    EXPECT_NE(first, other);
}

TEST_F(Estimation, NeverSolvesFewerThanFivePairsAndForgetsTheLastWinner) {
    std::mt19937 random(3);
    PointPairs pairs;
    pairs.addRight(kInitialRad, 200, 0.1, random);
    Eigen::Vector3d anglesRad;
    ASSERT_TRUE(vote(pairs, 1, &anglesRad));
    ASSERT_NE(estimator_.lastBest(), nullptr);
    EXPECT_EQ(estimator_.lastBest()->anglesRad, anglesRad);
    std::string tenLines;
    for (int round = 0; round < 10; ++round)
        tenLines += "[choose] Error: k > n\n";
    for (const std::size_t count : {4U, 1U, 0U}) {
        pairs.infrared.resize(count), pairs.colour.resize(count);
        ::testing::internal::CaptureStderr();
        EXPECT_FALSE(vote(pairs, 1, &anglesRad));
        EXPECT_EQ(::testing::internal::GetCapturedStderr(), tenLines);
        EXPECT_TRUE(anglesRad.array().isNaN().all());
        EXPECT_EQ(estimator_.lastBest(), nullptr);
    }
}

TEST_F(Estimation, EndsWithoutASolutionWhenStopped) {
    std::mt19937 random(8);
    PointPairs pairs;
    pairs.addRight(truthInSearchRange(random), 300, 0.2, random);
    std::atomic<bool> stop{true};
    estimator_.setStopFlag(&stop);
    Eigen::Vector3d anglesRad;
    EXPECT_FALSE(vote(pairs, 1, &anglesRad));
    stop = false;
    EXPECT_TRUE(vote(pairs, 1, &anglesRad));
}

TEST(RotationFit, ConvergesFromTheFarCorners) {
    std::mt19937 random(1);
    const Eigen::Vector3d truthRad = Eigen::Vector3d(0.5, 1.0, -0.7) * kDeg;
    for (int corner = 0; corner < 8; ++corner) {
        PointPairs pairs;
        pairs.addRight(truthRad, 5, 0.0, random);
        const Eigen::Vector3d offsetDeg(corner & 1 ? 4 : -4, corner & 2 ? 4 : -4, corner & 4 ? 3 : -3);
        Eigen::Vector3d anglesRad;
        ASSERT_TRUE(fitRotationLM(pairs.cost(), truthRad + offsetDeg * kDeg, &anglesRad));
        EXPECT_THAT(anglesRad, NearAngles(truthRad, 1e-4 * kDeg));
    }
}

TEST(RotationFit, LeavesTheRotationAloneWhenItFails) {
    // With these numbers the identity predicts without rounding, so every residual is exactly zero at the start.
    const fieldcal::CameraModel camera{640, 480, 512, 512, 320, 240};
    const std::vector<cv::Point2f> points{{64, 112}, {320, 240}, {448, 368}, {576, 48}, {192, 432}};
    const Eigen::Vector3d untouched(7, 8, 9);
    Eigen::Vector3d anglesRad = untouched;
    EXPECT_FALSE(fitRotationLM({points, points, {camera, camera, {}}}, Eigen::Vector3d::Zero(), &anglesRad));
    EXPECT_FALSE(fitRotationLM({{points[0]}, {points[1]}, kCameras}, Eigen::Vector3d::Zero(), &anglesRad))
        << "fewer terms than angles";
    EXPECT_EQ(anglesRad, untouched);
}

TEST(Consensus, LeavesOutSamplesWithClosePoints) {
    const Eigen::Vector3d truthRad = Eigen::Vector3d(1.0, -0.5, 0.5) * kDeg;
    for (const auto& [gapPx, isUsed] : {std::pair{9.99F, false}, {10.0F, true}}) {
        PointPairs pairs{{{100, 100}, {400, 90}, {120, 380}, {500, 300}, {500, 300 + gapPx}}, {}};
        for (const cv::Point2f& point : pairs.infrared)
            pairs.colour.push_back(mapped(colourFromInfrared(kCameras, truthRad), point));
        const Consensus consensus =
            findConsensus(pairs.cost(), pairs.infrared, {{0, 1, 2, 3, 4}}, Eigen::Vector3d::Zero());
        EXPECT_EQ(consensus.found, isUsed) << gapPx;
    }
}

TEST(Consensus, CountsPairsWithinThreePixelsAndTheStrongestRivals) {
    std::mt19937 random(6);
    const Eigen::Vector3d truthRad = Eigen::Vector3d(1.0, -0.5, 0.5) * kDeg;
    PointPairs pairs;
    pairs.addRight(truthRad, 32, 0.0, random);
    pairs.addRight(truthRad + Eigen::Vector3d(0, 2, 0) * kDeg, 20, 0.0, random);
    for (std::size_t i = 22; i < 32; ++i)
        pairs.colour[i].x += 2.0F + 0.2F * static_cast<float>(i - 22);
    std::srand(1);
    const std::vector<Sample> samples = drawSamples(52);
    EXPECT_EQ(samples.size(), 401U);
    const Consensus consensus = findConsensus(pairs.cost(), pairs.infrared, samples, Eigen::Vector3d::Zero());
    ASSERT_TRUE(consensus.found);
    EXPECT_THAT(consensus.anglesRad, NearAngles(truthRad, 0.1 * kDeg));
    for (std::size_t i = 0; i < 52; ++i) {
        const cv::Point2f predicted = mapped(colourFromInfrared(kCameras, consensus.anglesRad), pairs.infrared[i]);
        EXPECT_EQ(consensus.inliers[i] != 0, cv::norm(predicted - pairs.colour[i]) <= 3.0) << i;
    }
    EXPECT_EQ(std::count(consensus.inliers.begin(), consensus.inliers.end(), 1), consensus.inlierCount);
    EXPECT_EQ(consensus.rivalInlierCount, 20);
}

}  // namespace
}  // namespace vq::testing
