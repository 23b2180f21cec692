#include "engine/MatchGrid.h"
#include "engine/RotationEstimator.h"
#include "engine/RotationFit.h"
#include "engine/RotationPolish.h"
#include "tests/engine/Cameras.h"
#include "tests/engine/Matchers.h"

#include <gtest/gtest.h>

#include <chrono>
#include <cstdlib>
#include <thread>

namespace vq::testing {
namespace {

constexpr int kSupport = 7;
const Eigen::Vector3d kInitialRad = Eigen::Vector3d(0.4, -0.7, 0.3) * kDeg;

#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
constexpr unsigned kTrials = 20;
#else
constexpr unsigned kTrials = 200;
#endif

Eigen::Vector3d anglesInSearchRange(std::mt19937& random) {
    return kInitialRad +
           Eigen::Vector3d(uniform(random, -3.8, 3.8), uniform(random, -1.4, 1.4), uniform(random, -1.9, 1.9)) * kDeg;
}

class Estimation : public ::testing::Test {
protected:
    Estimation() { search_.initialAnglesRad = kInitialRad.cast<float>(); }

    bool vote(const PointPairs& pairs, unsigned seed, Eigen::Vector3d* anglesRad) {
        std::srand(seed);
        MatchGrid grid(4, 3, 10);
        grid.add(pairs.colour, pairs.infrared, search_.cameras.infrared.width, search_.cameras.infrared.height);
        estimator_.setup(search_);
        return estimator_.estimateRotationByVoting(grid, kSupport, anglesRad);
    }

    PointPairs right(const Eigen::Vector3d& truthRad, int count, double noisePx, std::mt19937& random) const {
        return rightPairs(search_.cameras, truthRad, count, noisePx, random);
    }
    PointPairs wrong(int count, std::mt19937& random) const {
        return wrongPairs(search_.cameras, kInitialRad, count, random);
    }

    RotationSearch search_{fullCameras(), {}, {}, 0.15F, 30};
    RotationEstimator estimator_;
};

TEST_F(Estimation, SolvesThroughOutliersAndNoise) {
    for (unsigned seed = 1; seed <= kTrials / 4; ++seed) {
        SCOPED_TRACE(seed);
        std::mt19937 random(seed);
        const Eigen::Vector3d truthRad = anglesInSearchRange(random);
        PointPairs pairs = right(truthRad, 216, 0.5, random);
        pairs.append(wrong(144, random));
        Eigen::Vector3d anglesRad;
        ASSERT_TRUE(vote(pairs, seed, &anglesRad));
        EXPECT_THAT(anglesRad, NearAngles(truthRad, 0.1 * kDeg));
        PolishedRotation polished;
        ASSERT_TRUE(polishRotation(pairs.infrared, pairs.colour, search_.cameras, anglesRad, &polished));
        EXPECT_THAT(polished.anglesRad, NearAngles(truthRad, 0.05 * kDeg));
        const Eigen::Vector3d departure = (polished.anglesRad - truthRad).cwiseAbs();
        EXPECT_TRUE((departure.array() < 5.0 * polished.deviationRad.array()).all())
            << departure.transpose() << " against deviations of " << polished.deviationRad.transpose();
    }
}

TEST_F(Estimation, RefusesRandomMatchesInsideTheSearchAreas) {
    for (unsigned seed = 1; seed <= kTrials; ++seed) {
        std::mt19937 random(seed);
        Eigen::Vector3d anglesRad;
        // From hardly anything to full cells.
        const int count = 12 + static_cast<int>(seed * 400 / kTrials);
        EXPECT_FALSE(vote(wrong(count, random), seed, &anglesRad)) << seed;
    }
}

TEST_F(Estimation, RefusesTwoRotationsThatExplainHalfEach) {
    for (unsigned seed = 1; seed <= kTrials / 10; ++seed) {
        std::mt19937 random(seed);
        const Eigen::Vector3d oneRad = anglesInSearchRange(random);
        const Eigen::Vector3d apartRad(0, (oneRad[1] > kInitialRad[1] ? -1.0 : 1.0) * kDeg, 0);
        PointPairs pairs = right(oneRad, 150, 0.3, random);
        pairs.append(right(oneRad + apartRad, 150, 0.3, random));
        Eigen::Vector3d anglesRad;
        EXPECT_FALSE(vote(pairs, seed, &anglesRad)) << seed;
    }
}

TEST_F(Estimation, RepeatsItselfWithTheSameSeed) {
    std::mt19937 random(5);
    PointPairs pairs = right(anglesInSearchRange(random), 200, 0.5, random);
    pairs.append(wrong(60, random));
    Eigen::Vector3d first, again, other;
    ASSERT_TRUE(vote(pairs, 11, &first) && vote(pairs, 11, &again) && vote(pairs, 12, &other));
    EXPECT_EQ(first, again);
    EXPECT_NE(first, other);
}

TEST_F(Estimation, NeverSolvesFewerThanFivePairs) {
    for (const int count : {0, 1, 4}) {
        std::mt19937 random(3);
        Eigen::Vector3d anglesRad;
        ::testing::internal::CaptureStderr();
        EXPECT_FALSE(vote(right(kInitialRad, count, 0.1, random), 1, &anglesRad));
        std::string expected;
        for (int round = 0; round < 10; ++round)
            expected += "[choose] Error: k > n\n";
        EXPECT_EQ(::testing::internal::GetCapturedStderr(), expected);
        EXPECT_TRUE(anglesRad.array().isNaN().all());
        EXPECT_EQ(estimator_.lastBest(), nullptr);
    }
}

TEST_F(Estimation, KeepsTheWinnerUntilTheNextVote) {
    std::mt19937 random(8);
    const PointPairs pairs = right(anglesInSearchRange(random), 200, 0.2, random);
    Eigen::Vector3d anglesRad;
    ASSERT_TRUE(vote(pairs, 1, &anglesRad));
    ASSERT_NE(estimator_.lastBest(), nullptr);
    EXPECT_EQ(estimator_.lastBest()->anglesRad, anglesRad);
    EXPECT_GE(estimator_.lastBest()->votes, kSupport);
    EXPECT_FALSE(vote({}, 1, &anglesRad));
    EXPECT_EQ(estimator_.lastBest(), nullptr);
}

TEST_F(Estimation, EndsEarlyWithoutASolutionWhenStopped) {
    std::mt19937 random(8);
    const PointPairs pairs = right(anglesInSearchRange(random), 300, 0.2, random);
    std::atomic<bool> stop{true};
    estimator_.setStopFlag(&stop);
    Eigen::Vector3d anglesRad;
    EXPECT_FALSE(vote(pairs, 1, &anglesRad));
    EXPECT_TRUE(anglesRad.array().isNaN().all());

    stop = false;
    std::thread stopper([&stop] {
        std::this_thread::sleep_for(std::chrono::milliseconds(3));
        stop = true;
    });
    const bool solved = vote(pairs, 1, &anglesRad);
    EXPECT_EQ(anglesRad.array().isNaN().all(), !solved);
    stopper.join();
    stop = false;
    EXPECT_TRUE(vote(pairs, 1, &anglesRad));
}

TEST(RotationFit, ConvergesFromTheFarCorners) {
    const CameraPair cameras = fullCameras();
    std::mt19937 random(1);
    const Eigen::Vector3d truthRad = Eigen::Vector3d(0.5, 1.0, -0.7) * kDeg;
    for (int corner = 0; corner < 8; ++corner) {
        const PointPairs pairs = rightPairs(cameras, truthRad, 5, 0.0, random);
        const Eigen::Vector3d offset(corner & 1 ? 4 : -4, corner & 2 ? 4 : -4, corner & 4 ? 3 : -3);
        Eigen::Vector3d anglesRad;
        ASSERT_TRUE(fitRotationLM({pairs.infrared, pairs.colour, cameras}, truthRad + offset * kDeg, &anglesRad));
        EXPECT_THAT(anglesRad, NearAngles(truthRad, 1e-4 * kDeg));
    }
}

TEST(RotationFit, LeavesTheRotationAloneWhenItFails) {
    // At the principal points the identity predicts without any rounding: every term is exactly zero at the start.
    CameraPair cameras = fullCameras();
    cameras.colour = cameras.infrared = {640, 480, 512.0F, 512.0F, 320.0F, 240.0F};
    const std::vector<cv::Point2f> points{{64, 112}, {320, 240}, {448, 368}, {576, 48}, {192, 432}};
    const Eigen::Vector3d untouched(7, 8, 9);
    Eigen::Vector3d anglesRad = untouched;
    EXPECT_FALSE(fitRotationLM({points, points, cameras}, Eigen::Vector3d::Zero(), &anglesRad)) << "zero residual";
    EXPECT_FALSE(fitRotationLM({{points[0]}, {points[1]}, cameras}, Eigen::Vector3d::Zero(), &anglesRad))
        << "fewer terms than angles";
    EXPECT_EQ(anglesRad, untouched);
}

TEST(RotationCost, MapsByBothCamerasAndBoundsInliersAtThreePixels) {
    const CameraPair cameras = fullCameras();
    std::mt19937 random(4);
    const Eigen::Vector3d truthRad = Eigen::Vector3d(-3.0, 2.0, 2.5) * kDeg;
    PointPairs pairs = rightPairs(cameras, truthRad, 6, 0.0, random);
    const std::vector<double> distancesPx{0.0, 0.5, 2.99, 3.01, 20.0, 200.0};
    for (std::size_t i = 0; i < 6; ++i) {
        const double direction = uniform(random, 0.0, 6.28);
        pairs.colour[i] += cv::Point2f(cv::Point2d(std::cos(direction), std::sin(direction)) * distancesPx[i]);
    }
    const RotationCost cost(pairs.infrared, pairs.colour, cameras);
    std::vector<double> distances, residuals;
    cost.distancesPx(truthRad, &distances);
    cost.residuals(truthRad, &residuals);
    for (std::size_t i = 0; i < 6; ++i) {
        EXPECT_NEAR(distances[i], distancesPx[i], 1e-3);
        EXPECT_EQ(residuals[i] <= kInlierResidual, distancesPx[i] <= 3.0) << distancesPx[i];
    }
    EXPECT_TRUE(std::is_sorted(residuals.begin(), residuals.end()));
}

TEST(Consensus, LeavesOutSamplesWithClosePoints) {
    const CameraPair cameras = fullCameras();
    const Eigen::Vector3d truthRad = Eigen::Vector3d(1.0, -0.5, 0.5) * kDeg;
    const Eigen::Matrix3d homography = colourFromInfrared(cameras, truthRad);
    for (const auto& [gapPx, isUsed] : {std::pair{9.99F, false}, {10.0F, true}}) {
        const std::vector<cv::Point2f> infrared{{100, 100}, {400, 90}, {120, 380}, {500, 300}, {500, 300 + gapPx}};
        std::vector<cv::Point2f> colour;
        for (const cv::Point2f& point : infrared)
            colour.push_back(mapped(homography, point));
        const RotationCost cost(infrared, colour, cameras);
        const Consensus consensus = findConsensus(cost, infrared, {{0, 1, 2, 3, 4}}, Eigen::Vector3d::Zero());
        EXPECT_EQ(consensus.found, isUsed) << gapPx;
        if (consensus.found) {
            EXPECT_THAT(consensus.anglesRad, NearAngles(truthRad, 1e-4 * kDeg));
        }
    }
}

TEST(Consensus, MarksExactlyThePairsItExplains) {
    const CameraPair cameras = fullCameras();
    std::mt19937 random(6);
    const Eigen::Vector3d truthRad = Eigen::Vector3d(1.0, -0.5, 0.5) * kDeg;
    PointPairs pairs = rightPairs(cameras, truthRad, 30, 0.1, random);
    const PointPairs far = rightPairs(cameras, truthRad + Eigen::Vector3d(0, 2, 0) * kDeg, 20, 0.1, random);
    pairs.append(far);
    std::srand(1);
    const std::vector<Sample> samples = drawSamples(50);
    EXPECT_EQ(samples.size(), 401U);
    const Consensus consensus =
        findConsensus({pairs.infrared, pairs.colour, cameras}, pairs.infrared, samples, Eigen::Vector3d::Zero());
    ASSERT_TRUE(consensus.found);
    EXPECT_EQ(consensus.inlierCount, 30);
    EXPECT_EQ(consensus.rivalInlierCount, 20);
    for (std::size_t i = 0; i < 50; ++i)
        EXPECT_EQ(consensus.inliers[i] != 0, i < 30) << i;
}

}  // namespace
}  // namespace vq::testing
